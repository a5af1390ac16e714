// Every button and menu entry of the main window does what its caption says.
#include "frm_main.h"

#include <gtest/gtest.h>

#include "app.h"
#include "chip_bench.h"
#include "frm_about.h"
#include "frm_com.h"

namespace wrenbit {
namespace {

struct Main_Window : testing::Test {
  Chip_Bench bench{"24C00", "5.00"};
  std::string Dialog;  // Which file dialog came up last.

  void SetUp() override {
    frmMain.dlgCommonDialog.View_Open = [this] { return Dialog = "open", false; };
    frmMain.dlgCommonDialog.View_Save = [this] { return Dialog = "save", false; };
  }
  void TearDown() override { frmMain.dlgCommonDialog = {}; }
};

TEST_F(Main_Window, EachCommandHasItsOwnEffect) {
  const auto opened = [this] { return Dialog == "open"; };
  const auto saved = [this] { return Dialog == "save"; };
  const auto port_window = [] { return frmCom.Visible(); };
  // Chip and image begin with other bytes at every address.
  const Bytes image(16, 0x11), chip(16, 0x22);
  const auto with_first = [](Bytes bytes, std::uint8_t first) {
    bytes[0] = first;
    return bytes;
  };
  const auto holds = [this](const Bytes& in_image, const Bytes& in_chip) {
    return [=, this] { return ImageBuffer == in_image && bench.Chip_Contents() == in_chip; };
  };
  const struct {
    Captioned* Control;
    const char* Caption;
    std::function<void()>* Event;
    std::function<bool()> Happened;
  } commands[] = {
      {&frmMain.Cmd_Open, "開く", &frmMain.Cmd_Open.Click, opened},
      {&frmMain.Cmd_SaveAs, "保存", &frmMain.Cmd_SaveAs.Click, saved},
      {&frmMain.Cmd_Port, "通信ポート", &frmMain.Cmd_Port.Click, port_window},
      {&frmMain.Cmd_READ_all, "Block Read", &frmMain.Cmd_READ_all.Click, holds(chip, chip)},
      {&frmMain.Cmd_WRITE_all, "Block Write", &frmMain.Cmd_WRITE_all.Click, holds(image, image)},
      {&frmMain.Cmd_READ_single, "Byte Read", &frmMain.Cmd_READ_single.Click,
       holds(with_first(image, 0x22), chip)},
      {&frmMain.Cmd_WRITE_single, "Byte Write", &frmMain.Cmd_WRITE_single.Click,
       holds(image, with_first(chip, 0x11))},
      {&frmMain.mnuFileOpen, "ファイルをロード(&O)...", &frmMain.mnuFileOpen.Click, opened},
      {&frmMain.mnuFileSaveAs, "名前を付けて保存(&A)...", &frmMain.mnuFileSaveAs.Click, saved},
      {&frmMain.mnuBufferClear, "バッファをクリア(&B)", &frmMain.mnuBufferClear.Click,
       [] { return frmMain.sbStatusBar.Panel(1) == "ＰＣのバッファをクリアしました。"; }},
      {&frmMain.mnuToolsOptions, "COMポート設定(&O)...", &frmMain.mnuToolsOptions.Click, port_window},
      {&frmMain.mnuHelpAbout, "ﾊﾞｰｼﾞｮﾝ情報(&A)", &frmMain.mnuHelpAbout.Click,
       [] { return frmAbout.Visible(); }},
      {&frmMain.mnuHelpContents, "目次(&C)", &frmMain.mnuHelpContents.Click,
       [this] { return bench.Helps == std::vector<std::string>{"/there/WRENBIT.HLP"}; }},
      {&frmMain.mnuFileExit, "終了(&X)", &frmMain.mnuFileExit.Click, [this] { return bench.Ended; }},
  };
  App.HelpFile = "/there/WRENBIT.HLP";
  for (const auto& command : commands) {
    SCOPED_TRACE(command.Caption);
    Dialog.clear();
    ImageBuffer = image;
    for (std::size_t address = 0; address < chip.size(); ++address)
      bench.Cells->Write(address, chip[address]);
    frmCom.Unload();
    frmMain.sbStatusBar.Set_Panel(1, "");
    EXPECT_EQ(command.Control->Caption(), command.Caption);
    EXPECT_FALSE(command.Happened());
    (*command.Event)();
    EXPECT_TRUE(command.Happened());
  }
}

TEST_F(Main_Window, HelpThatCannotShowIsTold) {
  frmMain.Set_Caption("Caption");
  bench.Help_Answer = "the reason";
  const struct {
    const char* HelpFile;
    Message_Icon Icon;
    std::string Box;
  } cases[] = {
      {"", Message_Icon::Information,
       "Caption | ﾍﾙﾌﾟの目次を表示できません。 このﾌﾟﾛｼﾞｪｸﾄに関連付けられたﾍﾙﾌﾟが存在しません。"},
      {"/there/WRENBIT.HLP", Message_Icon::None, "wrenbit | the reason"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.Box);
    App.HelpFile = c.HelpFile;
    bench.Boxes.clear();
    frmMain.mnuHelpContents.Click();
    EXPECT_EQ(bench.Boxes, std::vector<std::string>{c.Box});
    EXPECT_EQ(bench.Box_Icon, c.Icon);
  }
}

}  // namespace
}  // namespace wrenbit
