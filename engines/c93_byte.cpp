#include "engines/c93_byte.h"

#include <cstddef>
#include <cstdint>

#include "core/state/state.h"
#include "editor/cell_address.h"
#include "editor/cell_selection.h"
#include "engines/byte_transfer.h"
#include "engines/c93_bus.h"
#include "engines/c93_frame.h"
#include "engines/verdict.h"
#include "link/handshake.h"

namespace wrenbit {

void C93_ByteRead() {
  if (C93_Refused() || Byte_Refused()) return;
  const std::int32_t address = Current_Address();
  Read_Version();
  if (LinkError) return;
  C93_Power_on();
  C93_Start_Instruction(Opcode::Read, address, C93_Field_By_Bits);
  const std::uint8_t byte = C93_Byte_In_By_Bits();
  C93_CS_Low();
  C93_Power_off();
  Await_Stray_Answer();
  if (Judge_Transfer()) Finish_Byte_Read(byte);
}

void C93_ByteWrite() {
  if (C93_Refused() || Byte_Refused()) return;
  const std::int32_t address = Current_Address();
  const std::uint8_t byte = ImageBuffer[static_cast<std::size_t>(address)];
  Read_Version();
  if (LinkError) return;
  C93_Power_on();
  C93_Enable_Write();
  C93_Start_Instruction(Opcode::Write, address, C93_Field_By_Bits);
  C93_Field_By_Bits(8, byte);
  C93_CS_Low();
  C93_Power_off();
  MSFGrid1_Click();
  if (!LinkError) Tell_Byte_Done();
}

}  // namespace wrenbit
