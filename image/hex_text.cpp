#include "image/hex_text.h"

namespace wrenbit {

int Hex_Digit(std::string_view text) {
  const bool lower_case = text.size() == 1 && text[0] >= 'a' && text[0] <= 'f';
  return text.size() == 1 && !lower_case ? kHexDigits[static_cast<unsigned char>(text[0])] : 0;
}

std::string Hex_Text(std::uint32_t value, int digits) {
  std::string text;
  Append_Hex(text, value, digits);
  return text;
}

}  // namespace wrenbit
