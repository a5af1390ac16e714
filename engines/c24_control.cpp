#include "c24_control.h"

#include "c24_bus.h"
#include "frm_main.h"
#include "refusal.h"
#include "state.h"

namespace wrenbit {

bool One_Address_Byte() { return AddressMode == 1; }

std::uint8_t Control_Byte(std::int32_t address, Direction direction) {
  const std::int32_t high_bits = One_Address_Byte() ? (address & 0x700) / 128 : (address & 0x10000) / 0x8000;
  return static_cast<std::uint8_t>(0xA0 | high_bits | static_cast<std::int32_t>(direction));
}

void C24_Byte_By_Bits(std::uint8_t byte) {
  for (int bit = 7; bit >= 0; --bit) byte >> bit & 1 ? C24_Bit1() : C24_Bit0();
}

void Start_Write(std::int32_t address, void (*send)(std::uint8_t byte)) {
  C24_StartBit();
  send(Control_Byte(address, Direction::Write));
  if (!One_Address_Byte()) send(static_cast<std::uint8_t>(address >> 8 & 0xFF));
  send(static_cast<std::uint8_t>(address & 0xFF));
}

void ACK_Check() {
  if (!C24_ACK()) frmMain.sbStatusBar.Set_Panel(1, "24Cxx ACK error");
}

bool C24_Refused() {
  const int reach = One_Address_Byte() ? 11 : 17;
  if (MemSize <= reach) return false;
  Refuse_Transfer(kWrongSize);
  return true;
}

}  // namespace wrenbit
