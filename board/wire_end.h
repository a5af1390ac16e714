// The board's end of the serial wire, as whoever plays the PC meets it.
#pragma once

#include <cstdint>
#include <vector>

namespace board {

// Seconds that the wire takes for a byte at 9600 baud: start bit, eight data bits, stop bit.
inline constexpr double kByteTime = 10.0 / 9600;

// What a board says to one byte.
struct Answer {
  std::vector<std::uint8_t> Bytes;
  double Late = 0;  // Seconds beyond the wire's own time.
};

class Wire_End {
 public:
  virtual ~Wire_End() = default;

  // One byte from the PC. The answer is empty unless the byte completes a command that has a reply.
  virtual Answer Receive(std::uint8_t byte) = 0;

  // The port has vanished from the PC.
  virtual bool Gone() const { return false; }

  // Commands completed so far. An end that leaves this at 0 can't be given faults that count commands.
  virtual std::uint64_t Commands() const { return 0; }
};

}  // namespace board
