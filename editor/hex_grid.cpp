#include "hex_grid.h"

#include "byte_texts.h"
#include "cell_address.h"
#include "cell_selection.h"
#include "frm_main.h"
#include "hex_text.h"
#include "image_buffer.h"
#include "platform.h"
#include "state.h"

namespace wrenbit {
namespace {

constexpr const char* kHeader =
    "Adr.|^0x00|^0x01|^0x02|^0x03|^0x04|^0x05|^0x06|^0x07|^0x08|^0x09|^0x0A|^0x0B|^0x0C|^0x0D|^0x0E|^0x0F|"
    "ASCII";
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

// The texts of all byte values, worked out once: a refill joins them by the ten thousand.
struct Byte_Texts {
  std::array<std::string, 256> Cell;
  std::array<std::string, 256> Character;
  Byte_Texts() {
    for (unsigned byte = 0; byte < 256; ++byte) {
      Cell[byte] = Byte_Cell(static_cast<std::uint8_t>(byte));
      Character[byte] = Refill_Character(static_cast<std::uint8_t>(byte));
    }
  }
};

void Fill_Rows() {
  static const Byte_Texts texts;
  FlexGrid& grid = frmMain.MSFGrid1;
  const auto rows = static_cast<int>(ImageBuffer.size() / kBytesPerRow);
  grid.Set_Col(0);
  grid.Set_Row(0);
  grid.Set_Cols(kGridCols);
  grid.Set_Rows(rows + 1);
  for (int row = 1; row <= rows; ++row) {
    const auto first = static_cast<std::uint32_t>(Address_Of_Cell(row, kFirstByteCol));
    std::string line = "0x" + Hex_Text(first, 6) + '\t';
    std::string ascii;
    for (std::uint32_t address = first; address < first + kBytesPerRow; ++address) {
      line += texts.Cell[ImageBuffer[address]] + '\t';
      ascii += texts.Character[ImageBuffer[address]];
    }
    grid.Set_Row(row);
    grid.Set_ColSel(kAsciiCol);
    grid.Set_Clip(line + ascii);
  }
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
  frmMain.LblCheckSUM.Set_Caption(CheckSum_Text());
  MSFGrid1_Click();
  frmMain.sbStatusBar.Set_Panel(1, message);
  frmMain.MSFGrid1.Set_Visible(true);
  frmMain.Set_MousePointer(Pointer::Default);
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
