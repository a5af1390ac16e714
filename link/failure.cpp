#include "failure.h"

#include "frm_main.h"
#include "state.h"

namespace wrenbit {

void Fail(const std::string& why) {
  frmMain.sbStatusBar.Set_Panel(1, why);
  LinkError = 1;
}

}  // namespace wrenbit
