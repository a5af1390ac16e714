// The start of the program: what it shows and in which order, what it refuses, and what it takes from the
// last run.
#include "start.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "app.h"
#include "fresh_state.h"
#include "state.h"
#include "temporary_folder.h"
#include "test_bench.h"
#include "windows.h"

namespace wrenbit {
namespace {

struct Start : testing::Test {
  Test_Bench bench;
  const Temporary_Folder folder;
  const std::filesystem::path before = std::filesystem::current_path();

  void SetUp() override { App.Path = folder.Path(); }
  void TearDown() override { std::filesystem::current_path(before); }
  void Catalogue_File(const std::string& text) const { Put_Content(folder / "wrenbit.ini", text); }
};

constexpr const char* kRows = "Ver 1.00\n24C02 I2C 2 8 8 1 0 2Kbit\nLONGNAMED I2C 2 4 1 1 0 128bit\n";
const std::string kBox = "ＷＲＥＮＢＩＴプログラマー メッセージ | ";

TEST_F(Start, TheFirstRunOpensWithTheFirstRowAndTheSmallestBlock) {
  Catalogue_File(kRows);
  ASSERT_TRUE(Main());
  EXPECT_TRUE(frmMain.Visible());
  EXPECT_FALSE(frmSplash.Visible());
  EXPECT_EQ(frmMain.Caption(), "Wrenbit Programmer Ver 1.2.10  ");
  EXPECT_EQ(frmMain.Left(), 1000);
  EXPECT_EQ(frmMain.Top(), 1000);
  EXPECT_EQ(frmMain.Combo_device.Text(), "24C02    I2C");
  EXPECT_EQ(frmMain.Combo_device.List(1), "LONGNAMEDI2C");
  EXPECT_EQ(frmMain.CmbSize.Text(), "16");
  EXPECT_EQ(frmMain.Label_wrenbitini.Caption(), "WRENBIT.INI  Ver 1.00");
  EXPECT_EQ(frmAbout.lblVersion.Caption(), "Ver 1.2.10");
  EXPECT_EQ(frmAbout.lblDisclaimer.Caption(), "ｻﾎﾟｰﾄﾍﾟｰｼﾞ : https://wrenbit.example/support");
  EXPECT_EQ(frmMain.sbStatusBar.Panel(1), "");
  EXPECT_EQ(frmMain.sbStatusBar.Panel(2), "");
  EXPECT_EQ(frmMain.sbStatusBar.Panel(3), "アドレス:0");
  EXPECT_EQ(frmMain.sbStatusBar.Panel(4), "2Kbit");
  EXPECT_EQ(frmMain.Text_modify_hex.Text(), "FF");
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
               {"-1", "-1", "abc", 0, 0, 1000},
               {"x", "x", "1e5", 0, 0, 1000}};
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

TEST_F(Start, ASecondInstanceEndsWithoutAWord) {
  Catalogue_File(kRows);
  App.PrevInstance = true;
  EXPECT_FALSE(Main());
  EXPECT_TRUE(bench.Boxes.empty());
  EXPECT_FALSE(frmMain.Loaded());
  EXPECT_TRUE(bench.Stored.empty());
}

TEST_F(Start, WithoutACatalogueItSaysSoAndEnds) {
  const std::string stop = "\r\nＷＲＥＮＢＩＴプログラマーの起動を中止しました。";
  const std::string here = folder.Path() + "/";
  EXPECT_FALSE(Main());
  Reset_State();
  Catalogue_File("; nothing but a comment\nVer 1\n");
  EXPECT_FALSE(Main());
  EXPECT_EQ(bench.Boxes,
            (std::vector<std::string>{
                kBox + here + "内に wrenbit.iniファイルがありませんので         " + stop,
                kBox + here + "内の wrenbit.iniファイルにデバイスの行がありませんので         " + stop}));
  EXPECT_FALSE(frmMain.Loaded());
  EXPECT_TRUE(frmSplash.Visible()) << "behind the message";
}

TEST_F(Start, BadRowsAreToldOnceAndTheGoodOnesServe) {
  Catalogue_File("A I2C 2 eight\n24C02 I2C 2 8 8 1 0 2Kbit\n");
  bench.Stored["DUT"] = "1";
  EXPECT_TRUE(Main());
  ASSERT_EQ(bench.Boxes.size(), 1U);
  EXPECT_NE(bench.Boxes[0].find("1行目: A の列3"), std::string::npos);
  EXPECT_EQ(frmMain.Combo_device.Text(), "24C02    I2C");
}

TEST_F(Start, ClosingStoresThePositionUnlessMinimised) {
  Catalogue_File(kRows);
  for (const bool minimised : {false, true}) {
    Reset_State();
    ASSERT_TRUE(Main());
    frmMain.Move(345, 67.5);
    frmMain.Set_Minimised(minimised);
    bench.Stored = {{"MainLeft", "1"}, {"MainTop", "2"}};
    frmMain.Close();
    EXPECT_TRUE(bench.Ended);
    EXPECT_EQ(bench.Stored["MainLeft"], minimised ? "1" : "345");
    EXPECT_EQ(bench.Stored["MainTop"], minimised ? "2" : "67.5");
  }
}

TEST_F(Start, AKeyOrAClickDismissesTheSplashAndTheStartGoesOn) {
  Catalogue_File(kRows);
  bench.On_Yield = [] { frmSplash.Form_KeyPress(); };
  EXPECT_TRUE(Main());
  EXPECT_TRUE(frmMain.Visible());
  EXPECT_FALSE(frmSplash.Visible());
}

}  // namespace
}  // namespace wrenbit
