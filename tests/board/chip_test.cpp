// The parts of both families, met as a PC meets them: through the board's commands.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <tuple>
#include <utility>

#include "board/make_chip.h"
#include "board/three_wire_chip.h"
#include "tests/board/test_pc.h"

namespace {

// A powered board with room for a chip in its socket.
struct Bench : Test_Pc {
  explicit Bench(std::size_t bytes) : Store(bytes) { Power_On(); }

  // Port commands, each with its operand.
  void Set(std::initializer_list<std::pair<const char*, std::uint8_t>> commands) {
    for (const auto& [word, operand] : commands) Say(word, {operand});
  }
  int Pins(const char* port, int mask) { return Say(std::string("mr") + port).at(0) & mask; }
  void Power_On() {
    Set({{"mwa", 6}, {"mwb", 0x40}, {"mwc", 0x80}, {"mta", 0xF8}, {"mtb", 0xA7}, {"mtc", 0x77}});
    EXPECT_EQ(Pins("a", 6), 6) << "nobody holds the two-wire bus";
  }
  void Power_Off() {
    Set({{"mwa", 0}, {"mwb", 0}, {"mwc", 0x80}, {"mta", 0xFF}, {"mtb", 0xFF}, {"mtc", 0x7F}});
  }
  // Lets the chip's clock go on: 1.04 ms for each byte, which is no command.
  void Idle(int bytes) { Say(std::string(static_cast<std::size_t>(bytes), 'x')); }
  Bytes Cells() const { return {Store.Cells().begin(), Store.Cells().end()}; }

  board::Cell_Store Store;
};

struct Two_Wire_Bench : Bench {
  explicit Two_Wire_Bench(std::string_view name) : Bench(board::Chip_Size(name)) {
    Board.Insert(board::Make_Chip(name, Store));
  }

