// A board whose replies go wrong at counted places, around any board that does not know of it.
#pragma once

#include <cstdint>

#include "board/wire_end.h"

namespace board {

// Replies and commands count from 1, from the arming on; 0 = never.
struct Faults {
  std::uint64_t DropReply = 0;
  std::uint64_t MuteFrom = 0;  // From this reply on, the board does all and says nothing.
  std::uint64_t CorruptReply = 0;
  std::uint8_t CorruptMask = 0xFF;  // Turns these bits in every byte of the corrupted reply.
  std::uint64_t DoubleReply = 0;
  std::uint64_t LateReply = 0;
  double LateBy = 0;             // Seconds.
  std::uint64_t SilentFrom = 0;  // From the first byte of this command on, the board hears and says nothing.
  std::uint64_t GoneAt = 0;      // At the first byte of this command, the port vanishes.
};

class Faulty_Board : public Wire_End {
 public:
  // `board` must outlive this. Without faults it is heard as it is.
  explicit Faulty_Board(Wire_End& board, const Faults& faults = {}) : inner(board) { Arm(faults); }

  // Starts anew: other faults, all counts at 0, and a port that has gone is back.
  void Arm(const Faults& faults);

  Answer Receive(std::uint8_t byte) override;
  bool Gone() const override { return has_gone || inner.Gone(); }
  std::uint64_t Commands() const override { return inner.Commands(); }
  // A fault of those that were armed has come to pass.
  bool Met() const { return has_met; }

 private:
  // Whether the fault that begins at `first` is there at `count`; it is then met.
  bool From(std::uint64_t first, std::uint64_t count);
  bool At(std::uint64_t only, std::uint64_t count) { return only == count && From(only, count); }

  Wire_End& inner;
  Faults armed;
  std::uint64_t commands_before = 0;  // Those that the inner board had completed at the arming.
  std::uint64_t replies = 0;          // Those of the inner board since then.
  bool has_gone = false;
  bool has_met = false;
};

}  // namespace board
