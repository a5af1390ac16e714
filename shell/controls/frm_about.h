// The version window as plain data.
#pragma once

#include "shell/controls/form.h"

namespace wrenbit {

struct Frm_About : Form {
  Frm_About() : Form(5730, 3315) {
    cmdOK.Default = cmdOK.Cancel = true;
    picIcon.AccessibleName = "wrenbit";
  }

  PictureBox picIcon{*this, {585, 450, 540, 540}, Picture::Program};
  Label lblTitle{*this, {1755, 495, 915, 255}, ""};
  Label lblVersion{*this, {2700, 495, 1770, 225}, ""};
  Label Label_wrenbit_rev{*this, {1755, 855, 3705, 240}, "wrenbit.iniバージョン"};
  Label lblDescription{*this, {675, 1395, 4740, 630}, ""};
  Label lblDisclaimer{*this, {255, 2625, 3870, 240}, ""};
  CommandButton cmdOK{*this, {4455, 2610, 1200, 615}, "閉じる"};
  CommandButton Command1{*this, {180, 2925, 3750, 285}, "サポートホームページへジャンプ"};
  Line Line1{*this, {180, 2430, 5370, 15}, 0x808080};
  Line Line2{*this, {180, 2445, 5370, 15}, 0xFFFFFF};
};

inline Frm_About frmAbout;

}  // namespace wrenbit
