// The events that belong to a window itself, one function to join each window's events to their handlers.
#pragma once

namespace wrenbit {

void Wire_frmMain();
void Wire_frmCom();
void Wire_frmAbout();
void Wire_frmSplash();

}  // namespace wrenbit