  // SDA is worth 4, SCL 2. Nobody else may hold them.
  void Lines(const Bytes& levels) {
    for (const std::uint8_t level : levels) {
      Set({{"mwa", level}});
      EXPECT_EQ(Pins("a", 6), level);
    }
  }
  void Start() { Lines({6, 2, 0}); }
  void Stop() { Lines({2, 6}); }
  // Tells whether the chip acknowledged.
  bool Send(std::size_t byte) {
    Say("9", {static_cast<std::uint8_t>(byte)});
    return Say("3") == Bytes{0};
  }
  // A write frame, of any length, without its stop. From 4 KiB on, parts take two address bytes.
  void Begin_Write(std::size_t address, const Bytes& bytes) {
    const bool two = Store.Cells().size() >= 4096;
    Start();
    EXPECT_TRUE(Send(0xA0 | address >> (two ? 16 : 8) << 1));
    EXPECT_TRUE(!two || Send(address >> 8));
    EXPECT_TRUE(Send(address));
    for (const std::uint8_t byte : bytes) EXPECT_TRUE(Send(byte));
  }
  // From where the chip's counter stands.
  Bytes Read_On(std::size_t count) {
    Bytes bytes;
    Start();
    EXPECT_TRUE(Send(0xA1));
    while (bytes.size() < count) {
      bytes.push_back(Say("7").at(0));
      Say(bytes.size() == count ? "1" : "2");
    }
    Stop();
    return bytes;
  }
  Bytes Read_From(std::size_t address, std::size_t count) {
    Begin_Write(address, {});
    return Read_On(count);
  }
};

TEST(Two_Wire_Chip, Keeps_To_Its_Page_Its_Size_And_Its_Control_Byte) {
  for (const auto& part : board::Two_Wire_Parts()) {
    SCOPED_TRACE(part.Name);
    Two_Wire_Bench on(part.Name);
    const std::size_t last_page = part.Bytes - part.Page;
    Bytes cells(last_page, 0xFF), bytes(part.Page, 0x11);
    bytes.push_back(0x22);
    on.Begin_Write(last_page, bytes);
    on.Stop();
    cells.push_back(0x22);
    cells.resize(part.Bytes, 0x11);
    EXPECT_EQ(on.Cells(), cells) << "a long write wraps to the start of the page";
    EXPECT_EQ(on.Read_On(1), Bytes{cells[last_page + 1 % part.Page]}) << "behind the byte written last";

    const std::size_t around = part.Name == "24LC1026" ? 0x10000 : 0;
    on.Store.Write(part.Bytes - 1, 0x0F);
    on.Store.Write(around, 0xC3);
    on.Store.Write(around + 1, 0x3C);
    EXPECT_EQ(on.Read_From(part.Bytes - 1, 2), (Bytes{0x0F, 0xC3})) << "a read rolls over";
    EXPECT_EQ(on.Read_On(1), Bytes{0x3C}) << "and counts on for the next";

    const std::size_t reach = part.Bytes >= 4096 ? 65536 : 256;
    for (std::size_t code = 0; code <= 8; ++code) {  // The last is no code of an EEPROM any more.
      on.Start();
      const bool within = code * reach < part.Bytes || (part.Name == "24C00" && code < 8);
      EXPECT_EQ(on.Send(0xA0 + 2 * code), within) << "code " << code;
      on.Stop();
    }
  }
}

TEST(Two_Wire_Chip, Is_Deaf_And_Loses_Its_Cells_With_The_Supply_Until_Its_Write_Cycle_Is_Over) {
  // Bytes between the stop condition and the 4 that a start takes, or the end of the supply.
  const std::tuple<const char*, int, bool> cases[] = {{"24C00", 0, true},   {"24C02", 0, false},
                                                      {"24C02", 1, true},   {"AT24C02", 5, false},
                                                      {"AT24C02", 6, true}, {"AT24C02A", 1, true}};
  for (const auto& [name, idle, over] : cases)
    for (const bool start : {true, false}) {
      SCOPED_TRACE(name + std::string(start ? ", start after " : ", dead after ") + std::to_string(idle));
      Two_Wire_Bench on(name);
      on.Store.Write(3, 0x11);
      on.Begin_Write(3, {0x77});
      on.Set({{"mwa", 2}, {"mwa", 6}});  // Without read-backs, so that it is known how long ago it was.
      on.Idle(idle);
      on.Set({{start ? "mwa" : "mwb", start ? 2 : 0}});
      EXPECT_EQ(on.Cells()[3], start || over ? 0x77 : 0xFF);
      if (!start) continue;
      on.Set({{"mwa", 0}});
      EXPECT_EQ(on.Send(0xA0), over);
      on.Stop();
      EXPECT_EQ(on.Read_From(3, 1), Bytes{0x77});
    }
}

TEST(Two_Wire_Chip, Writes_Nothing_Unless_A_Stop_Follows_Whole_Bytes) {
  Two_Wire_Bench on("24C02");
  on.Begin_Write(0, {});
  on.Stop();
  on.Begin_Write(0, {0x11});
  for (int bit = 0; bit < 7; ++bit) on.Say("2");
  on.Stop();
  on.Begin_Write(0, {0x11});
  on.Start();
  on.Stop();
  on.Begin_Write(0, {0x11});
  on.Say("9", {0x22});  // The chip holds SDA for its acknowledge, until the supply goes.
  on.Power_Off();
  on.Power_On();
  on.Lines({2, 2, 6});
  EXPECT_EQ(on.Cells(), Bytes(256, 0xFF));
}

struct Three_Wire_Bench : Bench {
  explicit Three_Wire_Bench(const board::Three_Wire_Part& part) : Bench(part.Bytes), Part(part) {
    Board.Insert(std::make_unique<board::Three_Wire_Chip>(Part, Store));
    for (std::size_t i = 0; i < Part.Bytes; ++i) Store.Write(i, static_cast<std::uint8_t>(i * 7 + i / 256));
  }

  void Select() { Set({{"mwc", 0x88}}); }
  void Deselect() { Set({{"mwc", 0x80}}); }
  // A character a bit.
  void Send(std::string_view bits) {
    for (const char bit : bits) Say("0", {1, 0, bit == '1'});
  }
  bool DO() { return Pins("b", 4) == 4; }

  // With a rest behind it that is longer than any write cycle.
  void Frame(const std::string& bits, int rest = 20) {
    Select();
    Send(bits);
    Deselect();
    Idle(rest);
  }
  // The part's address bits, highest first.
  std::string Field(std::size_t value) const {
    std::string text;
    for (int bit = Part.AddressBits - 1; bit >= 0; --bit) text += value >> bit & 1 ? '1' : '0';
    return text;
  }
  // EWEN 11, ERAL 10, WRAL 01, EWDS 00, with ones in the bits that any value may have.
  std::string Extended(const char* code) const {
    return std::string("100") + code + std::string(static_cast<std::size_t>(Part.AddressBits) - 2, '1');
  }

