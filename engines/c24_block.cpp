#include "engines/c24_block.h"

#include <cstddef>
#include <cstdint>

#include "core/state/platform.h"
#include "core/state/state.h"
#include "engines/block_transfer.h"
#include "engines/c24_bus.h"
#include "engines/c24_control.h"
#include "engines/verdict.h"
#include "link/accelerators.h"
#include "link/failure.h"
#include "link/handshake.h"
#include "link/link.h"

namespace wrenbit {
namespace {

// False: nothing has touched the bus.
bool Begin() {
  TransferStart = Timer();
  Read_Version();
  return !LinkError;
}

void Send_Byte(std::uint8_t byte) { Has_Accelerators() ? Link_SendByte24(byte) : C24_Byte_Out_By_Bits(byte); }

void Send_Checked(std::uint8_t byte) {
  Send_Byte(byte);
  ACK_Check();
}

std::uint8_t Receive_Byte() { return Has_Accelerators() ? Link_ReadByte24() : C24_Byte_In_By_Bits(); }

// A dummy write sets the chip's address counter to 0. In the one-byte form the control byte of the read
// carries the high bits of the block's last address: the counter decides where the reading starts, not these
// bits.
void Start_Read(std::int32_t last) {
  C24_Start_Write(0, Send_Checked);
  C24_StartBit();
  C24_Byte_Out_By_Bits(C24_Control_Byte(C24_One_Address_Byte() ? last : 0, Direction::Read));
  ACK_Check();
}

// One page from `address` on, or what is left of the block. Gives the address behind it.
std::int32_t Write_Page(std::int32_t address, std::int32_t last, Block_Progress& progress) {
  C24_Start_Write(address, Send_Checked);
  for (std::int32_t sent = 0; sent < PageSize && address <= last; ++sent) {
    progress.At(address);
    Send_Checked(ImageBuffer[static_cast<std::size_t>(address)]);
    ++address;
  }
  C24_StopBit();
  return address;
}

}  // namespace

void C24_AllRead() {
  if (C24_Refused() || !Begin()) return;
  const std::int32_t last = Clamp_Block();
  Block_Progress progress(last);

  C24_Power_on();
  Start_Read(last);
  for (std::int32_t address = 0; address <= last; ++address) {
    DoEvents();
    progress.At(address);
    ImageBuffer[static_cast<std::size_t>(address)] = Receive_Byte();
    address == last ? C24_Bit1() : C24_Bit0();
    // Looked at behind the byte: a failed address phase still costs one trip.
    if (LinkError) break;
  }
  C24_StopBit();
  C24_Power_off();
  if (!Judge_Transfer()) return;
  Tell_Duration("読み出し終了。");
}

void C24_AllWrite() {
  if (C24_Refused()) return;
  if (!C24_Page_Usable(PageSize)) return Fail("デバイスのページサイズが正しくありません。");
  if (!Begin()) return;
  const std::int32_t last = Clamp_Block();
  Block_Progress progress(last);

  C24_Power_on();
  std::int32_t address = 0;
  do {
    address = Write_Page(address, last, progress);
  } while (address <= last && !LinkError);
  C24_Power_off();
  if (!Judge_Transfer()) return;
  Tell_Duration("書き込み終了。");
}

}  // namespace wrenbit
