// Measuring texts in UTF-8.
#pragma once

#include <cstddef>
#include <string_view>

namespace wrenbit {

// True of all bytes but those that continue a character.
constexpr bool Begins_Character(char byte) { return (byte & 0xC0) != 0x80; }

std::size_t Characters(std::string_view text);

// The text's first so many characters, or all that it has.
std::string_view First_Characters(std::string_view text, std::size_t count);

}  // namespace wrenbit
