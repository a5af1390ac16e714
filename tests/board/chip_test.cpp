// The parts of both families, met as a PC meets them: through the board's commands, on both routes.
#include <gtest/gtest.h>

#include <algorithm>

#include "make_chip.h"
#include "programmer_board.h"
#include "test_pc.h"
#include "three_wire_chip.h"

namespace {

// A powered board with a chip in its socket.
struct Two_Wire_Bench {
  explicit Two_Wire_Bench(std::string_view name, Route route = Route::kAccelerators)
      : Part(*board::Find_Two_Wire(name)), Store(Part.Bytes), Pc(Board, route) {
    Board.Insert(board::Make_Chip(name, Store));
    EXPECT_TRUE(Pc.Power_On());
  }

  std::size_t Written() const {
    return static_cast<std::size_t>(
        std::ranges::count_if(Store.Cells(), [](auto cell) { return cell != 0xFF; }));
  }

  const board::Two_Wire_Part& Part;
  board::Cell_Store Store;
  board::Programmer_Board Board{"5.00"};
  Test_Pc Pc;
};

std::vector<std::string> Names() {
  std::vector<std::string> names;
  for (const auto& part : board::Two_Wire_Parts()) names.emplace_back(part.Name);
  return names;
}

class Every_Part : public testing::TestWithParam<std::string> {
 protected:
  Two_Wire_Bench On{GetParam()};
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
    Two_Wire_Bench on(wait.Name);
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
    Two_Wire_Bench on("24C02", route);
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
    Two_Wire_Bench on(name);
    for (std::size_t i = 0; i < 16; ++i) on.Store.Write(i, static_cast<std::uint8_t>(i));
    EXPECT_EQ(on.Pc.Read_From(on.Part, 5, 1), Bytes{5}) << name;
    EXPECT_EQ(on.Pc.Read_On(2), (Bytes{6, 7})) << name;
    ASSERT_TRUE(on.Pc.Write(on.Part, 5, {0x55})) << name;
    EXPECT_EQ(on.Pc.Read_On(1), Bytes{static_cast<std::uint8_t>(behind_write)}) << name;
  }
}

TEST(Two_Wire_Chip, Lets_Go_Of_The_Data_Line_When_The_Master_Ends_The_Read) {
  Two_Wire_Bench on("24C02");
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
  Two_Wire_Bench on("24C02");
  ASSERT_TRUE(on.Pc.Address(on.Part, 0) && on.Pc.Send(0x11));
  ASSERT_TRUE(on.Pc.Power_Off() && on.Pc.Power_On() && on.Pc.Lines(2) && on.Pc.Stop());
  EXPECT_EQ(on.Written(), 0u);

  ASSERT_TRUE(on.Pc.Start());
  on.Pc.Say("9", {0xA0});
  EXPECT_FALSE(on.Pc.Lines(4)) << "the chip acknowledges";
  EXPECT_TRUE(on.Pc.Power_Off()) << "and lets go without supply";
}

TEST(Two_Wire_Chip, Loses_With_The_Supply_The_Cells_It_Was_Writing) {
  for (const int idle : {4, 6}) {  // Bytes of 1.04 ms, behind the 4 that the supply takes: a cycle is 10 ms.
    Two_Wire_Bench on("AT24C02");
    on.Store.Write(3, 0x11);
    ASSERT_TRUE(on.Pc.Address(on.Part, 3) && on.Pc.Send(0x77));
    on.Pc.Say("mwa", {2});
    on.Pc.Say("mwa", {6});
    on.Pc.Say(std::string(static_cast<std::size_t>(idle), 'x'));
    on.Pc.Say("mwb", {0});
    EXPECT_EQ(on.Store.Cells()[3], idle == 4 ? 0xFF : 0x77) << idle;
  }
}

// --- Three-wire parts.

struct Three_Wire_Bench {
  explicit Three_Wire_Bench(const board::Three_Wire_Part& part, Route route = Route::kAccelerators)
      : Part(part), Store(Part.Bytes), Pc(Board, route) {
    Board.Insert(std::make_unique<board::Three_Wire_Chip>(Part, Store));
    for (std::size_t i = 0; i < Part.Bytes; ++i) Store.Write(i, static_cast<std::uint8_t>(i * 7 + i / 256));
    Pc.Power_On_93();
  }

  void Frame(const std::string& bits) {
    Pc.Select(true);
    Pc.Send_93(bits);
    Pc.Select(false);
  }
  // The part's address bits, highest first.
  std::string Field(std::size_t value) const { return Test_Pc::Binary(value, Part.AddressBits); }
  // EWEN 3, ERAL 2, WRAL 1, EWDS 0, with ones in the bits that any value may have.
  std::string Extended(std::size_t code) const {
    return "100" + Field((code << (Part.AddressBits - 2)) | ((1U << (Part.AddressBits - 2)) - 1));
  }
  // Longer than any write cycle.
  void Rest() { Pc.Say(std::string(20, 'x')); }

  const board::Three_Wire_Part& Part;
  board::Cell_Store Store;
  board::Programmer_Board Board{"5.00"};
  Test_Pc Pc;
};

