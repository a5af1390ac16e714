// What the transfers of both families leave behind beside the chip's bytes: the rest of a block, panels, cell
// and edit panel.
#include <utility>

#include "chip_bench.h"
#include "faulty_board.h"
#include "transfer_commands.h"

namespace wrenbit {
namespace {

TEST(Block_Transfer, ThePercentageMovesAtEachWholeNumber) {
  for (const auto& [chip, run] : {std::pair{"24C00", &Cmd_READ_all_Click},
                                  {"AT93C46", &Cmd_READ_all_Click},
                                  {"AT93C46", &Cmd_WRITE_all_Click}}) {
    SCOPED_TRACE(chip);
    Chip_Bench bench(chip, "5.00");
    frmMain.CmbSize.Set_ListIndex(0);
    std::vector<std::string> shown{Panel(3)};
    bench.On_Yield = [&] {
      if (Panel(3) != shown.back()) shown.push_back(Panel(3));
    };
    run();
    EXPECT_EQ(shown, (std::vector<std::string>{"アドレス:0", "7%", "13%", "20%", "27%", "33%", "40%", "47%",
                                               "53%", "60%", "67%", "73%", "80%", "87%", "93%", "100%"}));
    EXPECT_EQ(Panel(3), "アドレス:0") << "the address is told again";
  }
}

TEST(Block_Transfer, TheTimeTakenIsInWholeSecondsRoundedDownAndCountsTheHandshake) {
  for (const char* chip : {"24C00", "AT93C46"})
    for (const auto& [run, text] :
         {std::pair{&Cmd_READ_all_Click, "読み出し終了。 ("}, {&Cmd_WRITE_all_Click, "書き込み終了。 ("}}) {
      SCOPED_TRACE(std::string(chip) + text);
      Chip_Bench bench(chip, "5.00");
      bool passed = false;
      bench.On_Yield = [&] {
        if (!std::exchange(passed, true)) bench.Pass(11.5);
      };
      const double before = bench.Now();
      run();
      EXPECT_EQ(Panel(1), text + std::to_string(static_cast<int>(bench.Now() - before)) + "sec)");
    }
}

TEST(Block_Transfer, AByteCostsOnTheWireWhatItsTableSays) {
  const struct {
    const char* Chip;
    const char* Firmware;
    void (*Run)();
    std::size_t Out, Back;
  } cases[] = {{"24C64", "4.90", Cmd_READ_all_Click, 196, 8},
               {"24C64", "4.90", Cmd_WRITE_all_Click, 119, 1},
               {"24C64", "5.00", Cmd_READ_all_Click, 2, 1},
               {"24C64", "5.00", Cmd_WRITE_all_Click, 3, 2},
               {"AT93C46", "4.90", Cmd_READ_all_Click, 12 * 7 + 132, 8},
               {"AT93C46", "4.90", Cmd_WRITE_all_Click, 12 * 7 + 140, 0},
               {"AT93C86", "4.90", Cmd_READ_all_Click, 12 * 11 + 132, 8},
               {"AT93C86", "4.90", Cmd_WRITE_all_Click, 12 * 11 + 140, 0},
               {"AT93C86", "5.00", Cmd_READ_all_Click, 17, 3},
               {"AT93C86", "5.00", Cmd_WRITE_all_Click, 20, 3}};
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.Chip) + " at " + c.Firmware + " " + std::to_string(c.Out));
    // Two blocks within one page, so that only the data bytes differ.
    std::size_t out[2], back[2];
    for (int size = 0; size < 2; ++size) {
      Chip_Bench bench(c.Chip, c.Firmware);
      frmMain.CmbSize.Set_ListIndex(size);
      c.Run();
      out[size] = bench.Sent.size();
      back[size] = bench.Received;
    }
    EXPECT_EQ(out[1] - out[0], 16 * c.Out);
    EXPECT_EQ(back[1] - back[0], 16 * c.Back);
  }
}

TEST(Byte_Transfer, TheCellIsUpToDateAfterAReadAndTheChecksumIsNot) {
  for (const char* chip : {"24C02", "AT93C46"}) {
    SCOPED_TRACE(chip);
    Chip_Bench bench(chip, "4.90");
    const std::string checksum = frmMain.LblCheckSUM.Caption();
    bench.Cells->Write(31, 0x0A);
    Select_Address(31);
    Cmd_READ_single_Click();
    EXPECT_EQ(frmMain.MSFGrid1.Text(), "0x0A");
    EXPECT_EQ(frmMain.Text_modify_hex.Text(), "0A");
    EXPECT_EQ(frmMain.LblCheckSUM.Caption(), checksum);
  }
}

TEST(Byte_Transfer, TheThreeWireWriteBringsTheEditPanelUpToDateWhateverCameOfIt) {
  const struct {
    const char* Chip;
    std::uint64_t SilentFrom;
    const char* Shown;
  } cases[] = {{"24C02", 0, "FF"}, {"AT93C46", 0, "5A"}, {"AT93C46", 10, "5A"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.Chip) + " " + std::to_string(c.SilentFrom));
    Chip_Bench bench(c.Chip, "5.00");
    board::Faulty_Board board(bench.Programmer, {.SilentFrom = c.SilentFrom});
    bench.Board = &board;
    ImageBuffer[0] = 0x5A;
    Cmd_WRITE_single_Click();
    EXPECT_EQ(LinkError, c.SilentFrom ? 1 : 0);
    EXPECT_EQ(frmMain.Text_modify_hex.Text(), c.Shown);
  }
}

TEST(Byte_Transfer, TheAsciiColumnStandsForTheLastByteOfItsRow) {
  Chip_Bench bench("24C02", "5.00");
  ImageBuffer[255] = 0x42;
  frmMain.MSFGrid1.Set_Row(16);
  frmMain.MSFGrid1.Set_Col(17);
  Cmd_WRITE_single_Click();
  EXPECT_EQ(bench.Chip_Contents()[255], 0x42);
  Cmd_READ_single_Click();
  EXPECT_EQ(frmMain.MSFGrid1.Col(), 16);
  EXPECT_EQ(frmMain.MSFGrid1.Cell(16, 17), std::string(16 * 3, ' ').replace(0, 48, "････････････････"));
}

}  // namespace
}  // namespace wrenbit
