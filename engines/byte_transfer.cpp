#include "engines/byte_transfer.h"

#include <cstddef>

#include "core/state/state.h"
#include "editor/byte_texts.h"
#include "editor/cell_address.h"
#include "editor/cell_selection.h"
#include "link/failure.h"
#include "shell/controls/frm_main.h"

namespace wrenbit {

bool Byte_Refused() {
  Leave_Ascii_Column();
  if (Current_Cell_In_Image()) return false;
  Fail("アドレスが選択されていません。");
  return true;
}

void Finish_Byte_Read(std::uint8_t byte) {
  ImageBuffer[static_cast<std::size_t>(Current_Address())] = byte;
  frmMain.MSFGrid1.Set_Text(Cell_Text(byte));
  MSFGrid1_Click();
  Tell_Byte_Done();
}

void Tell_Byte_Done() { frmMain.sbStatusBar.Set_Panel(1, "Finsh"); }

}  // namespace wrenbit
