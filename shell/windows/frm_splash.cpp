#include "shell/controls/frm_splash.h"

#include "core/state/app.h"
#include "shell/windows/window_events.h"

namespace wrenbit {
namespace {

void Form_Load() {
  frmSplash.lblVersion.Set_Caption("ﾊﾞｰｼﾞｮﾝ " + App_Version());
  frmSplash.lblProductName.Set_Caption(App_Title_Upper());
}

}  // namespace

void Wire_frmSplash() {
  frmSplash.Form_Load = Form_Load;
  frmSplash.Form_KeyPress = [] { frmSplash.Unload(); };
  frmSplash.Frame1.Click = [] { frmSplash.Unload(); };
}

}  // namespace wrenbit
