#include "core/state/text_field_reader.h"

#include <algorithm>
#include <array>

namespace wrenbit {
namespace {

// CR LF counts once.
int Line_Ends(std::string_view text) {
  int count = 0;
  char before = 0;
  for (const char c : text) {
    if (c == '\r' || (c == '\n' && before != '\r')) ++count;
    before = c;
  }
  return count;
}

// An index is quicker than comparing: most of a file's characters end nothing.
constexpr auto kEndsField = [] {
  std::array<bool, 256> ends{};
  ends[','] = ends['\r'] = ends['\n'] = true;
  return ends;
}();

bool Ends_Field(char c) { return kEndsField[static_cast<unsigned char>(c)]; }

}  // namespace

std::string_view Text_Field_Reader::Next() {
  Drop_Blanks();
  field_begin = rest.data();
  std::string_view field;
  if (quotes == Quotes::Honoured && rest.starts_with('"')) {
    Take(1);
    field = Take(rest.find('"'));
    Take(1);
    Drop_Blanks();
  } else {
    field = Take(static_cast<std::size_t>(std::ranges::find_if(rest, Ends_Field) - rest.begin()));
  }
  Drop_Field_End();
  return field;
}

int Text_Field_Reader::Line() {
  line += Line_Ends({counted, field_begin});
  counted = field_begin;
  return line;
}

std::string_view Text_Field_Reader::Take(std::size_t length) {
  const std::string_view taken = rest.substr(0, length);
  rest.remove_prefix(taken.size());
  return taken;
}

void Text_Field_Reader::Drop_Blanks() { Take(rest.find_first_not_of(' ')); }

void Text_Field_Reader::Drop_Field_End() {
  if (rest.starts_with("\r\n")) {
    Take(2);
  } else if (rest.starts_with('\r') || rest.starts_with('\n') || rest.starts_with(',')) {
    Take(1);
  }
}

}  // namespace wrenbit
