#include "c24_byte.h"

#include "byte_transfer.h"
#include "c24_bus.h"
#include "c24_control.h"
#include "cell_address.h"
#include "handshake.h"
#include "state.h"
#include "verdict.h"

namespace wrenbit {
namespace {

// Refusals and handshake. False: nothing has touched the bus.
bool Begin() {
  if (C24_Refused() || !Byte_Cell_Ready()) return false;
  Read_Version();
  return !LinkError;
}

void Send_Checked(std::uint8_t byte) {
  C24_Byte_By_Bits(byte);
  ACK_Check();
}

std::uint8_t Receive_Byte() {
  int byte = 0;
  for (int bit = 7; bit >= 0; --bit) byte |= C24_DATA() << bit;
  return static_cast<std::uint8_t>(byte);
}

}  // namespace

void C24_ByteRead() {
  if (!Begin()) return;
  const std::int32_t address = Current_Address();
  C24_Power_on();
  Start_Write(address, Send_Checked);
  C24_StartBit();
  Send_Checked(Control_Byte(address, Direction::Read));
  const std::uint8_t byte = Receive_Byte();
  C24_Bit1();  // No acknowledge for the last byte.
  C24_StopBit();
  C24_Power_off();
  if (!Transfer_Failed()) Finish_Byte_Read(byte);
}

void C24_ByteWrite() {
  if (!Begin()) return;
  const std::int32_t address = Current_Address();
  C24_Power_on();
  Start_Write(address, Send_Checked);
  Send_Checked(ImageBuffer[static_cast<std::size_t>(address)]);
  C24_StopBit();
  C24_Power_off();
  if (!Transfer_Failed()) Tell_Byte_Done();
}

}  // namespace wrenbit
