// Texts and paths as Windows takes them: UTF-16. The program itself speaks UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace wrenbit {

// What is no character becomes U+FFFD. Never fails.
std::wstring Wide(std::string_view utf8);
std::string Utf8(std::wstring_view wide);

// The path from its root on, in the form that may be longer than 260 characters; as it is where it has that
// form already, or names a device.
std::wstring Long_Path(const std::string& path);

}  // namespace wrenbit
