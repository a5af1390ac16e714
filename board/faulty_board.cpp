#include "faulty_board.h"

namespace board {

namespace {

bool Reached(std::uint64_t limit, std::uint64_t count) { return limit != 0 && count >= limit; }

}  // namespace

void Faulty_Board::Arm(const Faults& faults) {
  Armed = faults;
  CommandsBefore = Inner.Commands();
  Replies = 0;
  HasGone = false;
}

Answer Faulty_Board::Receive(std::uint8_t byte) {
  const std::uint64_t command = Inner.Commands() - CommandsBefore + 1;
  if (Reached(Armed.GoneAt, command)) HasGone = true;
  if (HasGone || Reached(Armed.SilentFrom, command)) return {};

  Answer answer = Inner.Receive(byte);
  if (answer.Bytes.empty()) return answer;
  ++Replies;
  if (Replies == Armed.DropReply) return {};
  if (Replies == Armed.CorruptReply) {
    for (std::uint8_t& said : answer.Bytes) said ^= Armed.CorruptMask;
  }
  if (Replies == Armed.DoubleReply) {
    const auto once = answer.Bytes;
    answer.Bytes.insert(answer.Bytes.end(), once.begin(), once.end());
  }
  if (Replies == Armed.LateReply) answer.Late += Armed.LateBy;
  return answer;
}

}  // namespace board
