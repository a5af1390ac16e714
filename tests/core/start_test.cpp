// The start of the program: what it shows and in which order, what it refuses, and what it takes from the
// last run.
#include "core/start.h"

#include <filesystem>
#include <utility>

#include "core/state/app.h"
#include "core/state/utf8_path.h"
#include "shell/controls/windows.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/test_bench.h"

namespace wrenbit {
namespace {

class Start : public testing::Test {
 protected:
  Test_Bench bench;
  const Temporary_Folder folder;
  const std::filesystem::path place = std::filesystem::path(folder.Path()) / u8"表示ソフト";
  const std::filesystem::path before = std::filesystem::current_path();

  void SetUp() override {
    std::filesystem::create_directory(place);
    App.Path = Utf8_Of(place);
  }
  void TearDown() override { std::filesystem::current_path(before); }
  void Catalogue_File(const std::string& text) const { Put_Content(place / "wrenbit.ini", text); }
};

constexpr const char* kRows = "Ver 1.00\n24C02 I2C 2 8 8 1 0 2Kbit\nLONGNAMED I2C 2 4 1 1 0 128bit\n";
const std::string kBox = "ＷＲＥＮＢＩＴプログラマー メッセージ | ";

TEST_F(Start, TheFirstRunOpensWithTheFirstRowAndTheSmallestBlock) {
  Catalogue_File(kRows);
  ASSERT_TRUE(Main());
  EXPECT_TRUE(frmMain.Visible());
  EXPECT_FALSE(frmSplash.Visible());
  EXPECT_EQ(frmMain.Left(), 1000);
  EXPECT_EQ(frmMain.Top(), 1000);
  const std::pair<std::string, std::string> texts[] = {
      {frmMain.Caption(), "Wrenbit Programmer Ver 1.2.10  "},
      {frmMain.Combo_device.Text(), "24C02    I2C"},
      {frmMain.Combo_device.List(1), "LONGNAMEDI2C"},
      {frmMain.CmbSize.Text(), "16"},
      {frmMain.Label_wrenbitini.Caption(), "WRENBIT.INI  Ver 1.00"},
      {frmAbout.lblVersion.Caption(), "Ver 1.2.10"},
      {frmAbout.lblDisclaimer.Caption(), "ｻﾎﾟｰﾄﾍﾟｰｼﾞ : https://wrenbit.example/support"},
      {Panel(1) + Panel(2), ""},
      {Panel(3), "アドレス:0"},
      {Panel(4), "2Kbit"},
      {frmMain.Text_modify_hex.Text(), "FF"},
  };
  for (const auto& [shown, wanted] : texts) EXPECT_EQ(shown, wanted);
  EXPECT_TRUE(bench.Opened.empty()) << "the port is not touched";
  EXPECT_TRUE(bench.Boxes.empty());
}

TEST_F(Start, TheLastRunIsTakenUpAgainAndAWrongValueCountsAsZero) {
  Catalogue_File(kRows);
  const struct {
    std::string Dut, AccessSize, Left;
    int Row, SizeIndex;
    double LeftTwips;
  } cases[] = {{"1", "0", "-250.5", 1, 0, -250.5},
               {"0", "3", "30", 0, 3, 30},
               {"2", "14", "", 0, 0, 1000},
               {"-1", "x", "1e5", 0, 0, 1000}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.Dut + " " + c.AccessSize);
    Reset_State();
    bench.Stored = {{"DUT", c.Dut}, {"AccessSize", c.AccessSize}, {"MainLeft", c.Left}};
    ASSERT_TRUE(Main());
    EXPECT_EQ(frmMain.Combo_device.ListIndex(), c.Row);
    EXPECT_EQ(frmMain.CmbSize.ListIndex(), c.SizeIndex);
    EXPECT_EQ(frmMain.Left(), c.LeftTwips);
  }
}

TEST_F(Start, ASecondInstanceEndsWithoutAWordAndWithoutACatalogueItSaysSo) {
  App.PrevInstance = true;
  EXPECT_FALSE(Main());
  EXPECT_TRUE(bench.Boxes.empty());
  App.PrevInstance = false;
  EXPECT_FALSE(Main());
  Catalogue_File("; nothing but a comment\nVer 1\n");
  EXPECT_FALSE(Main());
  const std::string here = kBox + Utf8_Of(place / "");
  const std::string stop = "         \r\nＷＲＥＮＢＩＴプログラマーの起動を中止しました。";
  EXPECT_EQ(bench.Boxes, (Texts{here + "内に wrenbit.iniファイルがありませんので" + stop,
                                here + "内の wrenbit.iniファイルにデバイスの行がありませんので" + stop}));
  EXPECT_FALSE(frmMain.Loaded());
  EXPECT_TRUE(bench.Stored.empty());
  EXPECT_TRUE(frmSplash.Visible()) << "behind the message";
}

TEST_F(Start, BadRowsAreToldOnceAndTheGoodOnesServe) {
  std::string rows = "24C02 I2C 2 8 8 1 0 2Kbit\n";
  for (int i = 0; i < 17; ++i) rows = "A I2C 2 eight\n" + rows;
  Catalogue_File(rows);
  bench.Stored["DUT"] = "17";
  // Dismisses the splash; the start goes on.
  bool seen = false;
  bench.On_Yield = [&] {
    seen = seen || frmSplash.Visible();
    frmSplash.Form_KeyPress();
    EXPECT_FALSE(frmSplash.Visible());
  };
  EXPECT_TRUE(Main() && seen);
  ASSERT_EQ(bench.Boxes.size(), 1U);
  EXPECT_NE(bench.Boxes[0].find("\r\n1行目: A の列3"), std::string::npos);
  EXPECT_EQ(bench.Boxes[0].find("16行目"), std::string::npos);
  EXPECT_TRUE(bench.Boxes[0].ends_with("\r\nほか2件")) << bench.Boxes[0];
  EXPECT_EQ(frmMain.Combo_device.Text(), "24C02    I2C");
  EXPECT_TRUE(frmMain.Visible());
}

TEST_F(Start, ClosingStoresThePositionUnlessMinimised) {
  Catalogue_File(kRows);
  for (const bool minimised : {true, false}) {
    Reset_State();
    ASSERT_TRUE(Main());
    frmMain.Move(345, 67.5);
    frmMain.Set_Minimised(minimised);
    bench.Stored.clear();
    frmMain.Close();
    EXPECT_TRUE(bench.Ended);
    EXPECT_EQ(bench.Stored.contains("MainLeft"), !minimised);
  }
  EXPECT_EQ(bench.Stored["MainLeft"] + " " + bench.Stored["MainTop"], "345 67.5");
}

}  // namespace
}  // namespace wrenbit
