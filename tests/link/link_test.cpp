// The operations of the link: what is taken for the reply, and when a command waits. What goes out is in
// engines/wire_test.cpp.
#include "link/link.h"

#include <utility>

#include "tests/support/test_bench.h"

namespace wrenbit {
namespace {

class Link_Test : public testing::Test {
 protected:
  Test_Bench bench;
  Scripted_Board board;
  void SetUp() override {
    bench.Board = &board;
    ASSERT_EQ(MSComm1.Open(), Port_Fault::None);
  }
  // Commands of four bytes, without an answer.
  double Seconds_For(int commands) {
    return bench.Seconds_Of([=] {
      for (int i = 0; i < commands; ++i) Link_WritePortB(0x40);
    });
  }
};

TEST_F(Link_Test, RepliesAreJudgedByTheirFirstByteAndAPortReadAllowsJustOne) {
  const struct {
    std::function<int()> Run;
    std::size_t CommandLength;
    Bytes Says;
    int Result, Error;
  } cases[] = {{Link_ReadByte24, 1, {}, 0, 1},         {Link_ReadByte24, 1, {0x5A, 0xFF}, 0x5A, 0},
               {Link_ReadBit, 1, {2}, 0, 0},           {Link_ReadBit, 1, {255}, 0, 0},
               {Link_ReadBit, 1, {1, 0}, 1, 0},        {Link_ReadPortA, 3, {0x46}, 0x46, 0},
               {Link_ReadPortA, 3, {0x46, 0x46}, 0, 1}};
  // The whole reply is there when the command looks.
  bench.On_Yield = [&] { bench.Pass(0.01); };
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::PrintToString(c.Says));
    LinkError = 0;
    board.Replies = {{c.CommandLength, c.Says}};
    EXPECT_EQ(c.Run(), c.Result);
    EXPECT_EQ(LinkError, c.Error);
  }
}

TEST_F(Link_Test, AnotherEventNeitherEndsNorLengthensTheWait) {
  bench.On_Yield = [&] { bench.Leave_In_Buffer(7), MSComm1.Clear_InBuffer(); };
  EXPECT_NEAR(bench.Seconds_Of([] { EXPECT_EQ(Link_ReadByte24(), 0); }), 1.0, 0.01);
}

// The wire's own share of a reply's second must stay small, whatever the system swallows at once.
TEST_F(Link_Test, WhatIsSentRunsAtMost512BytesAheadOfTheWireOrOfWhatWasSeenOfIt) {
  const double wire = 10.0 / 9600;
  // Seconds for 18 bytes, 0 when nothing was seen, and those that a byte then counts.
  for (const auto& [seen, byte_time] :
       {std::pair{0.0018, 0.0001}, {0.0, wire}, {18 * wire, wire}, {0.035, wire}}) {
    SCOPED_TRACE(seen);
    MSComm1.Open();
    if (seen > 0) MSComm1.Learn_Pace(18, seen);
    EXPECT_NEAR(Seconds_For(128), 0, 1e-4) << "512 bytes wait for nothing";
    EXPECT_NEAR(Seconds_For(872), (4000 - 512) * byte_time, 1e-3);
  }
}

TEST_F(Link_Test, ALateByteThatComesWhileTheWireCatchesUpIsNoReply) {
  Seconds_For(128);
  bool late = false;
  bench.On_Yield = [&] {
    if (!std::exchange(late, true)) bench.Leave_In_Buffer(0x55);
  };
  Link_ReadPortB();
  EXPECT_TRUE(late);
  EXPECT_EQ(LinkError, 1);
}

}  // namespace
}  // namespace wrenbit
