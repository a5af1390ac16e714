// What the data sheets say of each two-wire part.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace board {

struct Two_Wire_Part {
  std::string_view Name;
  std::size_t Bytes;            // A power of two.
  std::size_t Page;             // Bytes in one write cycle, a power of two.
  int AddressBytes;             // 1 or 2 behind the control byte, highest first.
  std::uint8_t ControlAddress;  // Bits of the control byte that carry the top of the address.
  std::uint8_t ControlZero;     // Bits of the control byte that the chip wants low.
  double WriteCycle;            // Seconds at most; the model always takes them all.
  std::size_t ReadRun = Bytes;  // Bytes in which a sequential read goes round, a power of two.
};

// The plain numbers first, then the makers' own, each in order of size.
std::span<const Two_Wire_Part> Two_Wire_Parts();

}  // namespace board
