// The version window as plain data.
#pragma once

#include "form.h"

namespace wrenbit {

struct Frm_About : Form {
  Frm_About() : Form(5730, 3315) {}

  Label lblTitle{*this, {1755, 495, 915, 255}, ""};
  Label lblVersion{*this, {2700, 495, 1770, 225}, ""};
  Label Label_wrenbit_rev{*this, {1755, 855, 3705, 240}, "wrenbit.iniバージョン"};
  Label lblDescription{*this, {675, 1395, 4740, 630}, ""};
  Label lblDisclaimer{*this, {255, 2625, 3870, 240}, ""};
  CommandButton cmdOK{*this, {4455, 2610, 1200, 615}, "閉じる"};  // Enter and Escape press it.
  CommandButton Command1{*this, {180, 2925, 3750, 285}, "サポートホームページへジャンプ"};
};

inline Frm_About frmAbout;

}  // namespace wrenbit
