// Faults that the wrapper brings in, and the board behind it that stays sound.
#include "faulty_board.h"

#include <gtest/gtest.h>

#include "programmer_board.h"
#include "test_pc.h"

namespace {

// The pins of port C read 0x81, 0x82, 0x83 in turn.
std::vector<Bytes> Three_Reads(board::Wire_End& end) {
  Test_Pc pc(end);
  pc.Say("mtc", {0});
  std::vector<Bytes> replies;
  for (const std::uint8_t value : Bytes{0x81, 0x82, 0x83}) {
    pc.Say("mwc", {value});
    replies.push_back(pc.Say("mrc"));
  }
  return replies;
}

TEST(Faulty_Board, Spoils_The_Counted_Reply_And_No_Other) {
  struct {
    const char* Name;
    board::Faults Armed;
    std::vector<Bytes> Heard;
  } const cases[] = {
      {"sound", {}, {{0x81}, {0x82}, {0x83}}},
      {"dropped", {.DropReply = 2}, {{0x81}, {}, {0x83}}},
      {"corrupt", {.CorruptReply = 3, .CorruptMask = 0x01}, {{0x81}, {0x82}, {0x82}}},
      {"doubled", {.DoubleReply = 1}, {{0x81, 0x81}, {0x82}, {0x83}}},
      {"mute", {.MuteFrom = 2}, {{0x81}, {}, {}}},
      {"silent", {.SilentFrom = 5}, {{0x81}, {}, {}}},
      {"gone", {.GoneAt = 6}, {{0x81}, {0x82}, {}}},
  };
  board::Programmer_Board programmer("5.00");
  board::Faulty_Board faulty(programmer);
  for (const auto& fault : cases) {
    faulty.Arm(fault.Armed);
    EXPECT_EQ(Three_Reads(faulty), fault.Heard) << fault.Name;
    EXPECT_EQ(faulty.Gone(), fault.Armed.GoneAt != 0) << fault.Name;
    EXPECT_EQ(faulty.Met(), &fault != std::begin(cases)) << fault.Name;
  }
}

TEST(Faulty_Board, Holds_Back_The_Late_Reply) {
  board::Programmer_Board programmer("5.00");
  board::Faulty_Board faulty(programmer, {.LateReply = 2, .LateBy = 1.5});
  EXPECT_EQ(faulty.Receive('?').Late, 0);
  EXPECT_EQ(faulty.Receive('?').Late, 1.5);
  EXPECT_EQ(faulty.Receive('?').Late, 0);
}

}  // namespace
