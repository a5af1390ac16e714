// Text as Windows has it.
#pragma once

#include <string>
#include <string_view>

namespace board {

// What is no UTF-16 becomes U+FFFD.
std::string Utf8(std::wstring_view text);

}  // namespace board
