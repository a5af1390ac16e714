#include "byte_transfer.h"

#include "byte_texts.h"
#include "cell_address.h"
#include "cell_selection.h"
#include "frm_main.h"
#include "refusal.h"
#include "state.h"

namespace wrenbit {

bool Byte_Cell_Ready() {
  if (frmMain.MSFGrid1.Col() == kAsciiCol) frmMain.MSFGrid1.Set_Col(kLastByteCol);
  if (Current_Cell_In_Image()) return true;
  Refuse_Transfer("アドレスが選択されていません。");
  return false;
}

void Finish_Byte_Read(std::uint8_t byte) {
  ImageBuffer[static_cast<std::size_t>(Current_Address())] = byte;
  frmMain.MSFGrid1.Set_Text(Byte_Cell(byte));
  MSFGrid1_Click();
  Tell_Byte_Done();
}

void Tell_Byte_Done() { frmMain.sbStatusBar.Set_Panel(1, "Finsh"); }

}  // namespace wrenbit
