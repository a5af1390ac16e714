#include "engines/c93_block.h"

#include <cstddef>
#include <cstdint>

#include "core/state/platform.h"
#include "core/state/state.h"
#include "engines/block_transfer.h"
#include "engines/c93_bus.h"
#include "engines/c93_frame.h"
#include "engines/verdict.h"
#include "link/accelerators.h"
#include "link/handshake.h"
#include "link/link.h"

namespace wrenbit {
namespace {

void Send_Field(int count, std::int32_t field) {
  if (!Has_Accelerators()) return C93_Field_By_Bits(count, field);
  Link_SendBits93(static_cast<std::uint8_t>(count), static_cast<std::uint8_t>(field >> 8 & 0xFF),
                  static_cast<std::uint8_t>(field & 0xFF));
}

std::uint8_t Receive_Byte() { return Has_Accelerators() ? Link_ReadByte93() : C93_Byte_In_By_Bits(); }

}  // namespace

void C93_AllRead() {
  if (C93_Refused()) return;
  TransferStart = Timer();
  const std::int32_t last = Clamp_Block();
  Read_Version();
  if (LinkError) return;
  Block_Progress progress(last);

  C93_Power_on();
  for (std::int32_t address = 0; address <= last; ++address) {
    C93_Start_Instruction(Opcode::Read, address, Send_Field);
    progress.At(address);
    ImageBuffer[static_cast<std::size_t>(address)] = Receive_Byte();
    C93_CS_Low();
    if (LinkError) break;
  }
  C93_Power_off();
  Await_Stray_Answer();
  if (!Judge_Transfer()) return;
  Tell_Duration("読み出し終了。");
}

void C93_AllWrite() {
  if (C93_Refused()) return;
  TransferStart = Timer();
  Read_Version();
  if (LinkError) return;

  C93_Power_on();
  C93_Enable_Write();
  const std::int32_t last = Clamp_Block();
  Block_Progress progress(last);
  for (std::int32_t address = 0; address <= last; ++address) {
    C93_Start_Instruction(Opcode::Write, address, Send_Field);
    Send_Field(8, ImageBuffer[static_cast<std::size_t>(address)]);
    progress.At(address);
    C93_CS_Low();
    if (LinkError) break;
  }
  C93_Power_off();
  if (LinkError) return;
  Tell_Duration("書き込み終了。");
}

}  // namespace wrenbit
