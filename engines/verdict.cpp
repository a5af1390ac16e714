#include "verdict.h"

#include "frm_main.h"
#include "mscomm.h"
#include "reply_wait.h"
#include "state.h"

namespace wrenbit {

void Await_Stray_Answer() {
  if (LinkError) return;
  MSComm1.Await_Idle_Wire();  // Answers that belong to other commands let the PC run ahead of the wire.
  Await_Rest(1);
}

bool Transfer_Failed() {
  if (LinkError) return true;
  if (MSComm1.Unasked() + MSComm1.InBufferCount() == 0) return false;
  frmMain.sbStatusBar.Set_Panel(1, "プログラマの応答がずれています。");
  LinkError = 1;
  return true;
}

}  // namespace wrenbit
