// Numbers that a person may have typed. Nothing but the number may stand in the text, blanks around it
// excepted; a text that holds none gives nothing.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace wrenbit {

// Text without the blanks at both ends.
std::string_view Trim(std::string_view text);

// An optional sign and digits, within 32 bits signed.
std::optional<std::int32_t> Whole_Number(std::string_view text);

// An optional sign, digits and at most one decimal point: "5.00", "-1.5", ".5".
std::optional<double> Decimal_Number(std::string_view text);

}  // namespace wrenbit
