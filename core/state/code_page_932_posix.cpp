// The double-byte characters of code page 932, from the system's table.
#include "core/state/code_page_932.h"

#include <iconv.h>

namespace wrenbit {
namespace {

// A system may come without the table; every conversion then fails.
struct Converter {
  const iconv_t Handle = iconv_open("UTF-8", "CP932");
  bool Usable() const { return Handle != reinterpret_cast<iconv_t>(-1); }
  ~Converter() {
    if (Usable()) iconv_close(Handle);
  }
};

}  // namespace

std::string Cp932_Character(std::uint8_t lead, std::uint8_t trail) {
  static const Converter converter;
  if (!converter.Usable()) return {};
  char pair[] = {static_cast<char>(lead), static_cast<char>(trail)};
  char utf8[8];
  char* from = pair;
  char* to = utf8;
  std::size_t from_left = sizeof pair;
  std::size_t to_left = sizeof utf8;
  if (iconv(converter.Handle, &from, &from_left, &to, &to_left) == static_cast<std::size_t>(-1)) return {};
  return {utf8, to};
}

}  // namespace wrenbit
