// The splash window as plain data: what stands on the screen while the program gets ready.
#pragma once

#include "form.h"

namespace wrenbit {

struct Frm_Splash : Form {
  Frm_Splash() : Form(6525, 3180) {}

  Frame Frame1{*this, {120, 45, 6285, 3015}, ""};
  // Two names a few twips apart, so that they read as one with a shadow.
  Label lblProductNameA{Frame1, {345, 885, 5670, 870}, "WRENBIT", {.Points = 32.25}, Alignment::Centre};
  Label lblProductName{Frame1, {315, 855, 5670, 870}, "WRENBIT", {.Points = 32.25}, Alignment::Centre};
  Label Label2{
      Frame1, {315, 420, 5670, 300}, "ＷＲＥＮＢＩＴプログラマー", {.Points = 12}, Alignment::Centre};
  Label lblVersion{Frame1, {315, 1800, 5670, 270}, "ﾊﾞｰｼﾞｮﾝ", {}, Alignment::Centre};
  Label Label1{Frame1, {315, 2460, 5670, 300}, "しばらくお待ちください。", {}, Alignment::Centre};

  // A key pressed while the window has the focus, whichever it is.
  std::function<void()> Form_KeyPress;
};

inline Frm_Splash frmSplash;

}  // namespace wrenbit
