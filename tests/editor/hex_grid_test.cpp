// The filling of the hex grid: its shape, its cells, and what a refill leaves behind.
#include "editor/hex_grid.h"

#include <tuple>

#include "image/image_buffer.h"
#include "tests/support/test_bench.h"

namespace wrenbit {
namespace {

class Hex_Grid : public testing::Test {
 protected:
  Test_Bench bench;
  const FlexGrid& grid = frmMain.MSFGrid1;
  static void Blank_Image(int mem_size) {
    MemSize = mem_size;
    mnuBufferClear_Click();
  }
};

TEST_F(Hex_Grid, HasARowForEverySixteenBytesAndNoneForADeviceWithoutAUsableSize) {
  const std::tuple<int, int, const char*, const char*> cases[] = {
      {3, 1, "Adr.", "CheckSum:0000"},         {4, 2, "0x000000", "CheckSum:0FF0"},
      {17, 8193, "0x01FFF0", "CheckSum:0000"}, {0, 1, "Adr.", "CheckSum:0000"},
      {-1, 1, "Adr.", "CheckSum:0000"},        {24, 1, "Adr.", "CheckSum:0000"},
      {1000, 1, "Adr.", "CheckSum:0000"},
  };
  for (const auto& [mem_size, rows, last_address, checksum] : cases) {
    SCOPED_TRACE(mem_size);
    Blank_Image(mem_size);
    EXPECT_EQ(Image_Usable(), rows > 1);
    EXPECT_EQ(grid.Rows(), rows);
    EXPECT_EQ(grid.Cell(rows - 1, 0), last_address);
    EXPECT_EQ(frmMain.LblCheckSUM.Caption(), checksum);
    EXPECT_EQ(grid.Cell(0, 17), "ASCII");
  }
  EXPECT_EQ(grid.Cols(), 18);
  EXPECT_EQ(grid.Cell(0, 16), "0x0F");
  EXPECT_EQ(grid.ColWidth(0) + 16 * grid.ColWidth(1) + grid.ColWidth(17), 700 + 16 * 450 + 2000);
  EXPECT_EQ(grid.ColAlignment(16), Alignment::Centre);
}

TEST_F(Hex_Grid, ShowsEachByteByTheRuleOfARefill) {
  Blank_Image(8);
  for (std::size_t i = 0; i < 256; ++i) ImageBuffer[i] = static_cast<std::uint8_t>(i);
  Grid_Refill();
  const char* const texts[] = {
      "････････････････", "････････････････",  "･!･#$%&'()*+･-./",      "0123456789:;<=>?",
      "@ABCDEFGHIJKLMNO", "PQRSTUVWXYZ[\\]^_", "`abcdefghijklmno",      "pqrstuvwxyz{|}~\x7F",
      "････････････････", "････････････････",  "\u00A0｡｢｣､･ｦｧｨｩｪｫｬｭｮｯ", "ｰｱｲｳｴｵｶｷｸｹｺｻｼｽｾｿ",
      "ﾀﾁﾂﾃﾄﾅﾆﾇﾈﾉﾊﾋﾌﾍﾎﾏ", "ﾐﾑﾒﾓﾔﾕﾖﾗﾘﾙﾚﾛﾜﾝﾞﾟ",  "････････････････",      "････････････････"};
  for (int row = 1; row <= 16; ++row) EXPECT_EQ(grid.Cell(row, 17), texts[row - 1]) << row;
  EXPECT_EQ(grid.Cell(11, 16), "0xAF");
}

TEST_F(Hex_Grid, ARefillSelectsTheFirstByteAndKeepsTheMessage) {
  Blank_Image(8);
  frmMain.sbStatusBar.Set_Panel(1, "before");
  std::string during;
  bench.On_Yield = [] { ADD_FAILURE() << "what the user does could come in between"; };
  bench.On_Repaint = [&] { during = frmMain.sbStatusBar.Panel(1); };
  Grid_Refill();
  EXPECT_EQ(during, "しばらくお待ちください。");
  EXPECT_EQ(frmMain.sbStatusBar.Panel(1), "before");
  EXPECT_EQ(frmMain.sbStatusBar.Panel(3), "アドレス:0");
  EXPECT_TRUE(grid.Visible());
  EXPECT_EQ(frmMain.MousePointer(), Pointer::Default);
}

}  // namespace
}  // namespace wrenbit
