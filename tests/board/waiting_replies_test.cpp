// A board's replies on their way to the PC, on a clock that stands still.
#include "board/waiting_replies.h"

#include <gtest/gtest.h>

namespace board {
namespace {

using namespace std::chrono_literals;
using Bytes = std::vector<std::uint8_t>;

// Says twice what it hears.
struct Echo : Wire_End {
  Answer Receive(std::uint8_t byte) override { return {.Bytes = {byte, byte}}; }
};

TEST(Waiting_Replies, KeepsWhatIsNotDueOrNotTakenAndNoMoreThanItHasRoomFor) {
  Echo echo;
  Waiting_Replies replies(echo, {.Wire = Pace::At_Once, .Latency = 16ms});
  const Waiting_Replies::Clock::time_point sent(1s), turn(1008ms);
  EXPECT_FALSE(replies.Rest(sent)) << "it is the PC's turn";
  replies.Take_In(Bytes{1, 2}, sent);
  EXPECT_EQ(replies.Due(turn - 1ns), Bytes{});
  EXPECT_EQ(replies.Rest(turn - 1ns), 1ns);
  EXPECT_EQ(replies.Due(turn), (Bytes{1, 1, 2, 2}));
  EXPECT_FALSE(replies.Rest(turn)) << "it is the PC's turn to read";
  replies.Drop(3);
  EXPECT_EQ(replies.Due(turn), Bytes{2});
  replies.Take_In(Bytes(4000, 3), sent);
  EXPECT_EQ(replies.Due(turn).size(), 4096u);
}

}  // namespace
}  // namespace board
