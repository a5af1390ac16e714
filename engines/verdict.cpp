#include "engines/verdict.h"

#include "core/state/state.h"
#include "link/failure.h"
#include "link/mscomm.h"
#include "link/reply_wait.h"

namespace wrenbit {

void Await_Stray_Answer() {
  if (LinkError) return;
  MSComm1.Await_Idle_Wire();  // Answers that belong to other commands let the PC run ahead of the wire.
  Await_Rest(1);
}

bool Judge_Transfer() {
  if (LinkError) return false;
  if (MSComm1.Unasked() + MSComm1.InBufferCount() == 0) return true;
  Fail("プログラマの応答がずれています。");
  return false;
}

}  // namespace wrenbit
