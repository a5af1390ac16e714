#include "engines/c24_control.h"

#include <bit>

#include "core/state/state.h"
#include "engines/c24_bus.h"
#include "image/image_buffer.h"
#include "link/failure.h"
#include "shell/controls/frm_main.h"

namespace wrenbit {

bool C24_One_Address_Byte() { return AddressMode == 1; }

std::uint8_t C24_Control_Byte(std::int32_t address, Direction direction) {
  const std::int32_t high_bits =
      C24_One_Address_Byte() ? (address & 0x700) / 128 : (address & 0x10000) / 0x8000;
  return static_cast<std::uint8_t>(0xA0 | high_bits | static_cast<std::int32_t>(direction));
}

void C24_Byte_Out_By_Bits(std::uint8_t byte) {
  for (int bit = 7; bit >= 0; --bit) byte >> bit & 1 ? C24_Bit1() : C24_Bit0();
}

std::uint8_t C24_Byte_In_By_Bits() {
  int byte = 0;
  for (int bit = 7; bit >= 0; --bit) byte |= C24_DATA() << bit;
  return static_cast<std::uint8_t>(byte);
}

void C24_Start_Write(std::int32_t address, void (*send)(std::uint8_t byte)) {
  C24_StartBit();
  send(C24_Control_Byte(address, Direction::Write));
  if (!C24_One_Address_Byte()) send(static_cast<std::uint8_t>(address >> 8 & 0xFF));
  send(static_cast<std::uint8_t>(address & 0xFF));
}

void ACK_Check() {
  if (!C24_ACK()) frmMain.sbStatusBar.Set_Panel(1, "24Cxx ACK error");
}

bool C24_Page_Usable(std::int32_t bytes) {
  return bytes > 0 && std::has_single_bit(static_cast<std::uint32_t>(bytes));
}

bool C24_Refused() {
  const int reach = C24_One_Address_Byte() ? 11 : 17;
  if (MemSize <= reach) return false;
  Fail(kWrongSize);
  return true;
}

}  // namespace wrenbit
