#include "core/state/wide_path.h"

#include <windows.h>

namespace wrenbit {

std::wstring Wide(std::string_view utf8) {
  const auto size = static_cast<int>(utf8.size());
  std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0)),
                    0);
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, wide.data(), static_cast<int>(wide.size()));
  return wide;
}

std::string Utf8(std::wstring_view wide) {
  const auto size = static_cast<int>(wide.size());
  const auto convert = [&](char* to, int room) {
    return WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, to, room, nullptr, nullptr);
  };
  std::string utf8(static_cast<std::size_t>(convert(nullptr, 0)), 0);
  convert(utf8.data(), static_cast<int>(utf8.size()));
  return utf8;
}

std::wstring Long_Path(const std::string& path) {
  const std::wstring wide = Wide(path);
  // Turns "/" to "\" and drops "..", which the long form takes literally.
  std::wstring whole(GetFullPathNameW(wide.c_str(), 0, nullptr, nullptr), 0);
  whole.resize(GetFullPathNameW(wide.c_str(), static_cast<DWORD>(whole.size()), whole.data(), nullptr));
  if (whole.starts_with(L"\\\\?\\") || whole.starts_with(L"\\\\.\\") || whole.empty()) return whole;
  return whole.starts_with(L"\\\\") ? L"\\\\?\\UNC" + whole.substr(1) : L"\\\\?\\" + whole;
}

}  // namespace wrenbit
