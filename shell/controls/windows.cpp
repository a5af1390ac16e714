#include "windows.h"

namespace wrenbit {

void Reset_Windows() {
  for (Form* form : {static_cast<Form*>(&frmMain), static_cast<Form*>(&frmCom), static_cast<Form*>(&frmAbout),
                     static_cast<Form*>(&frmSplash)})
    form->Reset_All();
  frmMain.dlgCommonDialog = {};
}

}  // namespace wrenbit
