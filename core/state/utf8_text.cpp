#include "core/state/utf8_text.h"

#include <algorithm>

namespace wrenbit {

std::size_t Characters(std::string_view text) {
  return static_cast<std::size_t>(std::ranges::count_if(text, Begins_Character));
}

std::string_view First_Characters(std::string_view text, std::size_t count) {
  for (std::size_t at = 0; at < text.size(); ++at)
    if (Begins_Character(text[at]) && count-- == 0) return text.substr(0, at);
  return text;
}

}  // namespace wrenbit
