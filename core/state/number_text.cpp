#include "core/state/number_text.h"

#include <charconv>
#include <cstddef>
#include <system_error>

namespace wrenbit {
namespace {

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

std::optional<std::int32_t> Whole_Number(std::string_view text) {
  return Parse<std::int32_t>(Without_Plus(text));
}

std::optional<double> Decimal_Number(std::string_view text) {
  // Neither an exponent nor "inf" is a number to a person.
  if (text.find_first_not_of("0123456789.+- ") != text.npos) return std::nullopt;
  return Parse<double>(Without_Plus(text));
}

}  // namespace wrenbit
