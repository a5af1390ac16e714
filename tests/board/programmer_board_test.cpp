// The firmware's versions and what is a command; and the faults that the sweep of all transfers would not
// miss if they never came.
#include "board/programmer_board.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "board/faulty_board.h"
#include "tests/board/test_pc.h"

namespace {

TEST(Programmer_Board, Says_Its_Version_Behind_Anything_And_Has_Accelerators_From_5_0_On) {
  const std::pair<std::string, bool> versions[] = {{"5.00", true},  {"5", true},     {"10.00", true},
                                                   {"4.99", false}, {"abcd", false}, {"", false},
                                                   {"inf", false},  {"5.x", false}};
  for (const auto& [version, accelerators] : versions) {
    Test_Pc pc(version);
    const Bytes said = pc.Say("mw?");
    EXPECT_EQ(std::string(said.begin(), said.end()),
              "TOLVEX Ver." + (version + "    ").substr(0, 4) + "\r\n");
    EXPECT_EQ(pc.Say("3").size(), accelerators ? 1u : 0u) << version;
  }
}

TEST(Faulty_Board, Spoils_The_Counted_Reply_And_No_Other) {
  Test_Pc pc;
  board::Faulty_Board faulty(pc.Board);
  pc.SpokenTo = &faulty;
  using Replies = std::vector<Bytes>;
  const auto three_replies = [&](const board::Faults& faults) {
    faulty.Arm(faults);
    return Replies{pc.Say("3"), pc.Say("3"), pc.Say("3")};
  };
  EXPECT_EQ(three_replies({}), (Replies{{0}, {0}, {0}}));
  EXPECT_FALSE(faulty.Met());
  EXPECT_EQ(three_replies({.CorruptReply = 2, .CorruptMask = 0x10}), (Replies{{0}, {0x10}, {0}}));
  EXPECT_EQ(three_replies({.DoubleReply = 1}), (Replies{{0, 0}, {0}, {0}}));
  EXPECT_EQ(three_replies({.MuteFrom = 2}), (Replies{{0}, {}, {}}));
  EXPECT_TRUE(faulty.Met());
}

}  // namespace
