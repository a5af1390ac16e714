// The firmware's versions, and what is a command.
#include "board/programmer_board.h"

#include <gtest/gtest.h>

#include "tests/board/test_pc.h"

namespace {

TEST(Programmer_Board, Says_Its_Version_Behind_Anything_And_Has_Accelerators_From_5_0_On) {
  struct {
    const char* Version;
    const char* Said;
    bool Accelerators;
  } const cases[] = {
      {"5.00", "5.00", true},  {"5", "5   ", true}, {"10.00", "10.0", true}, {"4.99", "4.99", false},
      {"abcd", "abcd", false}, {"", "    ", false}, {"inf", "inf ", false},  {"5.x", "5.x ", false},
  };
  for (const auto& version : cases) {
    board::Programmer_Board programmer(version.Version);
    Test_Pc pc(programmer);
    const Bytes said = pc.Say("mw?");
    EXPECT_EQ(std::string(said.begin(), said.end()), "TOLVEX Ver." + std::string(version.Said) + "\r\n");
    EXPECT_EQ(pc.Say("3").size(), version.Accelerators ? 1u : 0u) << version.Version;
  }
}

}  // namespace
