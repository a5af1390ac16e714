#include "hex_text.h"

namespace wrenbit {
namespace {

constexpr int Digit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return 0;
}

constexpr char Upper(char c) { return c >= 'a' && c <= 'f' ? static_cast<char>(c - 'a' + 'A') : c; }

// A byte of a UTF-8 character that is not its first.
constexpr bool Continues_Character(char c) { return (c & 0xC0) == 0x80; }

}  // namespace

int Hex_Digit(std::string_view text) { return text.size() == 1 ? Digit(text[0]) : 0; }

std::int32_t Hex_ToLong(std::string_view text) {
  std::int32_t value = 0;
  for (const char c : text) {
    if (!Continues_Character(c)) value = (value << 4 | Digit(Upper(c))) & 0xFFFF;
  }
  return value;
}

void Hex_LineSum(std::string& line) {
  std::uint32_t sum = 0;
  for (std::size_t at = 1; at < line.size(); at += 2) {
    sum += static_cast<std::uint32_t>(Hex_ToLong(std::string_view(line).substr(at, 2)));
  }
  line += Hex_Text(~sum + 1, 2);
}

std::string Hex_Text(std::uint32_t value, int digits) {
  std::string text(static_cast<std::size_t>(digits), '0');
  for (auto digit = text.rbegin(); digit != text.rend(); ++digit, value >>= 4) {
    *digit = "0123456789ABCDEF"[value & 0xF];
  }
  return text;
}

}  // namespace wrenbit
