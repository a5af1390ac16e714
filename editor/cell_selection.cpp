#include "cell_selection.h"

#include "cell_address.h"
#include "code_page_932.h"
#include "frm_main.h"
#include "hex_text.h"
#include "state.h"

namespace wrenbit {
namespace {

// The character box is stricter than the grid: it shows plain ASCII only.
std::string Box_Character(std::uint8_t byte) {
  return byte <= 0x1F || byte >= 0x7F ? std::string(kCp932Dot) : Cp932_Character(byte);
}

void Load_Edit_Panel(std::uint8_t byte) {
  frmMain.Text_modify_dec.Set_Text(std::to_string(byte));
  frmMain.Text_modify_hex.Set_Text(Hex_Text(byte, 2));
  frmMain.Text_modify_asc.Set_Text(Box_Character(byte));
  for (std::size_t bit = 0; bit < frmMain.ChkBin.size(); ++bit)
    frmMain.ChkBin[bit].Set_Value(byte >> bit & 1);
}

}  // namespace

void MSFGrid1_Click() {
  if (frmMain.MSFGrid1.Col() == kAsciiCol) frmMain.MSFGrid1.Set_Col(kLastByteCol);
  if (UpdatingControls) return;
  if (!Current_Cell_In_Image()) return;
  const std::int32_t address = Current_Address();

  UpdatingControls = -1;
  Load_Edit_Panel(ImageBuffer[static_cast<std::size_t>(address)]);
  UpdatingControls = 0;

  frmMain.sbStatusBar.Set_Panel(3, "アドレス:" + std::to_string(address));
  // Refused while the window is hidden or the panel locked, which does no harm.
  frmMain.Text_modify_dec.Set_Focus();
  frmMain.Text_modify_hex.Set_Focus();
  frmMain.Text_modify_hex.Set_SelLength(10);
}

}  // namespace wrenbit