  const board::Three_Wire_Part Part;
};

TEST(Three_Wire_Chip, Obeys_Each_Instruction_Of_Its_Data_Sheet) {
  for (const auto& part : board::Three_Wire_Parts()) {
    SCOPED_TRACE(part.Name);
    Three_Wire_Bench on(part);
    const std::size_t at = part.Bytes - 3;
    const std::string write = "101" + on.Field(at) + "01011010", erase = "111" + on.Field(at + 1);
    Bytes cells = on.Cells();
    const auto expect = [&](const char* after, std::initializer_list<std::string> frames) {
      for (const std::string& frame : frames) on.Frame(frame);
      EXPECT_EQ(on.Cells(), cells) << after;
    };
    expect("no write enable", {write, erase, on.Extended("10")});
    cells[at] = 0x5A;
    expect("WRITE, behind two zeros", {on.Extended("11"), "00" + write});
    cells[at + 1] = 0xFF;
    expect("ERASE", {erase});

    on.Frame("110" + on.Field(at + 1) + "00000000");  // The last that is seen of these eight bits is a 1.
    on.Select();
    on.Send("110" + on.Field(at));
    EXPECT_FALSE(on.DO()) << "the 0 before the data";
    for (const std::size_t i : {at, at + 1, at + 2, std::size_t{0}})
      EXPECT_EQ(on.Say("8"), Bytes{cells[i]}) << i;
    on.Deselect();
    EXPECT_TRUE(on.DO()) << "DO is let go";

    cells.assign(part.Bytes, 0xC3);
    expect("WRAL", {on.Extended("01") + "11000011"});
    cells.assign(part.Bytes, 0xFF);
    expect("ERAL", {on.Extended("10")});
    expect("EWDS", {on.Extended("00"), write});
  }
}

TEST(Three_Wire_Chip, Does_Nothing_Unless_The_Frame_Is_Whole) {
  Three_Wire_Bench on(*board::Find_Three_Wire("AT93C46"));
  const Bytes cells = on.Cells();
  on.Frame(on.Extended("11"));
  const std::string write = "101" + on.Field(5);
  for (const std::string& frame :
       {write, write + "0101101", write + "010110100", "111" + on.Field(5) + "0", on.Extended("10") + "1",
        on.Extended("01") + "010110100", on.Extended("00") + "1", std::string("10")}) {
    on.Frame(frame);
    EXPECT_EQ(on.Cells(), cells) << frame;
  }
  // Data that change with the clock have not been set up for it.
  on.Select();
  on.Set({{"mwb", 0x40}, {"mwb", 0x58}, {"mwb", 0x40}});
  on.Send(write.substr(1) + "01011010");
  on.Deselect();
  EXPECT_EQ(on.Cells(), cells);

  on.Frame(write + "01011010");
  EXPECT_EQ(on.Cells()[5], 0x5A) << "behind all that, and still enabled";
}

// A real write cycle is over before the commands around it have told anything.
constexpr board::Three_Wire_Part kSlow{.Name = "slow", .Bytes = 128, .AddressBits = 7, .WriteCycle = 0.3005};

TEST(Three_Wire_Chip, Is_Deaf_Until_Its_Write_Cycle_Is_Over_And_Tells_It_On_DO) {
  // Bytes from the fall of CS on, what DO tells 3 bytes later, and whether the frame then is heard.
  for (const auto& [idle, ready, hears] :
       {std::tuple{272, false, false}, {273, false, true}, {278, true, true}}) {
    SCOPED_TRACE(idle);
    Three_Wire_Bench on(kSlow);
    on.Frame(on.Extended("11"));
    on.Frame("101" + on.Field(5) + "00110011", 0);
    EXPECT_TRUE(on.DO()) << "DO is let go while CS is low";
    on.Idle(idle);
    on.Select();
    EXPECT_EQ(on.DO(), ready);
    on.Send("101" + on.Field(6) + "01000100");
    on.Deselect();
    EXPECT_EQ(on.Cells()[5], 0x33);
    EXPECT_EQ(on.Cells()[6] == 0x44, hears);
  }
}

TEST(Three_Wire_Chip, Loses_With_The_Supply_Its_Write_Enable_And_The_Cells_It_Was_Writing) {
  for (const bool pulled : {false, true}) {
    Three_Wire_Bench on(kSlow);
    on.Frame(on.Extended("11"));
    on.Frame(on.Extended("01") + "00110011", 0);
    EXPECT_EQ(on.Cells(), Bytes(128, 0x33));
    pulled ? on.Board.Insert(nullptr) : on.Power_Off();
    EXPECT_EQ(on.Cells(), Bytes(128, 0xFF)) << "neither old nor new";

    on.Power_On();
    const std::string write = "101" + on.Field(6) + "00110011";
    on.Frame(write);
    EXPECT_EQ(on.Cells()[6], 0xFF);
    on.Frame(on.Extended("11"));
    on.Frame(write);
    EXPECT_EQ(on.Cells()[6], pulled ? 0xFF : 0x33) << "the cycle does not go on";
  }
}

}  // namespace
