// Numbers as hexadecimal text and back. Reading never fails: what is no hex digit counts as a zero.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace wrenbit {

// 0 to 15 for one character "0" to "9" or "A" to "F"; 0 for anything else, lower case and the empty text
// included.
int Hex_Digit(std::string_view text);

// 0 to 65535 from the last four characters of a UTF-8 text, in either case. The empty text is 0.
std::int32_t Hex_ToLong(std::string_view text);

// Appends the checksum of an Intel HEX record, which makes the sum of all its bytes 0 modulo 256. The line
// holds the start character and the record up to and including its data.
void Hex_LineSum(std::string& line);

// The last so many digits, upper case, zeros in front.
std::string Hex_Text(std::uint32_t value, int digits);

}  // namespace wrenbit
