#include "link/failure.h"

#include "core/state/state.h"
#include "shell/controls/frm_main.h"

namespace wrenbit {

void Fail(const std::string& why) {
  frmMain.sbStatusBar.Set_Panel(1, why);
  LinkError = 1;
}

}  // namespace wrenbit
