// The same transfers for every two-wire part, on both firmware routes: what lands in the chip is the image,
// and what lands in the image is the chip.
#include <bit>

#include "chip_bench.h"
#include "transfer_commands.h"

namespace wrenbit {
namespace {

struct Part {
  std::string Name;
  std::string Firmware;
};

void PrintTo(const Part& part, std::ostream* out) { *out << part.Name << " at " << part.Firmware; }

std::vector<Part> All_Parts() {
  std::vector<Part> parts;
  for (const auto& chip : board::Two_Wire_Parts())
    for (const char* firmware : {"4.90", "5.00"}) parts.push_back({std::string(chip.Name), firmware});
  return parts;
}

struct Every_Part : testing::TestWithParam<Part> {
  Chip_Bench bench{GetParam().Name, GetParam().Firmware};

  void Expect_Idle() const {
    EXPECT_EQ(LinkError, 0);
    EXPECT_FALSE(bench.Is_Open());
    EXPECT_FALSE(bench.Programmer.Supply());
    EXPECT_TRUE(frmMain.Cmd_READ_all.Reachable());
  }
};

TEST_P(Every_Part, ABlockWrittenIsTheChipAndReadBackIsTheImage) {
  bench.Fill_Image(1);
  const Bytes written = ImageBuffer;
  Cmd_WRITE_all_Click();
  Expect_Idle();
  ASSERT_EQ(bench.Chip_Contents(), written);

  bench.Fill_Chip(2);
  Cmd_READ_all_Click();
  Expect_Idle();
  EXPECT_EQ(ImageBuffer, bench.Chip_Contents());
  EXPECT_TRUE(Panel(1).starts_with("読み出し終了。 (")) << Panel(1);
}

TEST_P(Every_Part, AByteGoesToItsOwnCellAndComesFromIt) {
  bench.Fill_Chip(3);
  bench.Fill_Image(4);
  const auto size = static_cast<std::int32_t>(ImageBuffer.size());
  Bytes expected = bench.Chip_Contents();
  for (const std::int32_t address : {0, size / 2 + 5, size - 1}) {
    const auto at = static_cast<std::size_t>(address);
    Select_Address(address);
    Cmd_WRITE_single_Click();
    Expect_Idle();
    EXPECT_EQ(Panel(1), "Finsh");
    expected[at] = ImageBuffer[at];
    ASSERT_EQ(bench.Chip_Contents(), expected) << "written at " << address;

    ImageBuffer[at] ^= 0xFF;
    Cmd_READ_single_Click();
    Expect_Idle();
    EXPECT_EQ(ImageBuffer[at], expected[at]) << "read at " << address;
    EXPECT_EQ(Panel(3), "アドレス:" + std::to_string(address));
  }
}

INSTANTIATE_TEST_SUITE_P(Catalogue, Every_Part, testing::ValuesIn(All_Parts()), [](const auto& test) {
  return test.param.Name + "_" + test.param.Firmware.substr(0, 1) + test.param.Firmware.substr(2);
});

TEST(C24_Block, ABlockSmallerThanTheChipLeavesTheRestAlone) {
  Chip_Bench bench("24C64", "5.00");
  bench.Fill_Chip(5);
  bench.Fill_Image(6);
  frmMain.CmbSize.Set_ListIndex(2);
  Bytes expected = bench.Chip_Contents();
  std::copy_n(ImageBuffer.begin(), 64, expected.begin());
  Cmd_WRITE_all_Click();
  EXPECT_EQ(bench.Chip_Contents(), expected);
  EXPECT_EQ(frmMain.CmbSize.ListIndex(), 2);

  Cmd_READ_all_Click();
  std::fill(expected.begin() + 64, expected.end(), std::uint8_t{0xFF});
  EXPECT_EQ(ImageBuffer, expected);
}

TEST(C24_Block, APageThatDoesNotDivideTheBlockEndsAtItsLastByte) {
  Chip_Bench bench("24C64", "5.00");
  bench.Fill_Image(7);
  const Bytes image = ImageBuffer;
  PageSize = 24;
  AddressMode = 2;
  Cmd_WRITE_all_Click();
  EXPECT_EQ(LinkError, 0);
  EXPECT_EQ(ImageBuffer, image);
}

TEST(C24_Block, ThePercentageMovesAtEachWholeNumber) {
  Chip_Bench bench("24C00", "5.00");
  std::vector<std::string> shown{Panel(3)};
  bench.On_Yield = [&] {
    if (Panel(3) != shown.back()) shown.push_back(Panel(3));
  };
  Cmd_READ_all_Click();
  EXPECT_EQ(shown, (std::vector<std::string>{"アドレス:0", "7%", "13%", "20%", "27%", "33%", "40%", "47%",
                                             "53%", "60%", "67%", "73%", "80%", "87%", "93%", "100%"}));
  EXPECT_EQ(Panel(3), "アドレス:0") << "the refill tells the address again";
}

TEST(C24_Block, WholeSecondsAreRoundedDown) {
  Chip_Bench bench("24C00", "5.00");
  bool passed = false;
  bench.On_Yield = [&] {
    if (!passed) bench.Pass(11.5);
    passed = true;
  };
  Cmd_WRITE_all_Click();
  EXPECT_EQ(Panel(1), "書き込み終了。 (12sec)");
}

TEST(C24_Byte, TheCellIsUpToDateAfterAReadAndTheChecksumIsNot) {
  Chip_Bench bench("24C02", "4.90");
  bench.Cells->Write(31, 0x0A);
  Select_Address(31);
  Cmd_READ_single_Click();
  EXPECT_EQ(frmMain.MSFGrid1.Text(), "0x0A");
  EXPECT_EQ(frmMain.Text_modify_hex.Text(), "0A");
  EXPECT_EQ(frmMain.LblCheckSUM.Caption(), "CheckSum:FF00");
}

TEST(C24_Byte, TheAsciiColumnStandsForTheLastByteOfItsRow) {
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
