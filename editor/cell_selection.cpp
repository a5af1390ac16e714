#include "editor/cell_selection.h"

#include <cstddef>
#include <cstdint>
#include <string>

#include "core/state/state.h"
#include "editor/byte_texts.h"
#include "editor/cell_address.h"
#include "editor/edit_panel.h"
#include "shell/controls/frm_main.h"

namespace wrenbit {

void MSFGrid1_Click() {
  Leave_Ascii_Column();
  if (UpdatingControls) return;
  if (!Current_Cell_In_Image()) return;
  const std::int32_t address = Current_Address();

  const std::uint8_t byte = ImageBuffer[static_cast<std::size_t>(address)];
  UpdatingControls = -1;
  Edit_Panel_Show(byte, Selection_Character(byte));
  UpdatingControls = 0;

  frmMain.sbStatusBar.Set_Panel(3, "アドレス:" + std::to_string(address));
  // Refused while the window is hidden or the panel locked, which does no harm.
  frmMain.Text_modify_dec.Set_Focus();
  frmMain.Text_modify_hex.Set_Focus();
  frmMain.Text_modify_hex.Set_SelLength(10);
}

}  // namespace wrenbit
