// Paths of the C++ library from texts in UTF-8 and back. Its own conversion takes on Windows the system's
// code page.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace wrenbit {

inline std::filesystem::path Path_Of(std::string_view utf8) {
  return std::u8string(utf8.begin(), utf8.end());
}

inline std::string Utf8_Of(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

}  // namespace wrenbit
