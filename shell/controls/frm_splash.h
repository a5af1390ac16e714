// The splash window as plain data: what stands on the screen while the program gets ready.
#pragma once

#include "shell/controls/form.h"

namespace wrenbit {

struct Frm_Splash : Form {
  static constexpr Font kDisplay{.Face = Typeface::Display, .Points = 32.25};

  Frm_Splash() : Form(6525, 3180) {
    AccessibleName = Frame1.AccessibleName = "起動画面";
    imgLogo.AccessibleName = "ロゴ";
  }

  Frame Frame1{*this, {120, 45, 6285, 3015}, ""};
  PictureBox imgLogo{Frame1, {240, 495, 1890, 1890}, Picture::Logo};
  Label Label2{
      Frame1, {2190, 420, 3930, 300}, "ＷＲＥＮＢＩＴプログラマー", {.Points = 12}, Alignment::Centre};
  // Two names a few twips apart, so that they read as one with a shadow.
  Label lblProductNameA{Frame1, {2220, 885, 3930, 870}, "WRENBIT", kDisplay, Alignment::Centre, 0xB8B8B8};
  Label lblProductName{Frame1, {2190, 855, 3930, 870}, "WRENBIT", kDisplay, Alignment::Centre, 0x17365D};
  Label lblVersion{Frame1, {2190, 1800, 3930, 270}, "ﾊﾞｰｼﾞｮﾝ", {}, Alignment::Centre};
  Label Label1{Frame1, {2190, 2460, 3930, 300}, "しばらくお待ちください。", {}, Alignment::Centre};
};

inline Frm_Splash frmSplash;

}  // namespace wrenbit
