#include "byte_transfer.h"

#include <cstddef>

#include "byte_texts.h"
#include "cell_address.h"
#include "cell_selection.h"
#include "failure.h"
#include "frm_main.h"
#include "state.h"

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
