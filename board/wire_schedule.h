// When bytes get through between PC and board.
#pragma once

#include <chrono>
#include <cstdint>

namespace board {

enum class Pace : std::uint8_t {
  At_Once,
  Wire,  // No reply earlier than 9600 baud 8N1 would carry it.
};

struct Port_Timing {
  Pace Wire = Pace::At_Once;
  // Replies reach the PC only at multiples of this, as behind a USB adapter: it hands over what it has when
  // its latency timer runs out, which is 16 ms as such adapters come, and 1 ms at least.
  std::chrono::milliseconds Latency{0};
};

// The wire carries one byte after the other, in each direction by itself.
class Wire_Schedule {
 public:
  using Clock = std::chrono::steady_clock;

  explicit Wire_Schedule(const Port_Timing& timing);

  // When the board has a byte of the PC's, sent at that time.
  Clock::time_point Arrival(Clock::time_point sent);
  // When the PC has a byte of the board's, said at that time.
  Clock::time_point Departure(Clock::time_point said);

  // A board that sleeps wakes up some 50 to 100 microseconds late, and the line would seem to be slower than
  // it is. So it stays awake while the wire is in use.
  bool Awake(Clock::time_point now) const;

 private:
  std::chrono::nanoseconds byte_time;
  std::chrono::nanoseconds latency;
  Clock::time_point in_free, out_free;
};

}  // namespace board
