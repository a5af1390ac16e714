#include "board/wide_text.h"

#include <windows.h>

#include <cstddef>

namespace board {

std::string Utf8(std::wstring_view text) {
  const int length = static_cast<int>(text.size());
  const auto convert = [&](char* to, int room) {
    return WideCharToMultiByte(CP_UTF8, 0, text.data(), length, to, room, nullptr, nullptr);
  };
  std::string utf8(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
  convert(utf8.data(), static_cast<int>(utf8.size()));
  return utf8;
}

}  // namespace board
