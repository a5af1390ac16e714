// The operations of the link: what goes out, what is taken for the reply, and what the wait costs.
#include "link.h"

#include <gtest/gtest.h>

#include <functional>
#include <utility>

#include "state.h"
#include "test_bench.h"

namespace wrenbit {
namespace {

struct Link_Test : testing::Test {
  Test_Bench bench;
  Scripted_Board board;
  void SetUp() override {
    bench.Board = &board;
    ASSERT_EQ(MSComm1.Open(), Port_Fault::None);
  }
};

struct Operation {
  const char* Name;
  std::function<int()> Run;  // Gives the result, or -1 for an operation without one.
  Bytes Sends;
  bool HasReply;
};

template <class Routine>
std::function<int()> No_Result(Routine routine) {
  return [routine] {
    routine();
    return -1;
  };
}

const Operation kOperations[] = {
    {"SendBit1", No_Result(Link_SendBit1), {'1'}, false},
    {"SendBit0", No_Result(Link_SendBit0), {'2'}, false},
    {"ReadBit", Link_ReadBit, {'3'}, true},
    {"SendByte24", No_Result([] { Link_SendByte24(0x0D); }), {'9', 0x0D}, true},
    {"ReadByte24", Link_ReadByte24, {'7'}, true},
    {"ReadByte93", Link_ReadByte93, {'8'}, true},
    {"SendBits93", No_Result([] { Link_SendBits93(3, 0, 6); }), {'0', 3, 0, 6}, true},
    {"WritePortA", No_Result([] { Link_WritePortA(6); }), {'m', 'w', 'a', 6}, false},
    {"WritePortB", No_Result([] { Link_WritePortB(0); }), {'m', 'w', 'b', 0}, false},
    {"WritePortC", No_Result([] { Link_WritePortC(0x80); }), {'m', 'w', 'c', 0x80}, false},
    {"SetDirA", No_Result([] { Link_SetDirA(0xF8); }), {'m', 't', 'a', 0xF8}, false},
    {"SetDirB", No_Result([] { Link_SetDirB(0x0A); }), {'m', 't', 'b', 0x0A}, false},
    {"SetDirC", No_Result([] { Link_SetDirC(0xFF); }), {'m', 't', 'c', 0xFF}, false},
    {"ReadPortA", Link_ReadPortA, {'m', 'r', 'a'}, true},
    {"ReadPortB", Link_ReadPortB, {'m', 'r', 'b'}, true},
    {"ReadPortC", Link_ReadPortC, {'m', 'r', 'c'}, true},
};

TEST_F(Link_Test, EveryOperationIsOneWriteOfItsOwnBytesAndWaitsOnlyForAReply) {
  for (const Operation& op : kOperations) {
    SCOPED_TRACE(op.Name);
    bench.Forget_Traffic();
    board.Replies.clear();
    if (op.HasReply) board.Replies = {{op.Sends.size(), {1}}};
    LinkError = 1;  // Stops no operation.
    const int result = op.Run();
    EXPECT_EQ(bench.Commands, std::vector<Bytes>{op.Sends});
    EXPECT_EQ(bench.Waits, op.HasReply ? 1U : 0U);
    if (op.HasReply && result >= 0) {
      EXPECT_EQ(result, 1);
    }
  }
}

TEST_F(Link_Test, SilenceCostsOneSecondAndSetsTheFlag) {
  for (const Operation& op : kOperations) {
    if (!op.HasReply) continue;
    SCOPED_TRACE(op.Name);
    LinkError = 0;
    const double before = bench.Now();
    EXPECT_LE(op.Run(), 0);
    EXPECT_EQ(LinkError, 1);
    EXPECT_NEAR(bench.Now() - before, 1.0, 0.01);
  }
}

struct Reply_Case {
  const char* Name;
  std::int32_t (*Run)();
  std::size_t CommandLength;
  Bytes Says;
  int Result;
  int Error;
};
std::int32_t Read_A() { return Link_ReadPortA(); }
std::int32_t Read_Byte() { return Link_ReadByte24(); }

TEST_F(Link_Test, RepliesAreJudgedByTheirFirstByteAndAPortReadAllowsJustOne) {
  const Reply_Case cases[] = {
      {"one is high", Link_ReadBit, 1, {1}, 1, 0},
      {"two is low", Link_ReadBit, 1, {2}, 0, 0},
      {"255 is low", Link_ReadBit, 1, {255}, 0, 0},
      {"first of two bits", Link_ReadBit, 1, {1, 0}, 1, 0},
      {"first of two bytes", Read_Byte, 1, {0x5A, 0xFF}, 0x5A, 0},
      {"pins", Read_A, 3, {0x46}, 0x46, 0},
      {"two bytes of pins", Read_A, 3, {0x46, 0x46}, 0, 1},
  };
  for (const Reply_Case& c : cases) {
    SCOPED_TRACE(c.Name);
    LinkError = 0;
    board.Replies = {{c.CommandLength, c.Says}};
    // The whole reply is there when the command looks.
    bench.On_Yield = [&] { bench.Pass(0.01); };
    EXPECT_EQ(c.Run(), c.Result);
    EXPECT_EQ(LinkError, c.Error);
    bench.On_Yield = nullptr;
    bench.Pass(0.1);
    MSComm1.Clear_InBuffer();
  }
}

TEST_F(Link_Test, WhatLiesInTheBufferIsNeverTakenForTheReply) {
  bench.Leave_In_Buffer(1);
  board.Replies = {{1, {0}}};
  EXPECT_EQ(Link_ReadBit(), 0);
  EXPECT_EQ(LinkError, 0);
}

TEST_F(Link_Test, AnotherEventNeitherEndsNorLengthensTheWait) {
  const double before = bench.Now();
  bench.On_Yield = [&] { bench.Leave_In_Buffer(7), MSComm1.Clear_InBuffer(); };
  EXPECT_EQ(Link_ReadByte24(), 0);
  EXPECT_NEAR(bench.Now() - before, 1.0, 0.01);
}

// The wire's own share of a reply's second must stay small, whatever the system swallows at once.
TEST_F(Link_Test, WhatIsSentRunsAtMost512BytesAheadOfTheWireOrOfWhatWasSeenOfIt) {
  const struct {
    const char* Name;
    double Seen;  // Seconds for 18 bytes; 0 = nothing seen.
    double ByteTime;
  } cases[] = {{"a virtual port", 0.0018, 0.0001},
               {"no word of it", 0, 10.0 / 9600},
               {"a wire", 18 * 10.0 / 9600, 10.0 / 9600},
               {"an adapter that bundles", 0.035, 10.0 / 9600}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.Name);
    MSComm1.Open();
    if (c.Seen > 0) MSComm1.Learn_Pace(18, c.Seen);
    const double before = bench.Now();
    for (int i = 0; i < 128; ++i) Link_WritePortB(0x40);
    EXPECT_NEAR(bench.Now(), before, 1e-4) << "512 bytes wait for nothing";
    for (int i = 128; i < 1000; ++i) Link_WritePortB(0x40);
    EXPECT_NEAR(bench.Now() - before, (4000 - 512) * c.ByteTime, 1e-3);
  }
}

TEST_F(Link_Test, ALateByteThatComesWhileTheWireCatchesUpIsNoReply) {
  for (int i = 0; i < 128; ++i) Link_WritePortB(0x40);
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
