// Selecting a byte in the hex grid.
#include "cell_selection.h"

#include <gtest/gtest.h>

#include "frm_main.h"
#include "hex_grid.h"
#include "state.h"
#include "test_bench.h"

namespace wrenbit {
namespace {

struct Cell_Selection : testing::Test {
  Test_Bench bench;
  void SetUp() override {
    frmMain.Show();
    MemSize = 7;
    Buffer_Init();
  }
  static void Click(int row, int col) {
    frmMain.MSFGrid1.Set_Row(row);
    frmMain.MSFGrid1.Set_Col(col);
    MSFGrid1_Click();
  }
};

TEST_F(Cell_Selection, ShowsTheByteInAllFourWays) {
  const struct {
    std::uint8_t Byte;
    const char *Dec, *Hex, *Character;
  } cases[] = {{0xFF, "255", "FF", "･"}, {0x00, "0", "00", "･"},  {0x1F, "31", "1F", "･"},
               {0x20, "32", "20", " "},  {0x41, "65", "41", "A"}, {0x7E, "126", "7E", "~"},
               {0x7F, "127", "7F", "･"}, {0x0A, "10", "0A", "･"}, {0x22, "34", "22", "\""},
               {0xB1, "177", "B1", "･"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.Hex);
    ImageBuffer[31] = c.Byte;
    Click(2, 16);
    EXPECT_EQ(frmMain.sbStatusBar.Panel(3), "アドレス:31");
    EXPECT_EQ(frmMain.Text_modify_dec.Text(), c.Dec);
    EXPECT_EQ(frmMain.Text_modify_hex.Text(), c.Hex);
    EXPECT_EQ(frmMain.Text_modify_asc.Text(), c.Character);
    int bits = 0;
    for (int bit = 0; bit < 8; ++bit) bits |= frmMain.ChkBin[static_cast<std::size_t>(bit)].Value() << bit;
    EXPECT_EQ(bits, c.Byte);
    EXPECT_EQ(frmMain.ActiveControl(), &frmMain.Text_modify_hex);
    EXPECT_EQ(frmMain.Text_modify_hex.SelLength(), 2);
    EXPECT_EQ(ImageBuffer[31], c.Byte) << "selecting changes nothing";
  }
}

TEST_F(Cell_Selection, TheAsciiColumnStandsForTheLastByteEvenWhileCodeWrites) {
  Click(1, 17);
  EXPECT_EQ(frmMain.sbStatusBar.Panel(3), "アドレス:15");
  EXPECT_EQ(frmMain.MSFGrid1.Col(), 16);

  UpdatingControls = -1;
  Click(3, 17);
  EXPECT_EQ(frmMain.MSFGrid1.Col(), 16);
  EXPECT_EQ(frmMain.sbStatusBar.Panel(3), "アドレス:15");
}

TEST_F(Cell_Selection, MovingTheCurrentCellAloneShowsNothing) {
  Click(1, 1);
  frmMain.MSFGrid1.Set_Row(4);
  EXPECT_EQ(frmMain.sbStatusBar.Panel(3), "アドレス:0");
}

TEST_F(Cell_Selection, AHeaderOrAnEmptyGridSelectsNothing) {
  Click(1, 1);
  Click(0, 5);
  EXPECT_EQ(frmMain.sbStatusBar.Panel(3), "アドレス:0");
  MemSize = 0;
  Buffer_Init();
  Click(1, 1);
  EXPECT_EQ(UpdatingControls, 0);
}

}  // namespace
}  // namespace wrenbit
