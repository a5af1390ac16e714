#include "board/faulty_board.h"

namespace board {

bool Faulty_Board::From(std::uint64_t first, std::uint64_t count) {
  if (first == 0 || count < first) return false;
  has_met = true;
  return true;
}

void Faulty_Board::Arm(const Faults& faults) {
  armed = faults;
  commands_before = inner.Commands();
  replies = 0;
  has_gone = has_met = false;
}

Answer Faulty_Board::Receive(std::uint8_t byte) {
  const std::uint64_t command = inner.Commands() - commands_before + 1;
  if (From(armed.GoneAt, command)) has_gone = true;
  if (has_gone || From(armed.SilentFrom, command)) return {};

  Answer answer = inner.Receive(byte);
  if (answer.Bytes.empty()) return answer;
  ++replies;
  if (At(armed.DropReply, replies) || From(armed.MuteFrom, replies)) return {};
  if (At(armed.CorruptReply, replies)) {
    for (std::uint8_t& said : answer.Bytes) said ^= armed.CorruptMask;
  }
  if (At(armed.DoubleReply, replies)) {
    const auto once = answer.Bytes;
    answer.Bytes.insert(answer.Bytes.end(), once.begin(), once.end());
  }
  if (At(armed.LateReply, replies)) answer.Late += armed.LateBy;
  return answer;
}

}  // namespace board
