#include "core/device_selection.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

#include "core/catalogue_text.h"
#include "core/state/settings.h"
#include "core/state/state.h"
#include "editor/hex_grid.h"
#include "engines/block_transfer.h"
#include "image/image_buffer.h"
#include "shell/controls/frm_main.h"

namespace wrenbit {
namespace {

std::string Size_Text() {
  // A power that no chip has would not fit the number either.
  const long bytes = MemSize >= 0 && MemSize < 31 ? 1L << MemSize : 0;
  std::string memory = "Mem. Size: " + std::to_string(bytes) + " byte";
  switch (DeviceFamily) {
    case 2:
      return memory + "\r\nPage Size: " + std::to_string(PageSize) + " byte";
    case 3:
      return memory;
    default:
      return "";
  }
}

std::string Spec_Text(const Device_Row& row) {
  if (DeviceFamily != 2 && DeviceFamily != 3) return "";
  return "VDD:" + row[Column_Supply] + " Endurance:" + row[Column_Endurance] +
         " Density:" + row[Column_Density] + " WriteSpeed:" + row[Column_Write_Speed] +
         " ClockSpeed:" + row[Column_Clock_Speed] + " ";
}

// A block that is smaller than the chip leaves the rest unread or unwritten, which no status text says.
void Tell_Block() {
  const bool usable = Image_Usable();
  const auto tell = [usable](Control& control, const std::string& text) {
    control.Set_ToolTipText(usable ? text : "");
  };
  const std::int32_t power = std::min(AccessSize, MemSize);
  const bool whole = power == MemSize;
  const std::string chip = std::to_string(ImageBuffer.size()) + " バイト";
  const std::string block =
      whole ? "全 " + chip : chip + "中、先頭の " + std::to_string(1L << std::max(power, 0)) + " バイト";
  const std::string byte = chip + "中、選択中の 1 バイト";
  tell(frmMain.CmbSize, "ブロック: " + block);
  tell(frmMain.Cmd_READ_all,
       block + "をチップから読み出します。" + (whole ? "" : "残りはバッファで FF になります。"));
  tell(frmMain.Cmd_WRITE_all,
       block + "をチップに書き込みます。" + (whole ? "" : "残りはチップで元のままです。"));
  tell(frmMain.Cmd_READ_single, byte + "をチップから読み出します。");
  tell(frmMain.Cmd_WRITE_single, byte + "をチップに書き込みます。");
}

// One entry for each power of two up to the chip's size. The size chosen before stays, if the chip is that
// large; past a device without a usable size, too.
void Rebuild_Block_Sizes() {
  const int before = AccessSize - kSmallestBlock;
  frmMain.CmbSize.Clear();
  if (!Image_Usable()) return Tell_Block();
  Offer_Block_Sizes(MemSize);
  frmMain.CmbSize.Set_ListIndex(std::clamp(before, 0, frmMain.CmbSize.ListCount() - 1));
}

}  // namespace

void Combo_device_Click() {
  const int index = frmMain.Combo_device.ListIndex();
  const Device_Row& row = DeviceTable.at(static_cast<std::size_t>(index));
  DeviceFamily = Number_Cell(row, Column_Family);
  MemSize = Number_Cell(row, Column_Mem_Size);
  PageSize = Number_Cell(row, Column_Page_Size);
  AddressMode = Number_Cell(row, Column_Address_Mode);
  AddressBits = Number_Cell(row, Column_Address_Bits);
  DeviceStatusText = row[Column_Status_Text];
  frmMain.sbStatusBar.Set_Panel(4, DeviceStatusText);
  frmMain.Lbl_PageSize.Set_Caption(Size_Text());
  frmMain.Lbl_Spec.Set_Caption(Spec_Text(row));
  frmMain.sbStatusBar.Set_Panel(1, "しばらくお待ちください。");
  Buffer_Init();
  SaveSetting(key::kDut, std::to_string(frmMain.Combo_device.ListIndex()));
  frmMain.sbStatusBar.Set_Panel(1, "");
  Rebuild_Block_Sizes();
}

void Offer_Block_Sizes(int exponent) {
  frmMain.CmbSize.Clear();
  for (int at = kSmallestBlock; at <= exponent; ++at) frmMain.CmbSize.AddItem(std::to_string(1L << at));
}

void CmbSize_Click() {
  SaveSetting(key::kAccessSize, std::to_string(frmMain.CmbSize.ListIndex()));
  AccessSize = frmMain.CmbSize.ListIndex() + kSmallestBlock;
  Tell_Block();
}

}  // namespace wrenbit
