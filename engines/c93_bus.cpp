#include "engines/c93_bus.h"

#include "core/state/state.h"
#include "engines/power_sequence.h"
#include "link/link.h"
#include "shell/controls/frm_main.h"

namespace wrenbit {
namespace {

// Port B.
constexpr std::uint8_t kDo = 0x04;
constexpr std::uint8_t kDi = 0x08;
constexpr std::uint8_t kSk = 0x10;
constexpr std::uint8_t kDriven = kSupplyPin | kSk | kDi;
// Port C.
constexpr std::uint8_t kCs = 0x08;

constexpr Power_Sequence kOn{.Out = {0, kSupplyPin, kHeldHighPin},
                             .Dir = {0xF9, 0xA7, 0x77},
                             .Watched = {0x06, kDriven, kHeldHighPin | kCs},
                             .Expected = {0, kSupplyPin, kHeldHighPin}};
constexpr Power_Sequence kOff{.Out = {0, 0, kHeldHighPin},
                              .Dir = {0xFF, 0xFF, 0x7F},
                              .Watched = {0x06, kDriven | kDo, kHeldHighPin | kCs},
                              .Expected = {0, 0, kHeldHighPin}};

void Write_B(std::uint8_t lines) { Link_WritePortB(PortMirror.OutB = kSupplyPin | lines); }
void Write_C(std::uint8_t lines) { Link_WritePortC(PortMirror.OutC = kHeldHighPin | lines); }

void Clock_Out(std::uint8_t di) {
  Write_B(di);
  Write_B(di | kSk);
  Write_B(di);
}

}  // namespace

void C93_Power_on() { Run_Power_Sequence(kOn, "93Cxx"); }
void C93_Power_off() { Run_Power_Sequence(kOff, "93Cxx"); }

void C93_CS_High() { Write_C(kCs); }
void C93_CS_Low() { Write_C(0); }

void C93_Bit1() { Clock_Out(kDi); }
void C93_Bit0() { Clock_Out(0); }

std::int32_t C93_DATA() {
  Write_B(kSk);
  PortMirror.InB = Link_ReadPortB();
  if ((PortMirror.InB & kDriven) != (kSupplyPin | kSk) || LinkError) {
    frmMain.sbStatusBar.Set_Panel(1, "93Cxx DATA Read on PortB error");
    return 0;
  }
  const std::int32_t bit = PortMirror.InB & kDo ? 1 : 0;
  Write_B(0);
  return bit;
}

}  // namespace wrenbit
