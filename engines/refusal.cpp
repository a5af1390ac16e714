#include "refusal.h"

#include "frm_main.h"
#include "state.h"

namespace wrenbit {

void Refuse_Transfer(const char* why) {
  frmMain.sbStatusBar.Set_Panel(1, why);
  LinkError = 1;
}

}  // namespace wrenbit
