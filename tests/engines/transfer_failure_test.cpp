// Transfers that fail for other reasons than those of the sweep: a port in use, no chip, lines that stick,
// rows that are wrong. And faults that were there once, by name.
#include <utility>

#include "chip_bench.h"
#include "faulty_board.h"
#include "hex_grid.h"
#include "transfer_commands.h"

namespace wrenbit {
namespace {

struct Command {
  const char* Name;
  void (*Run)();
  bool Writes;
  bool Blanks;  // Makes the image anew.
};
const Command kCommands[] = {{"block read", Cmd_READ_all_Click, false, true},
                             {"block write", Cmd_WRITE_all_Click, true, false},
                             {"byte read", Cmd_READ_single_Click, false, false},
                             {"byte write", Cmd_WRITE_single_Click, true, false}};

void Expect_Given_Back(const Chip_Bench& bench) {
  EXPECT_FALSE(bench.Is_Open());
  for (const Control* control : frmMain.Controls()) EXPECT_TRUE(control->Reachable());
  EXPECT_EQ(frmMain.ActiveControl(), &frmMain.Text_modify_hex);
}

TEST(Transfer_Failure, EachFaultEndsWithItsTextAndLeavesTheImageAsItShouldBe) {
  const struct {
    const char* Name;
    std::function<void(Chip_Bench&)> Fault;
    const char* Panel1;
  } faults[] = {
      {"port in use", [](Chip_Bench& b) { b.Refusal = Port_Fault::In_Use; },
       "プログラマ接続確認エラー。【1】ポートは使用中です。"},
      {"unknown board", [](Chip_Bench& b) { b.Programmer.Identify_As("SOME OTHER BOARD 9.00"); },
       "プログラマ接続確認エラー。"},
      {"no chip", [](Chip_Bench& b) { b.Programmer.Insert(nullptr); }, "24Cxx Power on PortA error"},
      {"SDA stuck low", [](Chip_Bench& b) { b.Programmer.Socket().Stick(board::Line::kSda, false); },
       "24Cxx Power on PortA error"},
      {"SDA stuck high", [](Chip_Bench& b) { b.Programmer.Socket().Stick(board::Line::kSda, true); },
       "24Cxx Power on PortA error"},
  };
  for (const auto& fault : faults)
    for (const char* firmware : {"4.90", "5.00"})
      for (const Command& command : kCommands) {
        SCOPED_TRACE(std::string(fault.Name) + ", " + firmware + ", " + command.Name);
        Chip_Bench bench("24C02", firmware);
        fault.Fault(bench);
        bench.Fill_Image(1);
        const Bytes image = ImageBuffer;
        const std::string cell(frmMain.MSFGrid1.Cell(1, 1));
        command.Run();
        EXPECT_EQ(LinkError, 1);
        EXPECT_EQ(Panel(1), fault.Panel1);
        Expect_Given_Back(bench);
        EXPECT_EQ(bench.Programmer.Latch('b') & 0x40, 0) << "supply off";
        if (command.Blanks)
          EXPECT_EQ(Bytes(ImageBuffer.begin() + 1, ImageBuffer.end()), Bytes(ImageBuffer.size() - 1, 0xFF));
        else
          EXPECT_EQ(ImageBuffer, image);
        EXPECT_EQ(frmMain.MSFGrid1.Cell(1, 1), cell) << "the grid does not follow";
        EXPECT_EQ(bench.Chip_Contents(), Bytes(256, 0xFF));
      }
}

// The three-wire bus has no acknowledge: what only a look at the chip would tell ends as a good transfer.
TEST(Transfer_Failure, AThreeWireFaultWithTheBoardAliveIsAMessageAndNoMore) {
  using board::Line;
  const struct {
    const char* Name;
    std::function<void(Chip_Bench&)> Fault;
    const char *Read_Flashes, *Write_Flashes;  // A text that another one replaces.
    int Bit_By_Bit, By_The_Board;              // The byte that a read gives.
    bool Writes;
  } faults[] = {
      {"no chip", [](Chip_Bench& b) { b.Programmer.Insert(nullptr); }, "", "", 0xFF, 0xFF, false},
      {"DI stuck high", [](Chip_Bench& b) { b.Programmer.Socket().Stick(Line::kDi, true); },
       "93Cxx Power on PortB error", "93Cxx Power on PortB error", 0x00, 0xFF, false},
      {"DO stuck high", [](Chip_Bench& b) { b.Programmer.Socket().Stick(Line::kDo, true); },
       "93Cxx Power on PortB error", "", 0xFF, 0xFF, true},
  };
  for (const auto& fault : faults)
    for (const char* firmware : {"4.90", "5.00"})
      for (const Command& command : kCommands) {
        SCOPED_TRACE(std::string(fault.Name) + ", " + firmware + ", " + command.Name);
        Chip_Bench bench("AT93C46", firmware);
        bench.Fill_Chip(1);
        bench.Fill_Image(2);
        Bytes chip = bench.Chip_Contents();
        Bytes image = ImageBuffer;
        fault.Fault(bench);
        std::string flashed;
        bench.On_Yield = [&] {
          if (Panel(1).starts_with("93Cxx Power")) flashed = Panel(1);
        };
        command.Run();
        EXPECT_EQ(LinkError, 0);
        Expect_Given_Back(bench);
        EXPECT_EQ(flashed, command.Writes ? fault.Write_Flashes : fault.Read_Flashes);
        const bool block = command.Run == Cmd_READ_all_Click || command.Run == Cmd_WRITE_all_Click;
        const std::size_t moved = block ? image.size() : 1;
        EXPECT_TRUE(Panel(1).starts_with(!block           ? "Finsh"
                                         : command.Writes ? "書き込み終了。 ("
                                                          : "読み出し終了。 ("))
            << Panel(1);
        const bool by_bits = !block || ProgrammerVersion < 5;
        if (!command.Writes)
          std::fill_n(image.begin(), moved,
                      static_cast<std::uint8_t>(by_bits ? fault.Bit_By_Bit : fault.By_The_Board));
        else if (fault.Writes)
          std::copy_n(image.begin(), moved, chip.begin());
        EXPECT_EQ(ImageBuffer, image);
        EXPECT_EQ(bench.Chip_Contents(), chip);
      }
}

// A bit that goes out with its clock has not been set up: the chip takes the one before.
TEST(Transfer_Failure, ACommandThatTheSystemRefusesLeavesNoWrongAddressInTheFrame) {
  Chip_Bench bench("AT93C46", "4.90");
  bench.Fill_Chip(1);
  bench.Fill_Image(2);
  const Bytes before = bench.Chip_Contents();
  // "?" twice, power on, EWEN, start bit and opcode: the next one sets the highest address bit low.
  bench.Takes = [](std::size_t write) { return write != 2 + 9 + 1 + 30 + 1 + 1 + 9 + 1; };
  Cmd_WRITE_all_Click();
  EXPECT_EQ(LinkError, 1);
  EXPECT_EQ(bench.Chip_Contents(), before);
}

TEST(Transfer_Failure, ARefusedPowerOffIsSentAgain) {
  for (const char* part : {"24C02", "AT93C46"}) {
    Chip_Bench bench(part, "5.00");
    bool refused = false;
    bench.Takes = [&](std::size_t) {
      const bool supply_off = TxBytes == Bytes{'m', 'w', 'b', 0};
      return !supply_off || std::exchange(refused, true);
    };
    Cmd_READ_single_Click();
    EXPECT_TRUE(refused);
    EXPECT_FALSE(bench.Programmer.Supply());
    EXPECT_EQ(LinkError, 1);
  }
}

// Answers carry no tag: a surplus one passes for the next command's, and so on, until a pause swallows it.
TEST(Transfer_Failure, ASurplusAnswerIsNoticedAlsoWhenTheOrderComesRightByItself) {
  for (const char* part : {"24C02", "AT93C46"})
    for (const Command& command : kCommands)
      for (const double pause : {0.0, 0.1}) {
        SCOPED_TRACE(std::string(part) + ", " + command.Name + ", " + std::to_string(pause));
        Chip_Bench bench(part, "5.00");
        bench.Fill_Chip(1);
        board::Faulty_Board doubling(bench.Programmer, {.DoubleReply = 9});
        bench.Board = &doubling;
        int yields = 0;
        bench.On_Yield = [&] {
          if (doubling.Met() && ++yields == 2) bench.Pass(pause);
        };
        command.Run();
        const bool goes_by_answers = DeviceFamily == 2 || !command.Writes;
        EXPECT_EQ(LinkError, goes_by_answers ? 1 : 0) << Panel(1);
        EXPECT_TRUE(LinkError == 0 || pause == 0 || Panel(1) == "プログラマの応答がずれています。")
            << Panel(1);
      }
}

TEST(Transfer_Failure, ARowThatCannotBeRightIsRefusedBeforeThePortIsTouched) {
  constexpr const char* kSize = "デバイスのメモリサイズが正しくありません。";
  constexpr const char* kPage = "デバイスのページサイズが正しくありません。";
  constexpr const char* kBits = "デバイスのアドレスビット数が正しくありません。";
  const struct {
    const char* Name;
    int Family, MemSize, PageSize, AddressMode, AddressBits;
    const char* Panel1;
  } rows[] = {
      {"no size", 2, 0, 8, 1, 0, kSize},
      {"too small", 2, 3, 8, 1, 0, kSize},
      {"absurd size", 2, 40, 8, 2, 0, kSize},
      {"beyond one address byte", 2, 12, 32, 1, 0, kSize},
      {"beyond 17 bits", 2, 18, 128, 2, 0, kSize},
      {"no page", 2, 8, 0, 1, 0, kPage},
      {"negative page", 2, 8, -8, 1, 0, kPage},
      {"no address bits", 3, 7, 1, 0, 0, kBits},
      {"fewer address bits than an instruction needs", 3, 7, 1, 0, 1, kBits},
      {"just as many, but not for all bytes", 3, 7, 1, 0, 2, kSize},
      {"more address bits than a field has", 3, 7, 1, 0, 17, kBits},
      {"the address bits of 16-bit words", 3, 7, 1, 0, 6, kSize},
  };
  for (const auto& row : rows)
    for (const Command& command : kCommands) {
      if (row.Panel1 == kPage && command.Run != Cmd_WRITE_all_Click) continue;
      SCOPED_TRACE(std::string(row.Name) + ", " + command.Name);
      Chip_Bench bench("24C02", "5.00");
      Select_Device(row.Family, row.MemSize, row.PageSize, row.AddressMode, row.AddressBits);
      command.Run();
      EXPECT_TRUE(bench.Opened.empty());
      EXPECT_EQ(LinkError, 1);
      EXPECT_EQ(Panel(1), row.Panel1);
      Expect_Given_Back(bench);
    }
}

TEST(Transfer_Failure, TheLockForgetsWhatTheLastTransferTold) {
  Chip_Bench bench("24C02", "5.00");
  frmMain.sbStatusBar.Set_Panel(1, "before");
  frmMain.sbStatusBar.Set_Panel(2, "before");
  LinkError = 1;
  Command_Lock();
  EXPECT_EQ(Panel(1) + Panel(2), "");
  EXPECT_EQ(LinkError, 0);
  Command_Unlock();
}

TEST(Transfer_Failure, AFamilyWithoutAnEngineSendsNothing) {
  const struct {
    int Family, MemSize;
    int Error;  // What a block read leaves.
    const char* Panel1;
    const char* Cell;
  } cases[] = {{0, 8, 0, "読み出し中.....", "0xFF"},
               {7, 8, 0, "読み出し中.....", "0xFF"},
               {0, 0, 1, "デバイスのメモリサイズが正しくありません。", ""}};
  for (const auto& c : cases)
    for (const Command& command : kCommands) {
      SCOPED_TRACE(std::to_string(c.Family) + ", " + command.Name);
      Chip_Bench bench("24C02", "5.00");
      Select_Device(c.Family, c.MemSize, 8, 1);
      std::fill(ImageBuffer.begin(), ImageBuffer.end(), std::uint8_t{0});
      Grid_Refill();
      command.Run();
      EXPECT_TRUE(bench.Opened.empty());
      Expect_Given_Back(bench);
      if (!command.Blanks) continue;
      EXPECT_EQ(LinkError, c.Error);
      EXPECT_EQ(Panel(1), c.Panel1);
      EXPECT_EQ(frmMain.MSFGrid1.Cell(1, 1), c.Cell);
    }
}

}  // namespace
}  // namespace wrenbit
