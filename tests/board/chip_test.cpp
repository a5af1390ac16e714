// The parts of both families, met as a PC meets them: through the board's commands.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "board/cell_store.h"
#include "board/chip_socket.h"
#include "board/make_chip.h"
#include "board/programmer_board.h"
#include "board/three_wire_chip.h"
#include "board/three_wire_parts.h"
#include "board/two_wire_parts.h"
#include "tests/board/test_pc.h"

namespace {

struct With_Board {
  board::Programmer_Board Board{"5.00"};
};

// A powered board with a chip in its socket, and the master of its bus.
struct Two_Wire_Bench : With_Board, Test_Pc {
  explicit Two_Wire_Bench(std::string_view name)
      : Test_Pc(Board), Part(*board::Find_Two_Wire(name)), Store(Part.Bytes) {
    Board.Insert(board::Make_Chip(name, Store));
    EXPECT_TRUE(Power_On());
  }

  bool Power_On() {
    Set_Ports(6, 0x40, 0xF8, 0xA3, 0x77);
    return Pins("a", 6) == 6 && Pins("b", 0x5C) == 0x40 && Pins("c", 0x88) == 0x80;
  }
  bool Start() { return Lines(6) && Lines(2) && Lines(0); }
  bool Stop() { return Lines(2) && Lines(6); }
  // Tells whether the chip acknowledged.
  bool Send(int byte) {
    Say("9", {static_cast<std::uint8_t>(byte)});
    return Say("3") == Bytes{0};
  }

  // Start condition, control byte and address bytes. From 4 KiB on, parts take two address bytes.
  bool Address(std::size_t address) {
    const bool two = Part.Bytes >= 4096;
    const int at = static_cast<int>(address);
    return Start() && Send(0xA0 | at >> (two ? 16 : 8) << 1) && (!two || Send(at >> 8 & 0xFF)) &&
           Send(at & 0xFF);
  }
  // One write frame, of any length, without its stop.
  bool Begin_Write(std::size_t address, const Bytes& bytes) {
    return Address(address) && std::ranges::all_of(bytes, [this](auto byte) { return Send(byte); });
  }
  bool Write(std::size_t address, const Bytes& bytes) { return Begin_Write(address, bytes) && Stop(); }
  // The stop condition without read-backs, so that it is known how long ago it was.
  void Write_And_Idle(std::size_t address, int idle) {
    EXPECT_TRUE(Begin_Write(address, {0x77}));
    Say("mwa", {2});
    Say("mwa", {6});
    Idle(idle);
  }
  // From where the chip's counter stands. Empty when the chip doesn't answer.
  Bytes Read_On(std::size_t count) {
    Bytes bytes;
    if (!Start() || !Send(0xA1)) return bytes;
    while (bytes.size() < count) {
      bytes.push_back(Say("7").at(0));
      Say(bytes.size() == count ? "1" : "2");
    }
    return Stop() ? bytes : Bytes{};
  }
  Bytes Read_From(std::size_t address, std::size_t count) {
    return Address(address) ? Read_On(count) : Bytes{};
  }

  std::size_t Written() const {
    return Part.Bytes - static_cast<std::size_t>(std::ranges::count(Store.Cells(), 0xFF));
  }

