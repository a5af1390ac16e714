#include "number_text.h"

#include <algorithm>
#include <charconv>

namespace wrenbit {
namespace {

// In UTF-8, all bytes but those that continue one.
bool Begins_Character(char byte) { return (byte & 0xC0) != 0x80; }

// from_chars knows no plus sign.
std::string_view Without_Plus(std::string_view text) {
  text = Trim(text);
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
  return text;
}

template <class Number>
std::optional<Number> Parse(std::string_view text) {
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

}  // namespace

std::string_view Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::size_t Characters(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), Begins_Character));
}

std::string_view First_Characters(std::string_view text, std::size_t count) {
  for (std::size_t at = 0; at < text.size(); ++at)
    if (Begins_Character(text[at]) && count-- == 0) return text.substr(0, at);
  return text;
}

std::optional<std::int32_t> Whole_Number(std::string_view text) {
  return Parse<std::int32_t>(Without_Plus(text));
}

std::optional<double> Decimal_Number(std::string_view text) {
  // Neither an exponent nor "inf" is a number to a person.
  if (text.find_first_not_of("0123456789.+- ") != text.npos) return std::nullopt;
  return Parse<double>(Without_Plus(text));
}

}  // namespace wrenbit