TEST(Three_Wire_Chip, Obeys_Each_Instruction_Of_Its_Data_Sheet) {
  for (const auto& part : board::Three_Wire_Parts())
    for (const Route route : {Route::kPorts, Route::kAccelerators}) {
      SCOPED_TRACE(part.Name);
      Three_Wire_Bench on(part, route);
      const std::size_t at = part.Bytes - 3;
      Bytes cells(on.Store.Cells().begin(), on.Store.Cells().end());
      const auto expect = [&](const char* after) {
        EXPECT_EQ(Bytes(on.Store.Cells().begin(), on.Store.Cells().end()), cells) << after;
        on.Rest();
      };

      on.Frame("101" + on.Field(at) + "01011010");
      on.Frame("111" + on.Field(at));
      on.Frame(on.Extended(2));
      expect("no write enable");

      on.Frame(on.Extended(3));
      on.Frame("00101" + on.Field(at) + "01011010");
      cells[at] = 0x5A;
      expect("WRITE, behind two zeros");
      on.Frame("111" + on.Field(at + 1));
      cells[at + 1] = 0xFF;
      expect("ERASE");

      on.Pc.Select(true);
      on.Pc.Send_93("110" + on.Field(at));
      EXPECT_EQ(on.Pc.Pins("b", 4), 0) << "the 0 before the data";
      EXPECT_EQ(on.Pc.Read_93(), 0x5A);
      EXPECT_EQ(on.Pc.Read_93(), 0xFF);
      EXPECT_EQ(on.Pc.Read_93(), cells[part.Bytes - 1]);
      EXPECT_EQ(on.Pc.Read_93(), cells[0]) << "the last cell is followed by the first";
      on.Pc.Select(false);
      EXPECT_EQ(on.Pc.Pins("b", 4), 4) << "DO is let go";

      on.Frame(on.Extended(1) + "11000011");
      cells.assign(part.Bytes, 0xC3);
      expect("WRAL");
      on.Frame(on.Extended(2));
      cells.assign(part.Bytes, 0xFF);
      expect("ERAL");
      on.Frame(on.Extended(0));
      on.Frame("101" + on.Field(at) + "01011010");
      expect("EWDS");
    }
}

TEST(Three_Wire_Chip, Does_Nothing_Unless_The_Frame_Is_Whole) {
  Three_Wire_Bench on(*board::Find_Three_Wire("AT93C46"));
  const Bytes cells(on.Store.Cells().begin(), on.Store.Cells().end());
  on.Frame(on.Extended(3));
  const std::string write = "101" + on.Field(5);
  for (const std::string& frame :
       {write, write + "0101101", write + "010110100", "111" + on.Field(5) + "0", on.Extended(2) + "1",
        on.Extended(1) + "010110100", on.Extended(0) + "1", std::string("10")}) {
    on.Frame(frame);
    on.Rest();
    EXPECT_EQ(Bytes(on.Store.Cells().begin(), on.Store.Cells().end()), cells) << frame;
  }
  // Data that change with the clock have not been set up for it.
  on.Pc.Select(true);
  on.Pc.Say("mwb", {0x40});
  on.Pc.Say("mwb", {0x58});
  on.Pc.Say("mwb", {0x40});
  on.Pc.Send_93(write.substr(1) + "01011010");
  on.Pc.Select(false);
  EXPECT_EQ(Bytes(on.Store.Cells().begin(), on.Store.Cells().end()), cells);

  on.Frame(write + "01011010");
  EXPECT_EQ(on.Store.Cells()[5], 0x5A) << "behind all that, and still enabled";
}

TEST(Three_Wire_Chip, Is_Deaf_Until_Its_Write_Cycle_Is_Over_And_Tells_It_On_DO) {
  board::Three_Wire_Part slow = *board::Find_Three_Wire("AT93C46");
  slow.WriteCycle = 0.020;
  const struct {
    int Idle;   // Bytes on the wire, 1.04 ms each, from the fall of CS on; DO is asked for 3 bytes later.
    int Ready;  // DO then, with CS high.
    bool Hears;
  } cases[] = {{3, 0, false}, {4, 0, true}, {9, 4, true}};
  for (const auto& wait : cases) {
    SCOPED_TRACE(wait.Idle);
    Three_Wire_Bench on(slow);
    on.Frame(on.Extended(3));
    on.Frame("101" + on.Field(5) + "00110011");
    EXPECT_EQ(on.Pc.Pins("b", 4), 4) << "DO is let go while CS is low";
    on.Pc.Say(std::string(static_cast<std::size_t>(wait.Idle), 'x'));
    on.Pc.Select(true);
    EXPECT_EQ(on.Pc.Pins("b", 4), wait.Ready);
    on.Pc.Send_93("101" + on.Field(6) + "01000100");
    on.Pc.Select(false);
    EXPECT_EQ(on.Store.Cells()[5], 0x33);
    EXPECT_EQ(on.Store.Cells()[6] == 0x44, wait.Hears);
  }
}

TEST(Three_Wire_Chip, Loses_With_The_Supply_Its_Write_Enable_And_The_Cells_It_Was_Writing) {
  board::Three_Wire_Part slow = *board::Find_Three_Wire("AT93C46");
  slow.WriteCycle = 0.100;
  for (const bool pulled : {false, true}) {
    Three_Wire_Bench on(slow);
    on.Frame(on.Extended(3));
    on.Frame(on.Extended(1) + "00110011");
    EXPECT_EQ(on.Store.Cells()[127], 0x33);
    if (pulled)
      on.Board.Insert(nullptr);
    else
      on.Pc.Power_Off();
    EXPECT_EQ(Bytes(on.Store.Cells().begin(), on.Store.Cells().end()), Bytes(128, 0xFF))
        << "neither old nor new";
    if (pulled) continue;

    on.Pc.Power_On_93();
    on.Frame("101" + on.Field(6) + "00110011");
    on.Pc.Select(true);
    EXPECT_EQ(on.Pc.Pins("b", 4), 4) << "no cycle goes on";
    EXPECT_EQ(on.Store.Cells()[6], 0xFF);
  }
}

}  // namespace
