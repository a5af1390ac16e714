// Load and save through the dialogs: texts, titles, remembered folders, and what a refusal leaves behind.
#include "core/file_commands.h"

#include <filesystem>

#include "core/state/app.h"
#include "editor/hex_grid.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/test_bench.h"

namespace wrenbit {
namespace {

class File_Commands : public testing::Test {
 protected:
  Test_Bench bench;
  const Temporary_Folder folder;
  CommonDialog& dialog = frmMain.dlgCommonDialog;
  std::string answer;  // The path that the user picks; empty cancels.

  void SetUp() override {
    dialog.View_Open = dialog.View_Save = [this] {
      if (answer.empty()) return false;
      dialog.FileName = answer;
      dialog.FileTitle = std::filesystem::path(answer).filename().string();
      return true;
    };
    MainTitle = "Title  ";
    MemSize = 7;
    Buffer_Init();
  }
  void TearDown() override { dialog.View_Open = dialog.View_Save = nullptr; }
};

TEST_F(File_Commands, ASavedImageComesBack) {
  for (std::size_t i = 0; i < 128; ++i) ImageBuffer[i] = static_cast<std::uint8_t>(i * 3);
  const Bytes image = ImageBuffer;
  answer = folder / "a.hex";
  mnuFileSaveAs_Click();
  EXPECT_EQ(Panel(1), "ファイルに保存終了。 ");
  EXPECT_EQ(bench.Stored["SAVE_DIR"], folder.Path());

  Buffer_Init();
  frmMain.Set_Caption("");
  bench.Stored["OPEN_DIR0"] = "/last";
  mnuFileOpen_Click();
  EXPECT_EQ(dialog.InitDir + dialog.DefaultExt + dialog.Filter,
            "/lastHEXHexファイル|*.HEX|全てのファイル|*.*|");
  EXPECT_EQ(ImageBuffer, image);
  EXPECT_EQ(frmMain.MSFGrid1.Cell(8, 16), "0x7D");
  EXPECT_EQ(Panel(1), "ファイルオープン完了");
  EXPECT_EQ(frmMain.Caption(), "Title  " + answer);
  EXPECT_EQ(bench.Stored["OPEN_DIR0"], folder.Path());
  EXPECT_EQ(frmMain.MousePointer(), Pointer::Default);
}

TEST_F(File_Commands, ACancelledOrMissingFileChangesNothing) {
  ImageBuffer[0] = 1;
  const std::string caption = frmMain.Caption();
  const std::string too_large = folder / "large.hex";
  Put_Content(too_large, "");
  std::filesystem::resize_file(too_large, 300 << 20);
  for (const std::string& path : {folder / "none.hex", folder.Path(), too_large, std::string()}) {
    SCOPED_TRACE(path);
    answer = path;
    mnuFileOpen_Click();
    EXPECT_EQ(Panel(1), "ファイルをオープンできませんでした。");
  }
  mnuFileSaveAs_Click();
  EXPECT_EQ(Panel(1), "ファイル保存をキャンセルしました。");
  EXPECT_EQ(ImageBuffer[0], 1);
  EXPECT_EQ(frmMain.Caption(), caption);
  EXPECT_TRUE(bench.Stored.empty());
}

TEST_F(File_Commands, AnExistingFileIsAskedForAndStandsWhenRefused) {
  answer = folder / "a.hex";
  Put_Content(answer, "old");
  bench.BoxAnswer = false;
  mnuFileSaveAs_Click();
  EXPECT_EQ(bench.Boxes, Texts{"上書き保存 | ファイルが存在します。上書きしますか？"});
  EXPECT_EQ(Panel(1), "ファイル保存をキャンセルしました。");
  EXPECT_EQ(Content(answer), "old");
  EXPECT_TRUE(bench.Stored.empty());

  bench.BoxAnswer = true;
  mnuFileSaveAs_Click();
  EXPECT_EQ(Content(answer).substr(0, 9), ":10000000");
  EXPECT_EQ(frmMain.Caption(), "Title  " + answer);
}

TEST_F(File_Commands, ADeviceWithoutASizeTakesNoFileAndOverwritesNone) {
  answer = folder / "a.hex";
  Put_Content(answer, "good");
  MemSize = 2;
  Buffer_Init();
  for (const auto command : {mnuFileOpen_Click, mnuFileSaveAs_Click}) {
    command();
    EXPECT_EQ(Panel(1), "デバイスのメモリサイズが正しくありません。");
    EXPECT_EQ(Content(answer), "good");
  }
}

TEST_F(File_Commands, WhatCannotBeWrittenIsToldWithItsReason) {
  answer = folder / "no such folder/a.hex";
  mnuFileSaveAs_Click();
  EXPECT_EQ(bench.Boxes, Texts{App.Title + " | ファイルを保存できませんでした。\r\n" + answer +
                               "\r\n保存先のフォルダが見つかりません。"});
  EXPECT_EQ(Panel(1), "ファイルを保存できませんでした。");
  EXPECT_EQ(frmMain.MousePointer(), Pointer::Default);
}

}  // namespace
}  // namespace wrenbit
