#include "engines/block_transfer.h"

#include <algorithm>
#include <cmath>

#include "core/state/platform.h"
#include "core/state/state.h"
#include "shell/controls/frm_main.h"

namespace wrenbit {

std::int32_t Clamp_Block() {
  if (MemSize <= AccessSize) frmMain.CmbSize.Set_ListIndex(MemSize - kSmallestBlock);
  return (1 << std::min(MemSize, AccessSize)) - 1;
}

std::int32_t Percentage(std::int32_t address, std::int32_t last) {
  return static_cast<std::int32_t>((std::int64_t{address} * 200 + last) / (2 * std::int64_t{last}));
}

void Block_Progress::At(std::int32_t address) {
  const std::int32_t now = Percentage(address, last);
  if (now == shown) return;
  shown = now;
  frmMain.sbStatusBar.Set_Panel(3, std::to_string(now) + "%");
}

void Tell_Duration(const std::string& text) {
  TransferStart = Timer() - TransferStart;
  const auto seconds = static_cast<long>(std::floor(TransferStart));
  frmMain.sbStatusBar.Set_Panel(1, text + " (" + std::to_string(seconds) + "sec)");
}

}  // namespace wrenbit