  const board::Two_Wire_Part& Part;
  board::Cell_Store Store;
};

TEST(Two_Wire_Chip, Keeps_To_Its_Page_Its_Size_And_Its_Control_Byte) {
  for (const auto& part : board::Two_Wire_Parts()) {
    SCOPED_TRACE(part.Name);
    Two_Wire_Bench on(part.Name);
    const std::size_t last_page = part.Bytes - part.Page;
    Bytes bytes(part.Page, 0x11);
    bytes.push_back(0x22);
    ASSERT_TRUE(on.Write(last_page, bytes));
    EXPECT_EQ(on.Store.Cells()[last_page], 0x22) << "a long write wraps to the start of the page";
    EXPECT_EQ(on.Written(), part.Page);

    on.Store.Write(part.Bytes - 1, 0x0F);
    on.Store.Write(part.Name == "24LC1026" ? 0x10000 : 0, 0xC3);
    EXPECT_EQ(on.Read_From(part.Bytes - 1, 2), (Bytes{0x0F, 0xC3})) << "a read rolls over";

    for (std::size_t code = 0; code < 8; ++code) {
      const bool within = code * (part.Bytes >= 4096 ? 65536 : 256) < part.Bytes || part.Name == "24C00";
      ASSERT_TRUE(on.Start());
      EXPECT_EQ(on.Send(0xA0 | static_cast<int>(code) << 1), within) << "code " << code;
      ASSERT_TRUE(on.Stop());
    }
    ASSERT_TRUE(on.Start());
    EXPECT_FALSE(on.Send(0xB0));
  }
}

TEST(Two_Wire_Chip, Is_Deaf_To_A_Start_Condition_Until_Its_Write_Cycle_Is_Over) {
  struct {
    const char* Name;
    int Idle;  // Bytes between the stop condition and the 4 of the start.
    bool Hears;
  } const cases[] = {{"24C00", 0, true},    {"24C02", 0, false},  {"24C02", 1, true},
                     {"AT24C02", 5, false}, {"AT24C02", 6, true}, {"AT24C02A", 1, true}};
  for (const auto& wait : cases) {
    SCOPED_TRACE(std::string(wait.Name) + " after " + std::to_string(wait.Idle));
    Two_Wire_Bench on(wait.Name);
    on.Write_And_Idle(3, wait.Idle);
    on.Say("mwa", {2});
    on.Say("mwa", {0});
    EXPECT_EQ(on.Send(0xA0), wait.Hears);
    ASSERT_TRUE(on.Stop());
    EXPECT_EQ(on.Read_From(3, 1), Bytes{0x77});
  }
}

TEST(Two_Wire_Chip, Loses_With_The_Supply_The_Cells_It_Was_Writing) {
  for (const int idle : {4, 6}) {  // Before the 4 bytes that the supply takes: a cycle is 10 ms.
    Two_Wire_Bench on("AT24C02");
    on.Store.Write(3, 0x11);
    on.Write_And_Idle(3, idle);
    on.Say("mwb", {0});
    EXPECT_EQ(on.Store.Cells()[3], idle == 4 ? 0xFF : 0x77) << idle;
  }
}

TEST(Two_Wire_Chip, Writes_Nothing_Unless_A_Stop_Follows_Whole_Bytes) {
  Two_Wire_Bench on("24C02");
  ASSERT_TRUE(on.Write(0, {}));
  ASSERT_TRUE(on.Begin_Write(0, {0x11}));
  for (int bit = 0; bit < 7; ++bit) on.Say("2");
  ASSERT_TRUE(on.Stop());
  ASSERT_TRUE(on.Begin_Write(0, {0x11}) && on.Start() && on.Stop());
  ASSERT_TRUE(on.Begin_Write(0, {0x11}) && on.Power_Off() && on.Power_On() && on.Lines(2) && on.Stop());
  EXPECT_EQ(on.Written(), 0u);
}

TEST(Two_Wire_Chip, Counts_On_Behind_A_Read_And_A_Write_Except_The_24C00_Behind_A_Write) {
  for (const auto& [name, behind_write] : {std::pair{"24C02", 0x06}, std::pair{"24C00", 0x55}}) {
    Two_Wire_Bench on(name);
    for (std::size_t i = 0; i < 16; ++i) on.Store.Write(i, static_cast<std::uint8_t>(i));
    EXPECT_EQ(on.Read_From(5, 1), Bytes{5}) << name;
    EXPECT_EQ(on.Read_On(2), (Bytes{6, 7})) << name;
    ASSERT_TRUE(on.Write(5, {0x55})) << name;
    EXPECT_EQ(on.Read_On(1), Bytes{static_cast<std::uint8_t>(behind_write)}) << name;
  }
}

TEST(Two_Wire_Chip, Lets_Go_Of_The_Data_Line_When_The_Supply_Goes) {
  Two_Wire_Bench on("24C02");
  ASSERT_TRUE(on.Start());
  on.Say("9", {0xA0});
  EXPECT_FALSE(on.Lines(4)) << "the chip acknowledges";
  EXPECT_TRUE(on.Power_Off());
}

// --- Three-wire parts.

struct Three_Wire_Bench : With_Board, Test_Pc {
  explicit Three_Wire_Bench(const board::Three_Wire_Part& part)
      : Test_Pc(Board), Part(part), Store(Part.Bytes) {
    Board.Insert(std::make_unique<board::Three_Wire_Chip>(Part, Store));
    for (std::size_t i = 0; i < Part.Bytes; ++i) Store.Write(i, static_cast<std::uint8_t>(i * 7 + i / 256));
    Power_On();
  }

  void Power_On() { Set_Ports(0, 0x40, 0xF9, 0xA7, 0x77); }
  void Select(bool chip) { Say("mwc", {static_cast<std::uint8_t>(chip ? 0x88 : 0x80)}); }
  // A character a bit.
  void Send(std::string_view bits) {
    for (const char bit : bits) Say("0", {1, 0, bit == '1'});
  }
  bool DO() { return Pins("b", 4) == 4; }

