// How a byte reads where it is shown. As a character it reads by three rules, which differ only here:
//
//   byte                 refilled row   edited row and its box   box of a selected byte
//   0x20                 dot            blank                    blank
//   0x22 and 0x2C        dot            character                character
//   0x7F                 character      character                dot
//   0xA0 to 0xDF         character      character                dot
//   other 0x21 to 0x7E   character      character                character
//   all else             dot            dot                      dot
#pragma once

#include <cstdint>
#include <string>

namespace wrenbit {

// "0x0A"
std::string Cell_Text(std::uint8_t byte);

// UTF-8, one character of code page 932.
std::string Refill_Character(std::uint8_t byte);
std::string Edit_Character(std::uint8_t byte);
std::string Selection_Character(std::uint8_t byte);

}  // namespace wrenbit
