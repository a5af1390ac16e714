// What the board says it is.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace wrenbit {

// The answer to "?": the word, five free characters, the version as text, and two bytes or more behind.
inline constexpr std::string_view kIdentityWord = "TOLVEX";
inline constexpr std::size_t kVersionAt = 11;
inline constexpr std::size_t kIdentityText = 15;    // The word to the end of the version.
inline constexpr std::size_t kIdentityLength = 17;  // The least that is an answer.

// Asks on the open port, twice; the second answer counts, as far as kIdentityText, in the board's code page.
// Nothing when it is too short or does not come within its second. All that the board has said is read or
// dropped afterwards, and the port knows the wire's pace.
std::optional<std::string> Ask_Identity();

}  // namespace wrenbit
