// The same transfers for every row of the delivered catalogue, on both firmware routes: what lands in the
// chip is the image, and what lands in the image is the chip.
#include <ostream>

#include "core/catalogue.h"
#include "core/catalogue_text.h"
#include "image/hex_text.h"
#include "tests/support/chip_bench.h"
#include "tests/support/temporary_folder.h"

namespace wrenbit {
namespace {

struct Case {
  Device_Row Row;
  std::string Firmware;
};

void PrintTo(const Case& c, std::ostream* out) { *out << c.Row[Column_Name] << "_" << c.Firmware; }

std::vector<Case> All_Cases() {
  std::vector<Case> cases;
  for (const Device_Row& row : Read_Catalogue(Catalogue_Text(Content(WRENBIT_INI))).Rows)
    for (const char* firmware : {"4.90", "5.00"}) cases.push_back({row, firmware});
  return cases;
}

class Every_Row : public testing::TestWithParam<Case> {
 protected:
  Chip_Bench bench{GetParam().Row[Column_Name], GetParam().Firmware};
  Every_Row() { Select_Row(GetParam().Row); }
};

TEST_P(Every_Row, ABlockWrittenIsTheChipAndReadBackIsTheImage) {
  bench.Fill_Image(1);
  const Bytes written = ImageBuffer;
  AccessSize = MemSize + 1;  // Above the chip's: it is corrected.
  Cmd_WRITE_all_Click();
  ASSERT_TRUE(bench.Chip_Contents() == written);

  bench.Fill_Chip(2);
  AccessSize = MemSize + 1;
  Cmd_READ_all_Click();
  EXPECT_TRUE(ImageBuffer == bench.Chip_Contents());
  EXPECT_EQ(LinkError, 0);
}

TEST_P(Every_Row, AByteGoesToItsOwnCellAndComesFromIt) {
  bench.Fill_Chip(3);
  bench.Fill_Image(4);
  const auto size = static_cast<std::int32_t>(ImageBuffer.size());
  Bytes expected = bench.Chip_Contents();
  for (const std::int32_t address : {0, size / 2 + 5, size - 1}) {
    const auto at = static_cast<std::size_t>(address);
    Select_Address(address);
    if (address == size - 1) frmMain.MSFGrid1.Set_Col(17);  // Stands for the last byte of its row.
    Cmd_WRITE_single_Click();
    EXPECT_EQ(Panel(1), "Finsh");
    expected[at] = ImageBuffer[at];
    ASSERT_TRUE(bench.Chip_Contents() == expected) << "written at " << address;
    EXPECT_TRUE(DeviceFamily == 2 || frmMain.Text_modify_hex.Text() == Hex_Text(expected[at], 2));

    ImageBuffer[at] ^= 0xFF;
    Cmd_READ_single_Click();
    EXPECT_EQ(ImageBuffer[at], expected[at]) << "read at " << address;
    EXPECT_EQ(frmMain.Text_modify_hex.Text(), Hex_Text(expected[at], 2));
    EXPECT_EQ(Panel(3), "アドレス:" + std::to_string(address));
  }
}

INSTANTIATE_TEST_SUITE_P(Catalogue, Every_Row, testing::ValuesIn(All_Cases()), Case_Name<Case>);

}  // namespace
}  // namespace wrenbit
