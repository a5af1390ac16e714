#include "shell/controls/frm_main.h"

#include <cstdio>
#include <string>

#include "core/device_selection.h"
#include "core/file_commands.h"
#include "core/state/app.h"
#include "core/state/number_text.h"
#include "core/state/platform.h"
#include "core/state/settings.h"
#include "core/transfer_commands.h"
#include "editor/cell_selection.h"
#include "editor/edit_panel.h"
#include "editor/hex_grid.h"
#include "shell/controls/windows.h"
#include "shell/windows/window_events.h"

namespace wrenbit {
namespace {

constexpr double kFirstPosition = 1000;  // Twips.
constexpr int kLargestChip = 17;         // 2^17 bytes, the most that the two-byte address form reaches.

double Stored_Position(const char* name) {
  return Decimal_Number(GetSetting(name, "")).value_or(kFirstPosition);
}

// Without trailing zeros: "1000", "1000.5".
std::string Position_Text(double twips) {
  char text[32];
  std::snprintf(text, sizeof text, "%.10g", twips);
  return text;
}

// The block sizes stand until the first device is selected.
void Form_Load() {
  frmMain.Move(Stored_Position(key::kMainLeft), Stored_Position(key::kMainTop));
  Offer_Block_Sizes(kLargestChip);
  if (!frmMain.CmbSize.Set_ListIndex(static_cast<int>(Get_Number_Setting(key::kAccessSize, 0))))
    frmMain.CmbSize.Set_ListIndex(0);
}

void Form_Unload() {
  if (!frmMain.Minimised()) {
    SaveSetting(key::kMainLeft, Position_Text(frmMain.Left()));
    SaveSetting(key::kMainTop, Position_Text(frmMain.Top()));
  }
  ThePlatform->End();
}

void mnuHelpContents_Click() {
  if (App.HelpFile.empty()) {
    MsgBox("ﾍﾙﾌﾟの目次を表示できません。 このﾌﾟﾛｼﾞｪｸﾄに関連付けられたﾍﾙﾌﾟが存在しません。",
           Message_Icon::Information, Message_Buttons::Ok, frmMain.Caption());
    return;
  }
  const std::string error = ThePlatform->Show_Help(App.HelpFile);
  if (!error.empty()) MsgBox(error, Message_Icon::None, Message_Buttons::Ok, App.Title);
}

void Show_frmCom() { frmCom.Show_Modal(); }

}  // namespace

void Wire_frmMain() {
  frmMain.Form_Load = Form_Load;
  frmMain.Form_Unload = Form_Unload;
  frmMain.Close_Asked = Main_Window_Close;

  frmMain.Combo_device.Click = Combo_device_Click;
  frmMain.CmbSize.Click = CmbSize_Click;
  frmMain.MSFGrid1.Click = MSFGrid1_Click;
  frmMain.Text_modify_hex.KeyPress = Text_modify_hex_KeyPress;
  frmMain.Text_modify_hex.Change = Text_modify_hex_Change;
  frmMain.Text_modify_dec.Change = Text_modify_dec_Change;
  frmMain.Text_modify_asc.Change = Text_modify_asc_Change;
  for (CheckBox& bit : frmMain.ChkBin) bit.Click = ChkBin_Click;

  frmMain.Cmd_READ_all.Click = Cmd_READ_all_Click;
  frmMain.Cmd_WRITE_all.Click = Cmd_WRITE_all_Click;
  frmMain.Cmd_READ_single.Click = Cmd_READ_single_Click;
  frmMain.Cmd_WRITE_single.Click = Cmd_WRITE_single_Click;
  frmMain.Cmd_Open.Click = mnuFileOpen_Click;
  frmMain.Cmd_SaveAs.Click = mnuFileSaveAs_Click;
  frmMain.Cmd_Port.Click = Show_frmCom;

  frmMain.mnuFileOpen.Click = mnuFileOpen_Click;
  frmMain.mnuFileSaveAs.Click = mnuFileSaveAs_Click;
  frmMain.mnuFileExit.Click = Main_Window_Close;
  frmMain.mnuBufferClear.Click = mnuBufferClear_Click;
  frmMain.mnuToolsOptions.Click = Show_frmCom;
  frmMain.mnuHelpContents.Click = mnuHelpContents_Click;
  frmMain.mnuHelpAbout.Click = [] { frmAbout.Show_Modal(); };
}

}  // namespace wrenbit
