// The faults that the sweep of all transfers would not miss if they never came.
#include "board/faulty_board.h"

#include <gtest/gtest.h>

#include <vector>

#include "board/programmer_board.h"
#include "tests/board/test_pc.h"

namespace {

TEST(Faulty_Board, Spoils_The_Counted_Reply_And_No_Other) {
  board::Programmer_Board programmer("5.00");
  board::Faulty_Board faulty(programmer);
  Test_Pc pc(faulty);
  const auto three_replies = [&](const board::Faults& faults) {
    faulty.Arm(faults);
    std::vector<Bytes> heard;
    for (int i = 0; i < 3; ++i) heard.push_back(pc.Say("3"));
    return heard;
  };
  using Replies = std::vector<Bytes>;
  EXPECT_EQ(three_replies({}), (Replies{{0}, {0}, {0}}));
  EXPECT_FALSE(faulty.Met());
  EXPECT_EQ(three_replies({.CorruptReply = 2, .CorruptMask = 0x10}), (Replies{{0}, {0x10}, {0}}));
  EXPECT_EQ(three_replies({.DoubleReply = 1}), (Replies{{0, 0}, {0}, {0}}));
  EXPECT_EQ(three_replies({.MuteFrom = 2}), (Replies{{0}, {}, {}}));
  EXPECT_TRUE(faulty.Met());
}

}  // namespace
