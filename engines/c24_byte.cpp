#include "engines/c24_byte.h"

#include <cstddef>
#include <cstdint>

#include "core/state/state.h"
#include "editor/cell_address.h"
#include "engines/byte_transfer.h"
#include "engines/c24_bus.h"
#include "engines/c24_control.h"
#include "engines/verdict.h"
#include "link/handshake.h"

namespace wrenbit {
namespace {

// Refusals and handshake. False: nothing has touched the bus.
bool Begin() {
  if (C24_Refused() || Byte_Refused()) return false;
  Read_Version();
  return !LinkError;
}

void Send_Checked(std::uint8_t byte) {
  C24_Byte_Out_By_Bits(byte);
  ACK_Check();
}

}  // namespace

void C24_ByteRead() {
  if (!Begin()) return;
  const std::int32_t address = Current_Address();
  C24_Power_on();
  C24_Start_Write(address, Send_Checked);
  C24_StartBit();
  Send_Checked(C24_Control_Byte(address, Direction::Read));
  const std::uint8_t byte = C24_Byte_In_By_Bits();
  C24_Bit1();  // No acknowledge for the last byte.
  C24_StopBit();
  C24_Power_off();
  if (Judge_Transfer()) Finish_Byte_Read(byte);
}

void C24_ByteWrite() {
  if (!Begin()) return;
  const std::int32_t address = Current_Address();
  C24_Power_on();
  C24_Start_Write(address, Send_Checked);
  Send_Checked(ImageBuffer[static_cast<std::size_t>(address)]);
  C24_StopBit();
  C24_Power_off();
  if (Judge_Transfer()) Tell_Byte_Done();
}

}  // namespace wrenbit
