// The double-byte characters of code page 932, from the system's table.
#include "core/state/code_page_932.h"

#include <windows.h>

#include "core/state/wide_path.h"

namespace wrenbit {

std::string Cp932_Character(std::uint8_t lead, std::uint8_t trail) {
  const char pair[] = {static_cast<char>(lead), static_cast<char>(trail)};
  wchar_t wide[2];
  const int count = MultiByteToWideChar(932, MB_ERR_INVALID_CHARS, pair, sizeof pair, wide, 2);
  return count == 1 ? Utf8({wide, 1}) : std::string();
}

}  // namespace wrenbit
