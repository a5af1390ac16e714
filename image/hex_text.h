// Numbers as hexadecimal text and back. Reading never fails: what is no hex digit counts as a zero.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/state/utf8_text.h"

namespace wrenbit {

// 0 to 15 for one character "0" to "9" or "A" to "F"; 0 for anything else, lower case and the empty text
// included.
int Hex_Digit(std::string_view text);

// By the character's code: 0 to 15 for a digit in either case, 0 for anything else.
inline constexpr auto kHexDigits = [] {
  std::array<std::uint8_t, 256> values{};
  for (std::uint8_t value = 0; value < 16; ++value) {
    values[static_cast<unsigned char>("0123456789ABCDEF"[value])] = value;
    values[static_cast<unsigned char>("0123456789abcdef"[value])] = value;
  }
  return values;
}();

// 0 to 65535 from the last four characters of a UTF-8 text, in either case. The empty text is 0.
constexpr std::int32_t Hex_ToLong(std::string_view text) {
  std::uint32_t value = 0;
  for (const char c : text)
    if (Begins_Character(c)) value = value << 4 | kHexDigits[static_cast<unsigned char>(c)];
  return static_cast<std::int32_t>(value & 0xFFFF);
}

// The last so many digits, upper case, zeros in front.
std::string Hex_Text(std::uint32_t value, int digits);

// The same behind a text.
inline void Append_Hex(std::string& text, std::uint32_t value, int digits) {
  for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) text += "0123456789ABCDEF"[value >> shift & 0xF];
}

}  // namespace wrenbit
