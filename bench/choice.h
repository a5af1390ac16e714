// A chip, an image and files to measure with.
#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "core/state/platform.h"
#include "core/state/whole_file.h"
#include "shell/controls/frm_main.h"

namespace bench {

// Throws std::runtime_error when the main window has been closed, as a signal to end does.
inline void Check_Window() {
  if (!wrenbit::frmMain.Visible()) throw std::runtime_error("the window was closed in the midst");
}

// As a user chooses it. Throws std::runtime_error for a chip that is not in the list, and when the window has
// been closed.
inline void Choose_Device(const std::string& chip) {
  Check_Window();
  auto& list = wrenbit::frmMain.Combo_device;
  for (int i = 0; i < list.ListCount(); ++i)
    if (list.List(i).starts_with(chip)) list.Set_ListIndex(i);
  if (!list.Text().starts_with(chip)) throw std::runtime_error("no chip in the list: " + chip);
}
// The same, and its whole size as the block; returns when all is painted.
inline void Choose(const std::string& chip) {
  Choose_Device(chip);
  wrenbit::frmMain.CmbSize.Set_ListIndex(wrenbit::frmMain.CmbSize.ListCount() - 1);
  wrenbit::DoEvents();
}

// Bytes of which none is its neighbour's.
inline std::vector<std::uint8_t> Pattern(std::size_t size) {
  std::vector<std::uint8_t> bytes(size);
  for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<std::uint8_t>(i * 167 + i / 256);
  return bytes;
}

// Throws std::runtime_error when the file cannot be written.
inline void Write_File(const std::string& path, std::string_view text) {
  if (wrenbit::Write_Whole_File(path, text)) throw std::runtime_error("cannot be written: " + path);
}
// All bytes of a file, none of one that cannot be read.
inline std::vector<std::uint8_t> File_Bytes(const std::string& path) {
  const std::string text = wrenbit::Read_Whole_File(path).value_or("");
  return {text.begin(), text.end()};
}

}  // namespace bench
