#include "faulty_board.h"

namespace board {

bool Faulty_Board::From(std::uint64_t first, std::uint64_t count) {
  if (first == 0 || count < first) return false;
  HasMet = true;
  return true;
}

void Faulty_Board::Arm(const Faults& faults) {
  Armed = faults;
  CommandsBefore = Inner.Commands();
  Replies = 0;
  HasGone = HasMet = false;
}

Answer Faulty_Board::Receive(std::uint8_t byte) {
  const std::uint64_t command = Inner.Commands() - CommandsBefore + 1;
  if (From(Armed.GoneAt, command)) HasGone = true;
  if (HasGone || From(Armed.SilentFrom, command)) return {};

  Answer answer = Inner.Receive(byte);
  if (answer.Bytes.empty()) return answer;
  ++Replies;
  if (At(Armed.DropReply, Replies) || From(Armed.MuteFrom, Replies)) return {};
  if (At(Armed.CorruptReply, Replies)) {
    for (std::uint8_t& said : answer.Bytes) said ^= Armed.CorruptMask;
  }
  if (At(Armed.DoubleReply, Replies)) {
    const auto once = answer.Bytes;
    answer.Bytes.insert(answer.Bytes.end(), once.begin(), once.end());
  }
  if (At(Armed.LateReply, Replies)) answer.Late += Armed.LateBy;
  return answer;
}

}  // namespace board
