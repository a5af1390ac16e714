// What the data sheets say of each three-wire part, in its 8-bit organisation.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace board {

struct Three_Wire_Part {
  std::string_view Name;
  std::size_t Bytes;  // A power of two.
  int AddressBits;    // Behind the opcode of every instruction.
  double WriteCycle;  // Seconds as a rule; the model always takes them all. The sheets allow 10 ms.
};

// In order of size.
std::span<const Three_Wire_Part> Three_Wire_Parts();

}  // namespace board
