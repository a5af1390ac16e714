#include "core/file_commands.h"

#include <cstddef>
#include <optional>

#include "core/state/app.h"
#include "core/state/platform.h"
#include "core/state/settings.h"
#include "core/state/state.h"
#include "core/state/whole_file.h"
#include "editor/hex_grid.h"
#include "image/image_buffer.h"
#include "image/intel_hex.h"
#include "shell/controls/frm_main.h"

namespace wrenbit {
namespace {

void Message(const std::string& text) { frmMain.sbStatusBar.Set_Panel(1, text); }

void Prepare_Dialog(const char* folder_key, const char* filter) {
  frmMain.dlgCommonDialog.DialogTitle.clear();
  frmMain.dlgCommonDialog.InitDir = GetSetting(folder_key, "");
  frmMain.dlgCommonDialog.Filter = filter;
  frmMain.dlgCommonDialog.DefaultExt = "HEX";
}

// The path up to, not including, the character before the first place where the title stands in it.
std::string Folder_Of(const std::string& path, const std::string& title) {
  const std::size_t at = path.find(title);
  return at == path.npos || at == 0 ? std::string() : path.substr(0, at - 1);
}

void Remember_Folder(const char* folder_key) {
  SaveSetting(folder_key, Folder_Of(frmMain.dlgCommonDialog.FileName, frmMain.dlgCommonDialog.FileTitle));
}

}  // namespace

void mnuFileOpen_Click() {
  constexpr const char* kNotOpened = "ファイルをオープンできませんでした。";
  if (!Image_Usable()) return Message(kWrongSize);
  Message("しばらくお待ちください。");
  Prepare_Dialog(key::kOpenDir, "Hexファイル|*.HEX|全てのファイル|*.*|");
  frmMain.dlgCommonDialog.FileName = "*.HEX";
  if (!frmMain.dlgCommonDialog.ShowOpen()) return Message(kNotOpened);
  HexFilePath = frmMain.dlgCommonDialog.FileName;
  const std::optional<std::string> text = Read_Whole_File(HexFilePath);
  if (!text) return Message(kNotOpened);
  Remember_Folder(key::kOpenDir);
  frmMain.Set_Caption(MainTitle + HexFilePath);

  frmMain.Set_MousePointer(Pointer::Hourglass);
  Message("ファイルをロードしています..........");
  Image_Create();
  Intel_Hex_Load(*text);
  Grid_Refill();
  Message("ファイルオープン完了");
  frmMain.Set_MousePointer(Pointer::Default);
}

void mnuFileSaveAs_Click() {
  constexpr const char* kCancelled = "ファイル保存をキャンセルしました。";
  if (!Image_Usable()) return Message(kWrongSize);
  Prepare_Dialog(key::kSaveDir, "Hexファイル|*.hex|全てのファイル|*.*|");
  if (!frmMain.dlgCommonDialog.ShowSave()) {
    frmMain.Set_MousePointer(Pointer::Default);
    return Message(kCancelled);
  }
  HexFilePath = frmMain.dlgCommonDialog.FileName;
  if (File_Exists(HexFilePath) && !MsgBox("ファイルが存在します。上書きしますか？", Message_Icon::Question,
                                          Message_Buttons::OkCancel, "上書き保存"))
    return Message(kCancelled);
  frmMain.Set_Caption(MainTitle + HexFilePath);
  Remember_Folder(key::kSaveDir);

  Message("ファイルに保存中..... ");
  frmMain.Set_MousePointer(Pointer::Hourglass);
  const std::optional<std::string> failure = Write_Whole_File(HexFilePath, Intel_Hex_Text());
  frmMain.Set_MousePointer(Pointer::Default);
  if (!failure) return Message("ファイルに保存終了。 ");
  Message("ファイルを保存できませんでした。");
  MsgBox("ファイルを保存できませんでした。\r\n" + HexFilePath + "\r\n" + *failure, Message_Icon::Critical,
         Message_Buttons::Ok, App.Title);
}

}  // namespace wrenbit
