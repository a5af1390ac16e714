#include "engines/c93_frame.h"

#include "core/state/state.h"
#include "engines/c93_bus.h"
#include "image/image_buffer.h"
#include "link/failure.h"

namespace wrenbit {
namespace {

constexpr int kOpcodeBits = 3;  // With the start bit.

// EWEN carries two ones in its address; the board clocks fields of up to 16 bits.
constexpr int kFewestAddressBits = 2;
constexpr int kMostAddressBits = 16;

}  // namespace

void C93_Field_By_Bits(int count, std::int32_t field) {
  for (int bit = count - 1; bit >= 0; --bit) field >> bit & 1 ? C93_Bit1() : C93_Bit0();
}

std::uint8_t C93_Byte_In_By_Bits() {
  int byte = 0;
  for (int bit = 7; bit >= 0; --bit) byte |= C93_DATA() << bit;
  return static_cast<std::uint8_t>(byte);
}

void C93_Start_Instruction(Opcode opcode, std::int32_t address, void (*send)(int count, std::int32_t field)) {
  C93_CS_High();
  send(kOpcodeBits, static_cast<std::int32_t>(opcode));
  send(AddressBits, address);
}

void C93_Enable_Write() {
  C93_Start_Instruction(Opcode::Enable, 3 << (AddressBits - 2), C93_Field_By_Bits);
  C93_CS_Low();
}

bool C93_Refused() {
  if (AddressBits < kFewestAddressBits || AddressBits > kMostAddressBits) {
    Fail("デバイスのアドレスビット数が正しくありません。");
    return true;
  }
  if (MemSize > AddressBits) {
    Fail(kWrongSize);
    return true;
  }
  return false;
}

}  // namespace wrenbit
