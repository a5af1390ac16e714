// The fields of a sequential text file, one after the other, from a text in memory. The text may be in any
// encoding whose characters of several bytes hold no comma, quote or line end: UTF-8 and code page 932 are
// such.
#pragma once

#include <cstddef>
#include <string_view>

namespace wrenbit {

enum class Quotes { Honoured, Plain };

// A field ends at a comma or a line end: CR LF, LF or CR. Blanks (not tabs) before its first character are
// dropped, those at its end are kept. With Quotes::Honoured a field that begins with a double quote runs to
// the next one, line ends and commas included, or to the end of the text; the quotes are dropped, and so are
// the blanks and the one comma or line end that stand directly behind.
class Text_Field_Reader {
 public:
  // The text must outlive the reader and the fields it gave.
  Text_Field_Reader(std::string_view text, Quotes meaning)
      : rest(text), quotes(meaning), field_begin(text.data()), counted(text.data()) {}

  bool At_End() const { return rest.empty(); }
  // The next field; at the end an empty one.
  std::string_view Next();
  // The line, counted from 1, on which the last field began.
  int Line();

 private:
  std::string_view Take(std::size_t length);
  void Drop_Blanks();
  void Drop_Field_End();

  std::string_view rest;
  Quotes quotes;
  const char* field_begin;
  const char* counted;  // Lines are counted when asked for, up to here.
  int line = 1;
};

}  // namespace wrenbit
