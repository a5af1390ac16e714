// The filling of the hex grid: its shape, its cells, and what a refill leaves behind.
#include "hex_grid.h"

#include <gtest/gtest.h>

#include "frm_main.h"
#include "image_buffer.h"
#include "state.h"
#include "test_bench.h"

namespace wrenbit {
namespace {

struct Hex_Grid : testing::Test {
  Test_Bench bench;
  const FlexGrid& grid = frmMain.MSFGrid1;
  void Blank_Image(int mem_size) {
    MemSize = mem_size;
    Buffer_Init();
  }
};

TEST_F(Hex_Grid, HasARowForEverySixteenBytes) {
  const struct {
    int MemSize, Rows;
    const char* LastAddress;
    const char* CheckSum;
  } cases[] = {{4, 2, "0x000000", "CheckSum:0FF0"},
               {7, 9, "0x000070", "CheckSum:7F80"},
               {16, 4097, "0x00FFF0", "CheckSum:0000"},
               {17, 8193, "0x01FFF0", "CheckSum:0000"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.MemSize);
    Blank_Image(c.MemSize);
    EXPECT_EQ(grid.Rows(), c.Rows);
    EXPECT_EQ(grid.Cols(), 18);
    EXPECT_EQ(grid.Cell(c.Rows - 1, 0), c.LastAddress);
    EXPECT_EQ(grid.Cell(c.Rows - 1, 16), "0xFF");
    EXPECT_EQ(grid.Cell(c.Rows - 1, 17), "････････････････");
    EXPECT_EQ(frmMain.LblCheckSUM.Caption(), c.CheckSum);
  }
  EXPECT_EQ(grid.Cell(0, 0), "Adr.");
  EXPECT_EQ(grid.Cell(0, 16), "0x0F");
  EXPECT_EQ(grid.Cell(0, 17), "ASCII");
  EXPECT_EQ(grid.ColWidth(0) + 16 * grid.ColWidth(1) + grid.ColWidth(17), 700 + 16 * 450 + 2000);
  EXPECT_EQ(grid.ColAlignment(16), Alignment::Centre);
}

TEST_F(Hex_Grid, ShowsEachByteByTheRuleOfARefill) {
  const struct {
    std::uint8_t Byte;
    const char* Cell;
    const char* Character;
  } cases[] = {{0x00, "0x00", "･"},      {0x1F, "0x1F", "･"},    {0x20, "0x20", "･"}, {0x21, "0x21", "!"},
               {0x22, "0x22", "･"},      {0x2C, "0x2C", "･"},    {0x41, "0x41", "A"}, {0x5C, "0x5C", "\\"},
               {0x7E, "0x7E", "~"},      {0x7F, "0x7F", "\x7F"}, {0x80, "0x80", "･"}, {0x9F, "0x9F", "･"},
               {0xA0, "0xA0", "\u00A0"}, {0xA1, "0xA1", "｡"},    {0xB1, "0xB1", "ｱ"}, {0xDF, "0xDF", "ﾟ"},
               {0xE0, "0xE0", "･"},      {0xFF, "0xFF", "･"}};
  Blank_Image(9);
  for (std::size_t i = 0; i < std::size(cases); ++i) ImageBuffer[i * 16] = cases[i].Byte;
  Grid_Refill();
  for (std::size_t i = 0; i < std::size(cases); ++i) {
    SCOPED_TRACE(cases[i].Cell);
    const int row = static_cast<int>(i) + 1;
    EXPECT_EQ(grid.Cell(row, 1), cases[i].Cell);
    EXPECT_EQ(grid.Cell(row, 17), std::string(cases[i].Character) + "･･･････････････");
  }
}

TEST_F(Hex_Grid, ARefillSelectsTheFirstByteAndKeepsTheMessage) {
  Blank_Image(8);
  frmMain.MSFGrid1.Set_Row(5);
  frmMain.MSFGrid1.Set_Col(9);
  frmMain.sbStatusBar.Set_Panel(1, "before");
  std::string during;
  bench.On_Yield = [] { ADD_FAILURE() << "what the user does could come in between"; };
  bench.On_Repaint = [&] { during = frmMain.sbStatusBar.Panel(1); };
  Grid_Refill();
  EXPECT_EQ(during, "しばらくお待ちください。");
  EXPECT_EQ(frmMain.sbStatusBar.Panel(1), "before");
  EXPECT_EQ(frmMain.sbStatusBar.Panel(3), "アドレス:0");
  EXPECT_EQ(grid.Row(), 1);
  EXPECT_EQ(grid.Col(), 1);
  EXPECT_TRUE(grid.Visible());
  EXPECT_EQ(frmMain.MousePointer(), Pointer::Default);
}

TEST_F(Hex_Grid, ADeviceWithoutAUsableSizeGivesAnEmptyGrid) {
  Blank_Image(8);
  for (const int size : {0, 3, -1, 24, 1000}) {
    SCOPED_TRACE(size);
    Blank_Image(size);
    EXPECT_FALSE(Image_Usable());
    EXPECT_EQ(grid.Rows(), 1);
    EXPECT_EQ(grid.Cell(0, 17), "ASCII");
    EXPECT_TRUE(grid.Visible());
    EXPECT_EQ(frmMain.MousePointer(), Pointer::Default);
  }
}

TEST_F(Hex_Grid, ClearingTheBufferTellsSo) {
  Blank_Image(7);
  ImageBuffer.assign(128, 0);
  mnuBufferClear_Click();
  EXPECT_EQ(ImageBuffer, Bytes(128, 0xFF));
  EXPECT_EQ(frmMain.LblCheckSUM.Caption(), "CheckSum:7F80");
  EXPECT_EQ(frmMain.sbStatusBar.Panel(1), "ＰＣのバッファをクリアしました。");
}

}  // namespace
}  // namespace wrenbit
