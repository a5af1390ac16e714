// Code page 932, the Japanese code page of Windows, in which the catalogue and older HEX files are written.
// The program itself speaks UTF-8.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace wrenbit {

// U+FF65, byte 0xA5: stands for a byte that has no character to show.
inline constexpr std::string_view kCp932Dot = "\uFF65";

// UTF-8 of the single-byte character with that code, as Windows shows it; the empty text for a lead byte.
std::string Cp932_Character(std::uint8_t byte);

// The code of a UTF-8 character; nothing when the code page lacks it or gives it two bytes.
std::optional<std::uint8_t> Cp932_Byte(std::string_view character);

// UTF-8 of a double-byte character; the empty text when there is none, or the platform has no table of them.
std::string Cp932_Character(std::uint8_t lead, std::uint8_t trail);

// Bytes of the first character of a text that is not empty: 1 or 2. A lead byte with no trail byte behind it
// stands alone, so that the line end or digit that follows is not lost with it.
std::size_t Cp932_Length(std::string_view text);

// UTF-8 of the whole text, U+FFFD for what is no character. Never fails.
std::string Utf8_From_Cp932(std::string_view bytes);

}  // namespace wrenbit
