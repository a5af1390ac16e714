#include "board/waiting_replies.h"

namespace board {

namespace {

using std::chrono::nanoseconds;
constexpr std::size_t kMostWaiting = 4096;  // Bytes, beyond those that the system holds.

}  // namespace

void Waiting_Replies::Take_In(std::span<const std::uint8_t> sent, Clock::time_point now) {
  for (const std::uint8_t received : sent) {
    const Answer answer = board.Receive(received);
    const auto late = std::chrono::duration_cast<nanoseconds>(std::chrono::duration<double>(answer.Late));
    const auto said = wire.Arrival(now) + late;
    for (const std::uint8_t byte : answer.Bytes) {
      if (replies.size() < kMostWaiting) replies.push_back({byte, wire.Departure(said)});
    }
  }
}

std::vector<std::uint8_t> Waiting_Replies::Due(Clock::time_point now) const {
  std::vector<std::uint8_t> due;
  for (auto reply = replies.begin(); reply != replies.end() && reply->Due <= now; ++reply)
    due.push_back(reply->Byte);
  return due;
}

void Waiting_Replies::Drop(std::size_t count) {
  replies.erase(replies.begin(), replies.begin() + static_cast<std::ptrdiff_t>(count));
}

std::optional<nanoseconds> Waiting_Replies::Rest(Clock::time_point now) const {
  if (!replies.empty() && replies.front().Due <= now) return std::nullopt;
  if (wire.Awake(now)) return nanoseconds(0);
  if (replies.empty()) return std::nullopt;
  return replies.front().Due - now;
}

}  // namespace board
