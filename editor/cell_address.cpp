#include "editor/cell_address.h"

#include <cstddef>

#include "core/state/state.h"
#include "shell/controls/frm_main.h"

namespace wrenbit {

std::int32_t Current_Address() { return Address_Of_Cell(frmMain.MSFGrid1.Row(), frmMain.MSFGrid1.Col()); }

void Leave_Ascii_Column() {
  if (frmMain.MSFGrid1.Col() == kAsciiCol) frmMain.MSFGrid1.Set_Col(kLastByteCol);
}

bool Current_Cell_In_Image() {
  const std::int32_t address = Current_Address();
  return address >= 0 && static_cast<std::size_t>(address) < ImageBuffer.size();
}

}  // namespace wrenbit
