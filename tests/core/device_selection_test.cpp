// The selection of a device and of the block size.
#include "core/device_selection.h"

#include "core/catalogue_text.h"
#include "tests/support/chip_bench.h"

namespace wrenbit {
namespace {

class Device_Selection : public testing::Test {
 protected:
  Test_Bench bench;
  void SetUp() override {
    Offer_Devices(Read_Catalogue("24C02   I2C       2 8  8   1 0 2Kbit  1.8-5.5V 1M 256x8    5ms  400kHz\n"
                                 "AT93C46 Microwire 3 7  0   0 7 1Kbit  2.7-5.5V 1M 128x8    10ms 2MHz\n"
                                 "24C00   I2C       2 4  1   1 0 128bit 1.8-5.5V 1M 16x8     4ms  400kHz\n"
                                 "24C1024 I2C       2 17 128 2 0 1Mbit  1.8-5.5V 1M 131072x8 5ms  400kHz\n"
                                 "BARE\n")
                      .Rows);
  }
  static void Select(int row) { frmMain.Combo_device.Set_ListIndex(row); }
};

TEST_F(Device_Selection, SetsEveryValueAndLabel) {
  ImageBuffer.assign(256, 0);
  Select(0);
  EXPECT_EQ(frmMain.Lbl_PageSize.Caption(), "Mem. Size: 256 byte\r\nPage Size: 8 byte");
  EXPECT_EQ(frmMain.Lbl_Spec.Caption(),
            "VDD:1.8-5.5V Endurance:1M Density:256x8 WriteSpeed:5ms ClockSpeed:400kHz ");
  EXPECT_EQ(Panel(1), "");
  EXPECT_EQ(Panel(4), "2Kbit");
  EXPECT_EQ((std::vector{DeviceFamily, PageSize, AddressMode}), (std::vector{2, 8, 1}));
  EXPECT_EQ(ImageBuffer, Bytes(256, 0xFF));

  Select(1);
  EXPECT_EQ(frmMain.Lbl_PageSize.Caption(), "Mem. Size: 128 byte");
  EXPECT_EQ(AddressBits, 7);
  EXPECT_EQ(frmMain.LblCheckSUM.Caption(), "CheckSum:7F80");
  EXPECT_EQ(bench.Stored["DUT"], "1");

  Select(4);  // A row with only a name.
  EXPECT_EQ(frmMain.Lbl_PageSize.Caption() + frmMain.Lbl_Spec.Caption(), "");
  EXPECT_TRUE(ImageBuffer.empty());
  EXPECT_EQ(frmMain.CmbSize.ListCount(), 0);
}

TEST_F(Device_Selection, TheBlockSizeFollowsTheChipDownNotUpAgainAndStaysPastARowWithoutASize) {
  const struct {
    int Before, Past, Row, Entries, After;
  } cases[] = {{8, 3, 1, 4, 3},  {2, 3, 1, 4, 2},    {13, 3, 2, 1, 0},
               {3, 3, 3, 14, 3}, {13, 3, 3, 14, 13}, {6, 4, 3, 14, 6}};
  for (const auto& c : cases) {
    SCOPED_TRACE(std::to_string(c.Before) + " on row " + std::to_string(c.Row));
    Select(3);
    frmMain.CmbSize.Set_ListIndex(c.Before);
    Select(c.Past);
    Select(c.Row);
    EXPECT_EQ(frmMain.CmbSize.ListCount(), c.Entries);
    EXPECT_EQ(frmMain.CmbSize.ListIndex(), c.After);
    EXPECT_EQ(AccessSize, c.After + 4);
    EXPECT_EQ(frmMain.CmbSize.Text(), std::to_string(16 << c.After));
    EXPECT_EQ(bench.Stored["AccessSize"], std::to_string(c.After));
  }
}

}  // namespace
}  // namespace wrenbit
