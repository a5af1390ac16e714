#include "core/transfer_commands.h"

#include <initializer_list>

#include "core/state/state.h"
#include "editor/cell_selection.h"
#include "editor/hex_grid.h"
#include "engines/c24_block.h"
#include "engines/c24_byte.h"
#include "engines/c93_block.h"
#include "engines/c93_byte.h"
#include "image/image_buffer.h"
#include "link/failure.h"
#include "link/handshake.h"
#include "link/mscomm.h"
#include "shell/controls/frm_main.h"

namespace wrenbit {
namespace {

// Everything that could disturb a transfer, or be disturbed by it.
void Set_Commands_Enabled(bool enabled) {
  for (Control* control : std::initializer_list<Control*>{
           &frmMain.MSFGrid1, &frmMain.Cmd_READ_all, &frmMain.Cmd_READ_single, &frmMain.Cmd_WRITE_all,
           &frmMain.Cmd_WRITE_single, &frmMain.Frame1, &frmMain.Combo_device, &frmMain.CmbSize,
           &frmMain.Cmd_Open, &frmMain.Cmd_SaveAs, &frmMain.Cmd_Port, &frmMain.mnuFileOpen,
           &frmMain.mnuFileSaveAs, &frmMain.mnuFileExit, &frmMain.mnuBufferClear, &frmMain.mnuToolsOptions,
           &frmMain.mnuHelpContents, &frmMain.mnuHelpAbout})
    control->Set_Enabled(enabled);
}

bool Family_Known() { return DeviceFamily == 2 || DeviceFamily == 3; }

using Engine = void (*)();
void Run_Engine(Engine c24, Engine c93) {
  if (!Image_Usable()) return Fail(kWrongSize);
  if (DeviceFamily == 2) c24();
  if (DeviceFamily == 3) c93();
}

}  // namespace

void Command_Lock() {
  TransferRunning = -1;
  Set_Commands_Enabled(false);
  frmMain.sbStatusBar.Set_Panel(1, "");
  frmMain.sbStatusBar.Set_Panel(2, "");
  LinkError = 0;
}

void Command_Unlock() {
  Set_Commands_Enabled(true);
  frmMain.Text_modify_hex.Set_Focus();
  if (MSComm1.Lost()) Tell_Port_Gone();
  MSComm1.Close();
  TransferRunning = 0;
  if (CloseWhenIdle) frmMain.Unload();
}

void Cmd_READ_all_Click() {
  Command_Lock();
  frmMain.sbStatusBar.Set_Panel(1, "読み出し中.....");
  Image_Create();
  Run_Engine(C24_AllRead, C93_AllRead);
  if (LinkError == 0) {
    Grid_Refill();
    Grid_Unread_From(Family_Known() ? 1 << AccessSize : 0);
  } else {
    Grid_Out_Of_Date();
  }
  Command_Unlock();
}

void Cmd_WRITE_all_Click() {
  Command_Lock();
  frmMain.sbStatusBar.Set_Panel(1, "書き込み中.....");
  Run_Engine(C24_AllWrite, C93_AllWrite);
  MSFGrid1_Click();
  Command_Unlock();
}

void Cmd_READ_single_Click() {
  Command_Lock();
  Run_Engine(C24_ByteRead, C93_ByteRead);
  Command_Unlock();
}

void Cmd_WRITE_single_Click() {
  Command_Lock();
  Run_Engine(C24_ByteWrite, C93_ByteWrite);
  Command_Unlock();
}

void Main_Window_Close() {
  if (!TransferRunning) return frmMain.Unload();
  CloseWhenIdle = -1;
  LinkError = 1;
}

}  // namespace wrenbit
