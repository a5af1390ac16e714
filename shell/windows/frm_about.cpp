#include "shell/controls/frm_about.h"

#include "core/state/app.h"
#include "core/state/platform.h"
#include "shell/windows/window_events.h"

namespace wrenbit {
namespace {

// The first opening of a run shows what the start-up wrote over these; every later one shows them.
void Form_Load() {
  frmAbout.Set_Caption(App.Title + "のﾊﾞｰｼﾞｮﾝ情報");
  frmAbout.lblVersion.Set_Caption("ﾊﾞｰｼﾞｮﾝ " + App_Version());
  frmAbout.lblTitle.Set_Caption(App_Title_Upper());
  frmAbout.lblDescription.Set_Caption(App.FileDescription);
  frmAbout.lblDisclaimer.Set_Caption(App.Comments);
}

}  // namespace

void Wire_frmAbout() {
  frmAbout.Form_Load = Form_Load;
  frmAbout.cmdOK.Click = [] { frmAbout.Unload(); };
  frmAbout.Command1.Click = [] { ThePlatform->Open_Address(kSupportPage); };
}

}  // namespace wrenbit
