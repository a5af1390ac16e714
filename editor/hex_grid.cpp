#include "editor/hex_grid.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

#include "core/state/platform.h"
#include "core/state/state.h"
#include "editor/byte_texts.h"
#include "editor/cell_address.h"
#include "editor/cell_selection.h"
#include "image/hex_text.h"
#include "image/image_buffer.h"
#include "shell/controls/frm_main.h"

namespace wrenbit {
namespace {

constexpr const char* kHeader =
    "Adr.|^0x00|^0x01|^0x02|^0x03|^0x04|^0x05|^0x06|^0x07|^0x08|^0x09|^0x0A|^0x0B|^0x0C|^0x0D|^0x0E|^0x0F|"
    "ASCII";
constexpr const char* kNotTheImage =
    "表は前の内容です。バッファは読めたところまでの値で、残りは FF です。"
    "もう一度読むか、ファイルをロードしてください。";
constexpr const char* kPleaseWait = "しばらくお待ちください。";

void Grid_Format() {
  FlexGrid& grid = frmMain.MSFGrid1;
  grid.Set_FormatString(kHeader);
  grid.Set_ColWidth(0, 700);
  grid.Set_ColAlignment(0, Alignment::Left);
  for (int col = kFirstByteCol; col <= kLastByteCol; ++col) {
    grid.Set_ColWidth(col, 450);
    grid.Set_ColAlignment(col, Alignment::Centre);
  }
  grid.Set_ColWidth(kAsciiCol, 2000);
  grid.Set_ColAlignment(kAsciiCol, Alignment::Left);
}

// The texts of all byte values, worked out once: a refill joins them by the hundred thousand. Each lies in
// eight characters, which are copied whole, whatever of them counts: that is one move of the processor.
class Text_Table {
 public:
  template <class Text_Of_Byte>
  explicit Text_Table(Text_Of_Byte text_of) {
    for (unsigned byte = 0; byte < entries.size(); ++byte) {
      const std::string text = text_of(static_cast<std::uint8_t>(byte));
      entries[byte].Length = text.copy(entries[byte].Text.data(), kRoom);
    }
  }
  static constexpr std::size_t kRoom = 8;
  // There is room for eight characters at `to`. Gives the place behind the text.
  char* Put(std::uint8_t byte, char* to) const {
    std::memcpy(to, entries[byte].Text.data(), kRoom);
    return to + entries[byte].Length;
  }

 private:
  struct Entry {
    std::array<char, kRoom> Text{};
    std::size_t Length = 0;
  };
  std::array<Entry, 256> entries;
};

void Fill_Rows() {
  static const Text_Table pairs([](std::uint8_t byte) { return Hex_Text(byte, 2); });
  static const Text_Table cells([](std::uint8_t byte) { return Cell_Text(byte) + '\t'; });
  static const Text_Table characters(Refill_Character);
  FlexGrid& grid = frmMain.MSFGrid1;
  const auto rows = static_cast<int>(ImageBuffer.size() / kBytesPerRow);
  grid.Set_Col(0);
  grid.Set_Row(0);
  grid.Set_Cols(kGridCols);
  grid.Set_Rows(rows + 1);
  std::array<char, (2 * kBytesPerRow + 4) * Text_Table::kRoom> line;
  for (int row = 1; row <= rows; ++row) {
    const auto first = static_cast<std::uint32_t>(Address_Of_Cell(row, kFirstByteCol));
    char* end = std::ranges::copy(std::string_view("0x"), line.data()).out;
    for (const int shift : {16, 8, 0}) end = pairs.Put(static_cast<std::uint8_t>(first >> shift), end);
    *end++ = '\t';
    const std::span bytes = std::span(ImageBuffer).subspan(first, kBytesPerRow);
    for (const std::uint8_t byte : bytes) end = cells.Put(byte, end);
    for (const std::uint8_t byte : bytes) end = characters.Put(byte, end);
    grid.Set_Row(row);
    grid.Set_ColSel(kAsciiCol);
    grid.Set_Clip({line.data(), end});
  }
}

void Set_OutOfDate(const char* why) {
  for (Control* shown :
       std::initializer_list<Control*>{&frmMain.MSFGrid1, &frmMain.LblCheckSUM, &frmMain.Text_modify_hex,
                                       &frmMain.Text_modify_dec, &frmMain.Text_modify_asc})
    shown->Set_OutOfDate(why);
  for (CheckBox& bit : frmMain.ChkBin) bit.Set_OutOfDate(why);
}

}  // namespace

void Grid_Refill() {
  frmMain.Set_MousePointer(Pointer::Hourglass);
  const std::string message = frmMain.sbStatusBar.Panel(1);
  frmMain.sbStatusBar.Set_Panel(1, kPleaseWait);
  ThePlatform->Repaint();
  frmMain.MSFGrid1.Set_Visible(false);
  Fill_Rows();
  // In an empty grid there is no row of bytes, and the header stays current.
  frmMain.MSFGrid1.Set_Col(kFirstByteCol);
  frmMain.MSFGrid1.Set_Row(1);
  Grid_Format();
  Set_OutOfDate("");
  frmMain.MSFGrid1.Set_WeakFrom(0);
  frmMain.MSFGrid1.Set_ToolTipText("");
  frmMain.LblCheckSUM.Set_Caption(CheckSum_Text());
  MSFGrid1_Click();
  frmMain.sbStatusBar.Set_Panel(1, message);
  frmMain.MSFGrid1.Set_Visible(true);
  frmMain.Set_MousePointer(Pointer::Default);
}

void Grid_Out_Of_Date() {
  Set_OutOfDate(kNotTheImage);
  frmMain.MSFGrid1.Set_WeakFrom(1);
}

void Grid_Unread_From(std::int32_t address) {
  if (static_cast<std::size_t>(address) >= ImageBuffer.size()) return;
  frmMain.MSFGrid1.Set_WeakFrom(address / kBytesPerRow + 1);
  frmMain.MSFGrid1.Set_ToolTipText("薄い色の行はブロックの外です。チップから読んでいません。(アドレス " +
                                   std::to_string(address) + " から)");
}

void Buffer_Init() {
  Image_Create();
  FlexGrid& grid = frmMain.MSFGrid1;
  grid.Set_Cols(kGridCols);
  grid.Set_Rows(1);
  grid.Set_Col(0);
  grid.Set_Row(0);
  Grid_Refill();
}

void mnuBufferClear_Click() {
  Buffer_Init();
  frmMain.sbStatusBar.Set_Panel(1, "ＰＣのバッファをクリアしました。");
}

}  // namespace wrenbit
