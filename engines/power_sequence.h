// Supply and lines of the socket, up or down: one sequence for both families, with values of their own.
#pragma once

#include <cstdint>
#include <string>

namespace wrenbit {

// The pins that have the same role for both families.
inline constexpr std::uint8_t kSupplyPin = 0x40;    // Port B.
inline constexpr std::uint8_t kHeldHighPin = 0x80;  // Port C.

struct Port_Values {
  std::uint8_t A, B, C;
};

struct Power_Sequence {
  Port_Values Out, Dir;  // Latches and directions.
  Port_Values Watched;   // The pins that must then read as expected.
  Port_Values Expected;
};

// Drives all, up to five times where the system refuses any of it, then reads the ports back in turn. The
// first one whose pins are not as expected, or that finds LinkError set, ends the reading with `family` + "
// Power on PortA error" (or B, or C) in panel 1. Never sets LinkError for a mismatch.
void Run_Power_Sequence(const Power_Sequence& to, const std::string& family);

}  // namespace wrenbit
