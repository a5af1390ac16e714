// A board's replies on their way to the PC, each until the wire has carried it.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <span>
#include <vector>

#include "board/wire_end.h"
#include "board/wire_schedule.h"

namespace board {

class Waiting_Replies {
 public:
  using Clock = Wire_Schedule::Clock;

  // `end` must outlive it.
  Waiting_Replies(Wire_End& end, const Port_Timing& timing) : board(end), wire(timing) {}

  // The PC has sent these bytes: the board answers, and what it says is lined up. A PC that doesn't read
  // loses what exceeds 4096 bytes. Throws what the board throws.
  void Take_In(std::span<const std::uint8_t> sent, Clock::time_point now);

  // Those that the PC should have by now; they stay until they are dropped.
  std::vector<std::uint8_t> Due(Clock::time_point now) const;

  // The first `count` have got through.
  void Drop(std::size_t count);
  void Drop_All() { replies.clear(); }

  // How long nothing happens of itself; none, when it takes the PC to go on: to send, or to read what is due.
  std::optional<std::chrono::nanoseconds> Rest(Clock::time_point now) const;

 private:
  struct Reply {
    std::uint8_t Byte;
    Clock::time_point Due;
  };

  Wire_End& board;
  Wire_Schedule wire;
  std::deque<Reply> replies;
};

}  // namespace board