  Bytes Cells() const { return {Store.Cells().begin(), Store.Cells().end()}; }
  void Frame(const std::string& bits) {
    Select(true);
    Send(bits);
    Select(false);
  }
  // The part's address bits, highest first.
  std::string Field(std::size_t value) const {
    std::string text;
    for (int bit = Part.AddressBits - 1; bit >= 0; --bit) text += value >> bit & 1 ? '1' : '0';
    return text;
  }
  // EWEN 3, ERAL 2, WRAL 1, EWDS 0, with ones in the bits that any value may have.
  std::string Extended(std::size_t code) const {
    return "100" + Field((code << (Part.AddressBits - 2)) | ((1U << (Part.AddressBits - 2)) - 1));
  }

  const board::Three_Wire_Part& Part;
  board::Cell_Store Store;
};

constexpr int kRest = 20;  // Bytes. Longer than any write cycle.

TEST(Three_Wire_Chip, Obeys_Each_Instruction_Of_Its_Data_Sheet) {
  for (const auto& part : board::Three_Wire_Parts()) {
    SCOPED_TRACE(part.Name);
    Three_Wire_Bench on(part);
    const std::size_t at = part.Bytes - 3;
    Bytes cells = on.Cells();
    const auto expect = [&](const char* after) {
      EXPECT_EQ(on.Cells(), cells) << after;
      on.Idle(kRest);
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

    on.Frame("110" + on.Field(at + 1) + "00000000");  // The last that is seen of these eight bits is a 1.
    on.Select(true);
    on.Send("110" + on.Field(at));
    EXPECT_FALSE(on.DO()) << "the 0 before the data";
    for (const std::size_t i : {at, at + 1, at + 2, std::size_t{0}})
      EXPECT_EQ(on.Say("8"), Bytes{cells[i]}) << i;
    on.Select(false);
    EXPECT_TRUE(on.DO()) << "DO is let go";

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
  const Bytes cells = on.Cells();
  on.Frame(on.Extended(3));
  const std::string write = "101" + on.Field(5);
  for (const std::string& frame :
       {write, write + "0101101", write + "010110100", "111" + on.Field(5) + "0", on.Extended(2) + "1",
        on.Extended(1) + "010110100", on.Extended(0) + "1", std::string("10")}) {
    on.Frame(frame);
    on.Idle(kRest);
    EXPECT_EQ(on.Cells(), cells) << frame;
  }
  // Data that change with the clock have not been set up for it.
  on.Select(true);
  for (const std::uint8_t pins : Bytes{0x40, 0x58, 0x40}) on.Say("mwb", {pins});
  on.Send(write.substr(1) + "01011010");
  on.Select(false);
  EXPECT_EQ(on.Cells(), cells);

  on.Frame(write + "01011010");
  EXPECT_EQ(on.Store.Cells()[5], 0x5A) << "behind all that, and still enabled";
}

TEST(Three_Wire_Chip, Is_Deaf_Until_Its_Write_Cycle_Is_Over_And_Tells_It_On_DO) {
  board::Three_Wire_Part slow = *board::Find_Three_Wire("AT93C46");
  slow.WriteCycle = 0.020;
  const struct {
    int Idle;    // Bytes from the fall of CS on; DO is asked for 3 bytes later.
    bool Ready;  // DO then, with CS high.
    bool Hears;
  } cases[] = {{3, false, false}, {4, false, true}, {9, true, true}};
  for (const auto& wait : cases) {
    SCOPED_TRACE(wait.Idle);
    Three_Wire_Bench on(slow);
    on.Frame(on.Extended(3));
    on.Frame("101" + on.Field(5) + "00110011");
    EXPECT_TRUE(on.DO()) << "DO is let go while CS is low";
    on.Idle(wait.Idle);
    on.Select(true);
    EXPECT_EQ(on.DO(), wait.Ready);
    on.Send("101" + on.Field(6) + "01000100");
    on.Select(false);
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
    pulled ? on.Board.Insert(nullptr) : void(on.Power_Off());
    EXPECT_EQ(on.Cells(), Bytes(128, 0xFF)) << "neither old nor new";
    if (pulled) continue;

    on.Power_On();
    on.Frame("101" + on.Field(6) + "00110011");
    on.Select(true);
    EXPECT_TRUE(on.DO()) << "no cycle goes on";
    EXPECT_EQ(on.Store.Cells()[6], 0xFF);
  }
}

}  // namespace
