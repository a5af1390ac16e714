#include "text_field_reader.h"

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

}  // namespace

std::string_view Text_Field_Reader::Next() {
  Drop_Blanks();
  field_line = rest_line;
  const std::string_view from_field = rest;
  std::string_view field;
  if (quotes == Quotes::Honoured && rest.starts_with('"')) {
    Take(1);
    field = Take(rest.find('"'));
    Take(1);
    Drop_Blanks();
  } else {
    field = Take(rest.find_first_of(",\r\n"));
  }
  Drop_Field_End();
  rest_line += Line_Ends(from_field.substr(0, from_field.size() - rest.size()));
  return field;
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
