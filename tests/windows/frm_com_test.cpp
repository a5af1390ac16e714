// The port settings window: what it tries, what it stores, and that it lets go of the port.
#include "shell/controls/frm_com.h"

#include "tests/support/chip_bench.h"

namespace wrenbit {
namespace {

class Port_Window : public testing::Test {
 protected:
  Test_Bench bench;
};

TEST_F(Port_Window, ShowsWhatIsStoredAndStoresAPickAlsoWhenThePortCannotBeUsed) {
  bench.Stored = {{"ComNo", "4"}, {"RTS", "0"}, {"DTR", "1"}};
  frmCom.Show_Modal();
  EXPECT_EQ(frmCom.Cmb_com.Text(), "5");
  EXPECT_EQ(frmCom.CheckRTS.Value(), 0);
  EXPECT_EQ(frmCom.CheckDTR.Value(), 1);
  EXPECT_TRUE(bench.Opened.back().starts_with("COM5 "));
  frmCom.CheckRTS.Set_Value(1);
  EXPECT_EQ(bench.Stored["RTS"], "1");

  EXPECT_TRUE(bench.Kept.empty()) << "only the user picks";
  bench.Refusal = Port_Fault::No_Such_Port;
  frmCom.Cmb_com.Set_ListIndex(19);
  EXPECT_EQ(bench.Kept, std::vector<int>{20});
  EXPECT_EQ(bench.Boxes, std::vector<std::string>{"wrenbit | 指定した通信ポートは使用できませんでした。"});
  EXPECT_EQ(bench.Stored["ComNo"], "19");
  EXPECT_FALSE(bench.Is_Open());
  EXPECT_TRUE(frmCom.Visible());
}

TEST_F(Port_Window, AfterATransferItLeavesThePortAloneUntilAPick) {
  bench.Stored["ComNo"] = "2";
  Select_Device(2, 8, 8, 1);
  Cmd_READ_single_Click();
  EXPECT_EQ(bench.Opened.size(), 1u);
  frmCom.Show_Modal();
  EXPECT_EQ(frmCom.Cmb_com.Text(), "3");
  EXPECT_FALSE(bench.Is_Open());
  frmCom.Cmb_com.Set_ListIndex(2);
  EXPECT_TRUE(bench.Is_Open());
  frmCom.Close();
  EXPECT_FALSE(bench.Is_Open());
  frmCom.Show_Modal();
  EXPECT_TRUE(bench.Is_Open()) << "closed, it is loaded afresh";
}

TEST_F(Port_Window, APortThatGoesWhileTheWindowHoldsItIsTold) {
  frmCom.Show_Modal();
  frmMain.sbStatusBar.Set_Panel(1, "Finsh");
  bench.On_Lost();
  EXPECT_EQ(Panel(1), "ポートが切断されました。");
  EXPECT_EQ(Panel(2), "COM1 : ライター未接続");
}

TEST_F(Port_Window, EachEntryTellsItsDevice) {
  bench.Devices = {{1, {"/dev/ttyUSB0", true, "Maker", "UART bridge"}},
                   {3, {.Maker = "Maker", .Serial = "A5"}},
                   {20, {.Path = "/dev/ttyS0", .ReceiveTrigger = 8}}};
  EXPECT_EQ(frmCom.Cmb_com.Tip(0), "/dev/ttyUSB0  Maker  UART bridge");
  EXPECT_EQ(frmCom.Cmb_com.Tip(1), "この番号のシリアルポートはありません。");
  EXPECT_EQ(frmCom.Cmb_com.Tip(2), "Maker  A5  接続されていません。");
  EXPECT_EQ(frmCom.Cmb_com.Tip(19), "/dev/ttyS0  受信を8バイトまとめるので応答が遅れます。");

  frmCom.Show_Modal();
  frmCom.Cmb_com.Tip(2);
  bench.Devices[3] = {.Path = "/dev/ttyUSB1", .Serial = "B5"};
  frmCom.Cmb_com.Set_ListIndex(2);
  EXPECT_TRUE(bench.Kept.empty()) << "another than the tip named";
}

}  // namespace
}  // namespace wrenbit
