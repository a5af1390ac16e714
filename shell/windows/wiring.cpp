#include "shell/windows/wiring.h"

#include "shell/windows/window_events.h"

namespace wrenbit {

void Wire_Windows() {
  Wire_frmSplash();
  Wire_frmAbout();
  Wire_frmMain();
  Wire_frmCom();
}

}  // namespace wrenbit
