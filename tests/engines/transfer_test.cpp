// What the transfers of both families leave behind beside the chip's bytes: panels, cell and edit panel. And
// those that fail for other reasons than the ones of the sweep: no chip, lines that stick, rows that are
// wrong.
#include <algorithm>
#include <utility>

#include "tests/support/chip_bench.h"

namespace wrenbit {
namespace {

TEST(Block_Transfer, ThePercentageMovesAtEachWholeNumberAndTheTimeTakenIsInWholeSecondsWithTheHandshake) {
  for (const char* chip : {"24C00", "AT93C46"})
    for (const Command& command : {kCommands[0], kCommands[1]}) {
      SCOPED_TRACE(std::string(chip) + " " + command.Name);
      Chip_Bench bench(chip, "5.00");
      frmMain.CmbSize.Set_ListIndex(0);
      std::string last = Panel(3), shown = last;
      bench.On_Yield = [&, passed = false]() mutable {
        if (!std::exchange(passed, true)) bench.Pass(11.5);
        if (Panel(3) != last) shown += " " + (last = Panel(3));
      };
      const double before = bench.Now();
      command.Run();
      EXPECT_EQ(Panel(1), (command.Writes ? "書き込み終了。 (" : "読み出し終了。 (") +
                              std::to_string(static_cast<int>(bench.Now() - before)) + "sec)");
      EXPECT_EQ(Panel(3), "アドレス:0") << "the address is told again";
      EXPECT_EQ(shown, "アドレス:0 7% 13% 20% 27% 33% 40% 47% 53% 60% 67% 73% 80% 87% 93% 100%");
    }
}

TEST(Block_Transfer, WhatABlockReadLeftOutIsToldBeforeAndSeenAfterIt) {
  Chip_Bench bench("24C16", "5.00");
  EXPECT_EQ(frmMain.CmbSize.ToolTipText(), "ブロック: 全 2048 バイト");
  frmMain.CmbSize.Set_ListIndex(1);
  EXPECT_EQ(frmMain.Cmd_READ_all.ToolTipText(),
            "2048 バイト中、先頭の 32 バイトをチップから読み出します。残りはバッファで FF になります。");
  Cmd_READ_all_Click();
  const FlexGrid& grid = frmMain.MSFGrid1;
  EXPECT_FALSE(grid.Weak(2, 16));
  EXPECT_TRUE(grid.Weak(3, 1));
  EXPECT_FALSE(grid.ToolTipText().empty());
  Select_Address(40);
  Cmd_READ_single_Click();
  EXPECT_FALSE(grid.Weak(3, 9)) << "this one did come from the chip";
  EXPECT_TRUE(grid.Weak(3, 8));
  frmMain.CmbSize.Set_ListIndex(7);
  Cmd_READ_all_Click();
  EXPECT_FALSE(grid.Weak(128, 1));
  EXPECT_TRUE(grid.ToolTipText().empty());
}

// The three-wire bus has no acknowledge: what only a look at the chip would tell ends as a good transfer.
TEST(Transfer_Failure, WithoutAChipOrALineATwoWireTransferFailsAndAThreeWireOneDoesNotNotice) {
  using board::Line;
  const auto no_chip = [](Chip_Bench& bench) { bench.Programmer.Insert(nullptr); };
  const struct {
    const char* Chip;
    Board_Fault Meets;
    const char* Error;
    std::uint8_t BitByBit, ByTheBoard;  // The byte that a read gives.
    bool Writes;
  } faults[] = {{"24C02", no_chip, "24Cxx Power on PortA error", 0xFF, 0xFF, false},
                {"24C02", Stuck(Line::Sda, false), "24Cxx Power on PortA error", 0x00, 0x00, false},
                {"AT93C46", no_chip, "", 0xFF, 0xFF, false},
                {"AT93C46", Stuck(Line::Di, true), "", 0x00, 0xFF, false},
                {"AT93C46", Stuck(Line::Do, true), "", 0xFF, 0xFF, true}};
  for (const auto& fault : faults)
    for (const char* firmware : {"4.90", "5.00"})
      for (const Command& command : kCommands) {
        SCOPED_TRACE(std::to_string(&fault - faults) + ", " + firmware + ", " + command.Name);
        Chip_Bench bench(fault.Chip, firmware);
        bench.Fill_Chip(1);
        bench.Fill_Image(2);
        Bytes chip = bench.Chip_Contents(), image = ImageBuffer;
        fault.Meets(bench);
        command.Run();
        const bool failed = *fault.Error;
        EXPECT_EQ(LinkError, failed ? 1 : 0);
        EXPECT_TRUE(Panel(1).ends_with(failed ? fault.Error : command.Block ? "sec)" : "Finsh")) << Panel(1);
        EXPECT_FALSE(bench.Programmer.Supply());
        EXPECT_EQ(bench.Still_Held(), "");
        const bool by_bits = !command.Block || ProgrammerVersion < 5;
        // A block fails behind its first byte, and its image is made anew.
        const std::size_t moved = command.Block ? (failed ? 1 : image.size()) : (failed ? 0 : 1);
        if (!command.Writes) {
          if (command.Block) image.assign(image.size(), 0xFF);
          std::fill_n(image.begin(), moved, by_bits ? fault.BitByBit : fault.ByTheBoard);
        } else if (fault.Writes) {
          std::copy_n(image.begin(), moved, chip.begin());
        }
        EXPECT_EQ(ImageBuffer, image);
        EXPECT_EQ(bench.Chip_Contents(), chip);
      }
}

TEST(Transfer_Failure, ARowThatCannotBeRightOrNoCellIsRefusedBeforeThePortIsTouched) {
  constexpr const char* kSize = "デバイスのメモリサイズが正しくありません。";
  constexpr const char* kPage = "デバイスのページサイズが正しくありません。";
  constexpr const char* kBits = "デバイスのアドレスビット数が正しくありません。";
  constexpr const char* kCell = "アドレスが選択されていません。";
  // A size beyond the address; address bits fewer than an instruction needs, more than a field has, and those
  // of 16-bit words. A family without an engine is no error.
  const struct {
    int Family, MemSize, PageSize, AddressMode, AddressBits;
    const char* Error;
  } rows[] = {{2, 0, 8, 1, 0, kSize}, {2, 12, 32, 1, 0, kSize}, {2, 18, 128, 2, 0, kSize},
              {2, 8, 0, 1, 0, kPage}, {2, 8, 6, 1, 0, kPage},   {2, 8, -8, 1, 0, kPage},
              {3, 7, 1, 0, 1, kBits}, {3, 7, 1, 0, 2, kSize},   {3, 7, 1, 0, 17, kBits},
              {3, 7, 1, 0, 6, kSize}, {2, 8, 8, 1, 0, kCell},   {0, 8, 8, 1, 0, ""},
              {7, 8, 8, 1, 0, ""}};
  for (const auto& row : rows)
    for (const Command& command : kCommands) {
      if (row.Error == kPage && command.Run != Cmd_WRITE_all_Click) continue;
      if (row.Error == kCell && command.Block) continue;
      SCOPED_TRACE(std::to_string(&row - rows) + ", " + command.Name);
      Chip_Bench bench("24C02", "5.00");
      Select_Device(row.Family, row.MemSize, row.PageSize, row.AddressMode, row.AddressBits);
      if (row.Error == kCell) frmMain.MSFGrid1.Set_Row(0);
      LinkError = 1;  // What the last transfer told is forgotten.
      frmMain.sbStatusBar.Set_Panel(2, "before");
      command.Run();
      EXPECT_TRUE(bench.Opened.empty());
      EXPECT_EQ(LinkError, *row.Error ? 1 : 0);
      EXPECT_TRUE(Panel(1) == row.Error || !*row.Error) << Panel(1);
      EXPECT_EQ(Panel(2), "");
      EXPECT_EQ(bench.Still_Held(), "");
    }
}

}  // namespace
}  // namespace wrenbit
