// The two-wire parts, met as a PC meets them: through the board's commands, on both routes.
#include <gtest/gtest.h>

#include <algorithm>

#include "make_chip.h"
#include "programmer_board.h"
#include "test_pc.h"

namespace {

// A powered board with a chip in its socket.
struct Bench {
  explicit Bench(std::string_view name, Route route = Route::kAccelerators)
      : Part(*board::Find_Chip(name)), Store(Part.Bytes), Pc(Board, route) {
    Board.Insert(board::Make_Chip(name, Store));
    EXPECT_TRUE(Pc.Power_On());
  }

  std::size_t Written() const {
    return static_cast<std::size_t>(
        std::ranges::count_if(Store.Cells(), [](auto cell) { return cell != 0xFF; }));
  }

  const board::Chip_Geometry& Part;
  board::Cell_Store Store;
  board::Programmer_Board Board{"5.00"};
  Test_Pc Pc;
};

std::vector<std::string> Names() {
  std::vector<std::string> names;
  for (const auto& part : board::Two_Wire_Chips()) names.emplace_back(part.Name);
  return names;
}

class Every_Part : public testing::TestWithParam<std::string> {
 protected:
  Bench On{GetParam()};
  std::size_t LastPage = On.Part.Bytes - On.Part.Page;
};

INSTANTIATE_TEST_SUITE_P(Parts, Every_Part, testing::ValuesIn(Names()),
                         [](const auto& about) { return about.param; });

TEST_P(Every_Part, Wraps_A_Long_Write_To_The_Start_Of_The_Page) {
  Bytes bytes(On.Part.Page, 0x11);
  bytes.push_back(0x22);
  ASSERT_TRUE(On.Pc.Write(On.Part, LastPage, bytes));
  EXPECT_EQ(On.Store.Cells()[LastPage], 0x22);
  EXPECT_EQ(On.Written(), On.Part.Page);
}

TEST_P(Every_Part, Rolls_A_Sequential_Read_Over_To_Address_0) {
  On.Store.Write(On.Part.Bytes - 1, 0x0F);
  On.Store.Write(0, 0xC3);
  EXPECT_EQ(On.Pc.Read_From(On.Part, On.Part.Bytes - 1, 2), (Bytes{0x0F, 0xC3}));
}

TEST_P(Every_Part, Answers_To_No_Control_Byte_But_Its_Own) {
  for (std::size_t code = 0; code < 8; ++code) {
    const bool within =
        code * (On.Part.Bytes >= 4096 ? 65536 : 256) < On.Part.Bytes || On.Part.Name == "24C00";
    ASSERT_TRUE(On.Pc.Start());
    EXPECT_EQ(On.Pc.Send(0xA0 | static_cast<int>(code) << 1), within) << "code " << code;
    ASSERT_TRUE(On.Pc.Stop());
  }
  ASSERT_TRUE(On.Pc.Start());
  EXPECT_FALSE(On.Pc.Send(0xB0));
}

TEST(Two_Wire_Chip, Is_Deaf_To_A_Start_Condition_Until_Its_Write_Cycle_Is_Over) {
  struct {
    const char* Name;
    int Idle;  // Bytes on the wire, 1.04 ms each, between the stop condition and the 4 bytes of the start.
    bool Hears;
  } const cases[] = {{"24C00", 0, true},    {"24C02", 0, false},  {"24C02", 1, true},
                     {"AT24C02", 5, false}, {"AT24C02", 6, true}, {"AT24C02A", 1, true}};
  for (const auto& wait : cases) {
    Bench on(wait.Name);
    ASSERT_TRUE(on.Pc.Address(on.Part, 3) && on.Pc.Send(0x77));
    on.Pc.Say("mwa", {2});
    on.Pc.Say("mwa", {6});
    on.Pc.Say(std::string(static_cast<std::size_t>(wait.Idle), 'x'));
    on.Pc.Say("mwa", {2});
    on.Pc.Say("mwa", {0});
    EXPECT_EQ(on.Pc.Send(0xA0), wait.Hears) << wait.Name << " after " << wait.Idle;
    ASSERT_TRUE(on.Pc.Stop());
    EXPECT_EQ(on.Pc.Read_From(on.Part, 3, 1), Bytes{0x77}) << wait.Name;
  }
}

TEST(Two_Wire_Chip, Writes_Nothing_Unless_A_Stop_Follows_Whole_Bytes) {
  for (const Route route : {Route::kPorts, Route::kAccelerators}) {
    Bench on("24C02", route);
    ASSERT_TRUE(on.Pc.Write(on.Part, 0, {}));

    ASSERT_TRUE(on.Pc.Address(on.Part, 0) && on.Pc.Send(0x11));
    for (int bit = 0; bit < 7; ++bit) on.Pc.Send_Bit(false);
    ASSERT_TRUE(on.Pc.Stop());

    ASSERT_TRUE(on.Pc.Address(on.Part, 0) && on.Pc.Send(0x11) && on.Pc.Start() && on.Pc.Stop());
    EXPECT_EQ(on.Written(), 0u);
  }
}

TEST(Two_Wire_Chip, Counts_On_Behind_A_Read_And_A_Write_Except_The_24C00_Behind_A_Write) {
  for (const auto& [name, behind_write] : {std::pair{"24C02", 0x06}, std::pair{"24C00", 0x55}}) {
    Bench on(name);
    for (std::size_t i = 0; i < 16; ++i) on.Store.Write(i, static_cast<std::uint8_t>(i));
    EXPECT_EQ(on.Pc.Read_From(on.Part, 5, 1), Bytes{5}) << name;
    EXPECT_EQ(on.Pc.Read_On(2), (Bytes{6, 7})) << name;
    ASSERT_TRUE(on.Pc.Write(on.Part, 5, {0x55})) << name;
    EXPECT_EQ(on.Pc.Read_On(1), Bytes{static_cast<std::uint8_t>(behind_write)}) << name;
  }
}

TEST(Two_Wire_Chip, Lets_Go_Of_The_Data_Line_When_The_Master_Ends_The_Read) {
  Bench on("24C02");
  on.Store.Write(0, 0);
  on.Store.Write(1, 0);
  ASSERT_TRUE(on.Pc.Address(on.Part, 0) && on.Pc.Start() && on.Pc.Send(0xA1));
  on.Pc.Read(false);
  EXPECT_FALSE(on.Pc.Lines(4)) << "the chip holds the line low";
  for (int bit = 0; bit < 8; ++bit) on.Pc.Read_Bit();
  on.Pc.Send_Bit(true);
  EXPECT_TRUE(on.Pc.Lines(4));
}

TEST(Two_Wire_Chip, Forgets_A_Frame_When_The_Supply_Goes) {
  Bench on("24C02");
  ASSERT_TRUE(on.Pc.Address(on.Part, 0) && on.Pc.Send(0x11));
  ASSERT_TRUE(on.Pc.Power_Off() && on.Pc.Power_On() && on.Pc.Lines(2) && on.Pc.Stop());
  EXPECT_EQ(on.Written(), 0u);

  ASSERT_TRUE(on.Pc.Start());
  on.Pc.Say("9", {0xA0});
  EXPECT_FALSE(on.Pc.Lines(4)) << "the chip acknowledges";
  EXPECT_TRUE(on.Pc.Power_Off()) << "and lets go without supply";
}

}  // namespace
