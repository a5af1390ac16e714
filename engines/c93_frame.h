// The instructions of a 93Cxx chip in its 8-bit organisation, each between CS high and CS low, and the
// refusal of a device that cannot be addressed.
//
//   instruction  start  opcode  behind the opcode
//   READ           1      10    AddressBits address bits, then 8 data bits come in
//   WRITE          1      01    AddressBits address bits, then 8 data bits go out
//   EWEN           1      00    1 1 and AddressBits - 2 zeros
//
// Fields go highest bit first. Write enable ends with the supply.
#pragma once

#include <cstdint>

namespace wrenbit {

// The start bit and the opcode behind it.
enum class Opcode : std::uint8_t { Read = 0b110, Write = 0b101, Enable = 0b100 };

// The low `count` bits of `field`, bit by bit at every firmware version.
void C93_Field_By_Bits(int count, std::int32_t field);

// Eight bits from the chip, bit by bit at every firmware version.
std::uint8_t C93_Byte_In_By_Bits();

// From CS high to the last address bit, each field sent by `send`.
void C93_Start_Instruction(Opcode opcode, std::int32_t address, void (*send)(int count, std::int32_t field));

// EWEN, bit by bit, from CS high to CS low: the chip takes writes until its supply goes.
void C93_Enable_Write();

// Refuses, with a text in panel 1 and LinkError, a device whose address does not fit the instruction, or
// whose instruction does not reach all of its bytes. True when it did.
bool C93_Refused();

}  // namespace wrenbit
