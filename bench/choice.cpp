#include "bench/choice.h"

#include <stdexcept>

#include "core/state/platform.h"
#include "shell/controls/frm_main.h"

namespace bench {

using wrenbit::frmMain;

void Check_Window() {
  if (!frmMain.Visible()) throw std::runtime_error("the window was closed in the midst");
}

void Choose_Device(const std::string& chip) {
  Check_Window();
  auto& list = frmMain.Combo_device;
  for (int i = 0; i < list.ListCount(); ++i)
    if (list.List(i).starts_with(chip)) list.Set_ListIndex(i);
  if (!list.Text().starts_with(chip)) throw std::runtime_error("no chip in the list: " + chip);
}

void Choose(const std::string& chip) {
  Choose_Device(chip);
  frmMain.CmbSize.Set_ListIndex(frmMain.CmbSize.ListCount() - 1);
  wrenbit::DoEvents();
}

std::vector<std::uint8_t> Pattern(std::size_t size) {
  std::vector<std::uint8_t> bytes(size);
  for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<std::uint8_t>(i * 167 + i / 256);
  return bytes;
}

}  // namespace bench
