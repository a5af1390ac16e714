#include "hex_text.h"

#include <cstddef>

namespace wrenbit {

int Hex_Digit(std::string_view text) {
  const bool lower_case = text.size() == 1 && text[0] >= 'a' && text[0] <= 'f';
  return text.size() == 1 && !lower_case ? kHexDigits[static_cast<unsigned char>(text[0])] : 0;
}

void Hex_LineSum(std::string& line) {
  const std::string_view text = line;
  std::uint32_t sum = 0;
  for (std::size_t at = 1; at < text.size(); at += 2)
    sum += static_cast<std::uint32_t>(Hex_ToLong(text.substr(at, 2)));
  Append_Hex(line, ~sum + 1, 2);
}

std::string Hex_Text(std::uint32_t value, int digits) {
  std::string text;
  Append_Hex(text, value, digits);
  return text;
}

}  // namespace wrenbit
