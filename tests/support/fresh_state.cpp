#include "tests/support/fresh_state.h"

#include "core/state/state.h"
#include "shell/controls/windows.h"

namespace wrenbit {

void Reset_State() {
  ImageBuffer.clear();
  ImageChecksum = 0;
  DeviceTable.clear();
  CatalogueVersionText.clear();
  DeviceFamily = MemSize = PageSize = AddressMode = AddressBits = 0;
  DeviceStatusText.clear();
  AccessSize = 0;
  ProgrammerVersion = 0;
  ProgrammerVersionText.clear();
  PortMirror = {};
  LinkError = 0;
  WaitStart = 0;
  TxBytes.clear();
  RxBytes.clear();
  TransferStart = 0;
  TransferRunning = CloseWhenIdle = UpdatingControls = 0;
  HexFilePath.clear();
  MainTitle.clear();
  AppFolder.clear();
  for (Form* form : {static_cast<Form*>(&frmMain), static_cast<Form*>(&frmCom), static_cast<Form*>(&frmAbout),
                     static_cast<Form*>(&frmSplash)})
    form->Reset_All();
  frmMain.dlgCommonDialog = {};
}

}  // namespace wrenbit
