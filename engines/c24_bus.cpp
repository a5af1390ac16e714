#include "engines/c24_bus.h"

#include "core/state/state.h"
#include "engines/power_sequence.h"
#include "link/accelerators.h"
#include "link/failure.h"
#include "link/link.h"
#include "shell/controls/frm_main.h"

namespace wrenbit {
namespace {

constexpr std::uint8_t kSclHigh = 0x02;
constexpr std::uint8_t kSdaHigh = 0x04;
constexpr std::uint8_t kLines = kSclHigh | kSdaHigh;
constexpr std::uint8_t kBothLow = 0;

void Message(const char* text) { frmMain.sbStatusBar.Set_Panel(1, text); }

void Write_A(std::uint8_t value) { Link_WritePortA(PortMirror.OutA = value); }
void Dir_A(std::uint8_t value) { Link_SetDirA(PortMirror.DirA = value); }
void Read_A() { PortMirror.InA = Link_ReadPortA(); }

// Of ports B and C what is held low is watched too.
constexpr Port_Values kWatched{.A = kLines, .B = kSupplyPin | 0x1C, .C = kHeldHighPin | 0x08};
constexpr Power_Sequence kOn{.Out = {kLines, kSupplyPin, kHeldHighPin},
                             .Dir = {0xF8, 0xA3, 0x77},
                             .Watched = kWatched,
                             .Expected = {kLines, kSupplyPin, kHeldHighPin}};
constexpr Power_Sequence kOff{.Out = {0, 0, kHeldHighPin},
                              .Dir = {0xFF, 0xFF, 0x7F},
                              .Watched = kWatched,
                              .Expected = {0, 0, kHeldHighPin}};

// Drives the lines and looks whether they followed.
bool Step(std::uint8_t levels, const char* error) {
  Write_A(levels);
  Read_A();
  if ((PortMirror.InA & kLines) == levels && !LinkError) return true;
  Fail(error);
  return false;
}

// SDA set while SCL is low, then one pulse of SCL, which ends low.
void Clock_Out(std::uint8_t sda) {
  Write_A(sda);
  Write_A(sda | kSclHigh);
  Write_A(sda);
}

// SDA let go, SCL high, and port A read.
void Clock_In_Begin() {
  Write_A(kSdaHigh);
  Dir_A(0xFD);
  Write_A(kSclHigh);
  Read_A();
}

// SCL low and SDA driven again, low. Port A bit 0, an output since power-on, is left an input.
void Clock_In_End() {
  Write_A(kBothLow);
  Dir_A(0xF9);
}

}  // namespace

void C24_Power_on() { Run_Power_Sequence(kOn, "24Cxx"); }
void C24_Power_off() { Run_Power_Sequence(kOff, "24Cxx"); }

void C24_StartBit() {
  if (!Step(kLines, "24Cxx StartBit PortA error1")) return;
  if (!Step(kSclHigh, "24Cxx StartBit PortA error2")) return;
  Step(kBothLow, "24Cxx StartBit PortA error3");
}

void C24_StopBit() {
  if (!Step(kSclHigh, "24Cxx StopBit PortA error1")) return;
  Step(kLines, "24Cxx StopBit PortA error2");
}

void C24_Bit1() { Has_Accelerators() ? Link_SendBit1() : Clock_Out(kSdaHigh); }
void C24_Bit0() { Has_Accelerators() ? Link_SendBit0() : Clock_Out(kBothLow); }

bool C24_ACK() {
  if (Has_Accelerators()) {
    const bool pulled_down = Link_ReadBit() == 0;
    if (!pulled_down) LinkError = 1;
    return pulled_down;
  }
  Clock_In_Begin();
  if (LinkError) Message("24Cxx ACK PortA error2");
  const bool pulled_down = (PortMirror.InA & kSdaHigh) == 0;
  if (!pulled_down) Fail("24Cxx ACK error");
  Clock_In_End();
  return pulled_down;
}

std::int32_t C24_DATA() {
  if (Has_Accelerators()) return Link_ReadBit();
  Clock_In_Begin();
  if (LinkError) Message("24Cxx DATA PortA error2");
  const std::int32_t bit = PortMirror.InA & kSdaHigh ? 1 : 0;
  Clock_In_End();
  return bit;
}

}  // namespace wrenbit
