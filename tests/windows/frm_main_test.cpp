// Every button and menu entry of the main window does what its caption says.
#include "shell/controls/frm_main.h"

#include <utility>

#include "core/state/app.h"
#include "shell/controls/frm_about.h"
#include "shell/controls/frm_com.h"
#include "tests/support/chip_bench.h"

namespace wrenbit {
namespace {

class Main_Window : public testing::Test {
 protected:
  Chip_Bench bench{"24C00", "5.00"};
};

TEST_F(Main_Window, EachCommandHasItsOwnEffect) {
  std::string dialog;
  frmMain.dlgCommonDialog.View_Open = [&] { return dialog = "open", false; };
  frmMain.dlgCommonDialog.View_Save = [&] { return dialog = "save", false; };
  const auto opened = [&] { return dialog == "open"; };
  const auto saved = [&] { return dialog == "save"; };
  const auto port_window = [] { return frmCom.Visible(); };
  // Chip and image begin with other bytes at every address.
  const Bytes image(16, 0x11), chip(16, 0x22);
  Bytes byte_read = image, byte_written = chip;
  std::swap(byte_read[0], byte_written[0]);
  const auto holds = [&](const Bytes& in_image, const Bytes& in_chip) {
    return [=, this] { return ImageBuffer == in_image && bench.Chip_Contents() == in_chip; };
  };

  App.HelpFile = "/there/WRENBIT.HLP";
  const auto expect = [&](auto& control, const char* caption, const std::function<bool()>& happened) {
    SCOPED_TRACE(caption);
    dialog.clear();
    ImageBuffer = image;
    for (std::size_t address = 0; address < 16; ++address) bench.Cells->Write(address, chip[address]);
    frmCom.Unload();
    frmMain.sbStatusBar.Set_Panel(1, "");
    EXPECT_EQ(control.Caption(), caption);
    EXPECT_FALSE(happened());
    control.Click();
    EXPECT_TRUE(happened());
  };
  expect(frmMain.Cmd_Open, "開く", opened);
  expect(frmMain.Cmd_SaveAs, "保存", saved);
  expect(frmMain.Cmd_Port, "通信ポート", port_window);
  expect(frmMain.Cmd_READ_all, "Block Read", holds(chip, chip));
  expect(frmMain.Cmd_WRITE_all, "Block Write", holds(image, image));
  expect(frmMain.Cmd_READ_single, "Byte Read", holds(byte_read, chip));
  expect(frmMain.Cmd_WRITE_single, "Byte Write", holds(image, byte_written));
  expect(frmMain.mnuFileOpen, "ファイルをロード(&O)...", opened);
  expect(frmMain.mnuFileSaveAs, "名前を付けて保存(&A)...", saved);
  expect(frmMain.mnuBufferClear, "バッファをクリア(&B)",
         [] { return Panel(1) == "ＰＣのバッファをクリアしました。"; });
  expect(frmMain.mnuToolsOptions, "COMポート設定(&O)...", port_window);
  expect(frmMain.mnuHelpAbout, "ﾊﾞｰｼﾞｮﾝ情報(&A)", [] { return frmAbout.Visible(); });
  expect(frmMain.mnuHelpContents, "目次(&C)", [&] { return bench.Helps == std::vector{App.HelpFile}; });
  expect(frmMain.mnuFileExit, "終了(&X)", [&] { return bench.Ended; });
  frmMain.dlgCommonDialog = {};
}

TEST_F(Main_Window, HelpThatCannotShowIsTold) {
  frmMain.Set_Caption("Caption");
  bench.HelpAnswer = "the reason";
  frmMain.mnuHelpContents.Click();
  EXPECT_EQ(bench.BoxIcon, Message_Icon::Information);
  App.HelpFile = "/there/WRENBIT.HLP";
  frmMain.mnuHelpContents.Click();
  EXPECT_EQ(bench.BoxIcon, Message_Icon::None);
  EXPECT_EQ(bench.Boxes, (std::vector<std::string>{"Caption | ﾍﾙﾌﾟの目次を表示できません。 "
                                                   "このﾌﾟﾛｼﾞｪｸﾄに関連付けられたﾍﾙﾌﾟが存在しません。",
                                                   "wrenbit | the reason"}));
}

}  // namespace
}  // namespace wrenbit
