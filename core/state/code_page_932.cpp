#include "core/state/code_page_932.h"

namespace wrenbit {
namespace {

bool Is_Lead(std::uint8_t byte) { return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC); }

bool Is_Trail(std::uint8_t byte) { return byte >= 0x40 && byte <= 0xFC && byte != 0x7F; }

// Code points up to U+FFFF, which is all that the code page holds.
std::string Utf8(std::uint32_t code) {
  const auto first = [&](std::uint32_t mark, int shift) { return static_cast<char>(mark | code >> shift); };
  const auto next = [&](int shift) { return static_cast<char>(0x80 | (code >> shift & 0x3F)); };
  if (code < 0x80) return {first(0, 0)};
  if (code < 0x800) return {first(0xC0, 6), next(0)};
  return {first(0xE0, 12), next(6), next(0)};
}

}  // namespace

std::string Cp932_Character(std::uint8_t byte) {
  if (Is_Lead(byte)) return {};
  if (byte <= 0x80 || byte == 0xA0) return Utf8(byte);
  if (byte <= 0xDF) return Utf8(0xFF61u + byte - 0xA1u);  // Half-width katakana.
  return Utf8(0xF8F1u + byte - 0xFDu);                    // Private use.
}

std::optional<std::uint8_t> Cp932_Byte(std::string_view character) {
  if (character.empty()) return std::nullopt;
  for (unsigned byte = 0; byte <= 0xFF; ++byte)
    if (Cp932_Character(static_cast<std::uint8_t>(byte)) == character) return static_cast<std::uint8_t>(byte);
  return std::nullopt;
}

std::size_t Cp932_Length(std::string_view text) {
  const auto byte = [&](std::size_t at) { return static_cast<std::uint8_t>(text[at]); };
  return text.size() > 1 && Is_Lead(byte(0)) && Is_Trail(byte(1)) ? 2 : 1;
}

std::string Utf8_From_Cp932(std::string_view bytes) {
  std::string text;
  while (!bytes.empty()) {
    const std::size_t length = Cp932_Length(bytes);
    const auto first = static_cast<std::uint8_t>(bytes[0]);
    const std::string character =
        length == 1 ? Cp932_Character(first) : Cp932_Character(first, static_cast<std::uint8_t>(bytes[1]));
    text += character.empty() ? "\uFFFD" : character;
    bytes.remove_prefix(length);
  }
  return text;
}

}  // namespace wrenbit
