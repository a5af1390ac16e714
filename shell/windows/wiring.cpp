#include "wiring.h"

#include "window_events.h"

namespace wrenbit {

void Wire_Windows() {
  Wire_frmSplash();
  Wire_frmAbout();
  Wire_frmMain();
  Wire_frmCom();
}

}  // namespace wrenbit
