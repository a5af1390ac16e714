// The firmware's commands, the pins behind them, and the lines of the socket.
#include "programmer_board.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "test_pc.h"

namespace {

using board::Line;

std::string Text(const Bytes& bytes) { return {bytes.begin(), bytes.end()}; }

TEST(Programmer_Board, Says_Its_Version_And_Has_Accelerators_From_5_0_On) {
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
    const std::string said = Text(pc.Say("?"));
    ASSERT_EQ(said.size(), 17u);
    EXPECT_EQ(said.substr(0, 6), "TOLVEX");
    EXPECT_EQ(said.substr(11), version.Said + std::string("\r\n"));
    EXPECT_EQ(pc.Say("3").size(), version.Accelerators ? 1u : 0u) << version.Version;
  }
}

// Sits in the socket, writes down how the lines change, and drives one of them when a clock rises.
class Probe : public board::Chip {
 public:
  Probe(Line clock, Line data, Line driven, unsigned bits)
      : Clock(clock), Data(data), Driven(driven), Bits(bits) {}

  void Sense(const board::Levels& levels, double) override {
    if (levels[Clock] && !High) {
      Out = Bits >> 7 & 1 ? board::Drive::kReleased : board::Drive::kLow;
      Bits <<= 1;
    }
    High = levels[Clock];
    Trace += levels[Clock] ? (levels[Data] ? "H" : "h") : (levels[Data] ? "L" : "l");
  }
  board::Drive Drives_Line(Line line, double) const override {
    return line == Driven ? Out : board::Drive::kReleased;
  }

  std::string Trace;  // One letter a change: H or L for the clock, upper case for high data.

 private:
  Line Clock, Data, Driven;
  unsigned Bits;
  bool High = false;
  board::Drive Out = board::Drive::kReleased;
};

TEST(Accelerators, Move_The_Two_Wire_Bus_As_The_Port_Commands_Do) {
  auto run = [](Route route, int what) {
    board::Programmer_Board programmer("5.00");
    Test_Pc pc(programmer, route);
    EXPECT_TRUE(pc.Power_On() && pc.Start());
    auto probe = std::make_unique<Probe>(Line::kScl, Line::kSda, Line::kDo, ~0u);
    const Probe& seen = *probe;
    programmer.Insert(std::move(probe));
    switch (what) {
      case 0:
        pc.Send_Bit(false);
        break;
      case 1:
        pc.Send_Bit(true);
        break;
      case 2:
        pc.Send(0xA5);
        break;
      case 3:
        pc.Read(true);
        break;
    }
    const std::string trace = seen.Trace;
    EXPECT_EQ(programmer.Direction('a') & 6, 0) << "both lines are handed back as outputs";
    EXPECT_TRUE(pc.Stop());
    return trace;
  };
  for (int what = 0; what < 4; ++what)
    EXPECT_EQ(run(Route::kAccelerators, what), run(Route::kPorts, what)) << what;
  EXPECT_EQ(run(Route::kAccelerators, 1), "lLHL");
}

TEST(Accelerators, Clock_Bit_Fields_And_Bytes_On_The_Three_Wire_Bus) {
  board::Programmer_Board programmer("5.00");
  Test_Pc pc(programmer);
  pc.Say("mwb", {0x40});
  pc.Say("mtb", {0xA7});
  auto probe = std::make_unique<Probe>(Line::kSk, Line::kDi, Line::kDo, 0xB4u);
  Probe& chip = *probe;
  programmer.Insert(std::move(probe));
  EXPECT_EQ(pc.Say("8"), Bytes{0xB4});
  EXPECT_EQ(pc.Pins("b", 0x58), 0x40);

  chip.Trace.clear();
  EXPECT_EQ(pc.Say("0", {3, 0xFF, 0x06}).size(), 1u);
  EXPECT_EQ(chip.Trace.substr(0, 7), "LHLHLlh");
  chip.Trace.clear();
  EXPECT_EQ(pc.Say("0", {10, 0x02, 0x00}).size(), 1u);
  EXPECT_EQ(std::ranges::count(chip.Trace, 'H'), 1);
  EXPECT_EQ(std::ranges::count(chip.Trace, 'h'), 9);
}

}  // namespace
