// The port settings window as plain data.
#pragma once

#include "shell/controls/form.h"
#include "shell/controls/lists_and_boxes.h"

namespace wrenbit {

struct Frm_Com : Form {
  Frm_Com() : Form(3810, 2700, "通信設定") { Cmb_com.AccessibleName = Label1.Caption(); }

  ComboBox Cmb_com{*this, {450, 585, 1500, 300}, {.Face = Typeface::FixedPitch, .Points = 9}};
  Label Label1{*this, {180, 225, 1455, 240}, "通信ポート番号"};
  CommandButton Cmd_Close{*this, {2430, 495, 1185, 420}, "閉じる"};
  Frame Frame1{*this, {180, 1350, 3435, 1185}, "通信ができないとき変更してみてください。"};
  CheckBox CheckRTS{Frame1, {360, 360, 2220, 285}, "RTS (通常チェック有り)", true};
  CheckBox CheckDTR{Frame1, {360, 630, 2220, 330}, "DTR (通常チェック無し)"};
};

inline Frm_Com frmCom;

}  // namespace wrenbit
