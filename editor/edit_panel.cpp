#include "editor/edit_panel.h"

#include <cmath>
#include <cstddef>
#include <optional>
#include <utility>

#include "core/state/code_page_932.h"
#include "core/state/number_text.h"
#include "core/state/state.h"
#include "core/state/utf8_text.h"
#include "editor/byte_texts.h"
#include "editor/cell_address.h"
#include "image/hex_text.h"
#include "image/image_buffer.h"
#include "shell/controls/frm_main.h"

namespace wrenbit {
namespace {

// Once a byte is edited its row reads by the rule of the edited, all sixteen of it.
void Show_Row_Text() {
  FlexGrid& grid = frmMain.MSFGrid1;
  const auto first = static_cast<std::size_t>(Address_Of_Cell(grid.Row(), kFirstByteCol));
  std::string text;
  for (std::size_t address = first; address < first + kBytesPerRow; ++address)
    text += Edit_Character(ImageBuffer[address]);
  const int col = grid.Col();
  grid.Set_Col(kAsciiCol);
  grid.Set_Text(text);
  grid.Set_Col(col);
}

// The course of every change. What an editor makes of its box is asked for after its own events are silenced,
// since it may write the box; nullopt leaves the byte.
void Edit_Byte(std::optional<std::uint8_t> (*new_byte)(), const Control* left_alone = nullptr) {
  if (frmMain.MSFGrid1.Col() == kAsciiCol || UpdatingControls || !Current_Cell_In_Image()) return;
  UpdatingControls = -1;
  std::uint8_t& byte = ImageBuffer[static_cast<std::size_t>(Current_Address())];
  byte = new_byte().value_or(byte);
  Edit_Panel_Show(byte, Edit_Character(byte), left_alone);
  frmMain.MSFGrid1.Set_Text(Cell_Text(byte));
  Show_Row_Text();
  frmMain.LblCheckSUM.Set_Caption(CheckSum_Text());
  frmMain.LblCheckSUM.Set_OutOfDate("");
  UpdatingControls = 0;
}

std::optional<std::uint8_t> Hex_Box_Byte() {
  return static_cast<std::uint8_t>(Hex_ToLong(frmMain.Text_modify_hex.Text()));
}

std::optional<std::uint8_t> Dec_Box_Byte() {
  TextBox& box = frmMain.Text_modify_dec;
  const bool blank = box.Text().find(' ') != std::string::npos;
  const std::optional<double> number = blank ? std::nullopt : Decimal_Number(box.Text());
  if (!number || *number > 255) {
    box.Set_Text("255");
    box.Set_SelLength(3);  // The next digit starts a new number, where a full box would take none.
    return 255;
  }
  if (*number < -0.5) return std::nullopt;
  return static_cast<std::uint8_t>(std::nearbyint(*number));
}

std::optional<std::uint8_t> Asc_Box_Byte() {
  return Cp932_Byte(First_Characters(frmMain.Text_modify_asc.Text(), 1));
}

std::optional<std::uint8_t> Bits_Byte() {
  unsigned byte = 0;
  for (std::size_t bit = 0; bit < frmMain.ChkBin.size(); ++bit)
    byte |= static_cast<unsigned>(frmMain.ChkBin[bit].Value()) << bit;
  return static_cast<std::uint8_t>(byte);
}

}  // namespace

void Edit_Panel_Show(std::uint8_t byte, std::string character, const Control* left_alone) {
  const auto show = [left_alone](TextBox& box, std::string text) {
    if (&box != left_alone) box.Set_Text(std::move(text));
    box.Set_OutOfDate("");
  };
  show(frmMain.Text_modify_dec, std::to_string(byte));
  show(frmMain.Text_modify_hex, Hex_Text(byte, 2));
  show(frmMain.Text_modify_asc, std::move(character));
  for (std::size_t bit = 0; bit < frmMain.ChkBin.size(); ++bit) {
    frmMain.ChkBin[bit].Set_Value(byte >> bit & 1);
    frmMain.ChkBin[bit].Set_OutOfDate("");
  }
}

void Text_modify_hex_KeyPress(std::int16_t& key) {
  constexpr std::int16_t kBackspace = 8;
  if (UpdatingControls || key == kBackspace) return;
  if (key >= 'a' && key <= 'f') key = static_cast<std::int16_t>(key - 'a' + 'A');
  if (!(key >= '0' && key <= '9') && !(key >= 'A' && key <= 'F')) key = 0;
}

void Text_modify_hex_Change() { Edit_Byte(Hex_Box_Byte, &frmMain.Text_modify_hex); }
void Text_modify_dec_Change() { Edit_Byte(Dec_Box_Byte, &frmMain.Text_modify_dec); }
void Text_modify_asc_Change() { Edit_Byte(Asc_Box_Byte, &frmMain.Text_modify_asc); }
void ChkBin_Click() { Edit_Byte(Bits_Byte); }

}  // namespace wrenbit
