#include "text_field_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace wrenbit {
namespace {

std::vector<std::string> Fields(std::string_view text, Quotes quotes) {
  std::vector<std::string> fields;
  for (Text_Field_Reader reader(text, quotes); !reader.At_End();) fields.emplace_back(reader.Next());
  return fields;
}

TEST(TextFieldReader, QuotesHoldAFieldTogetherWhereTheyAreHonoured) {
  const struct {
    const char* text;
    std::vector<std::string> honoured;
    std::vector<std::string> plain;
  } cases[] = {
      {"\"a,b\"\nc", {"a,b", "c"}, {"\"a", "b\"", "c"}},
      {"\"a\r\nb\",c", {"a\r\nb", "c"}, {"\"a", "b\"", "c"}},
      {"  \" a \"  ,  c", {" a ", "c"}, {"\" a \"  ", "c"}},
      {"\"a\",\nb", {"a", "", "b"}, {"\"a\"", "", "b"}},
      {"\"a\" b,c", {"a", "b", "c"}, {"\"a\" b", "c"}},
      {"a\"b,c\"", {"a\"b", "c\""}, {"a\"b", "c\""}},
      {"\"a,b\n", {"a,b\n"}, {"\"a", "b"}},
      {"\"", {""}, {"\""}},
      {"\"\"", {""}, {"\"\""}},
  };
  for (const auto& [text, honoured, plain] : cases) {
    EXPECT_EQ(Fields(text, Quotes::Honoured), honoured) << text;
    EXPECT_EQ(Fields(text, Quotes::Plain), plain) << text;
  }
}

TEST(TextFieldReader, TellsTheLineOnWhichAFieldBegan) {
  Text_Field_Reader reader("a,b\r\n\rc\n\"d\r\ne\"\nf", Quotes::Honoured);
  std::vector<int> lines;
  while (!reader.At_End()) {
    reader.Next();
    lines.push_back(reader.Line());
  }
  EXPECT_EQ(lines, (std::vector{1, 1, 2, 3, 4, 6}));
}

}  // namespace
}  // namespace wrenbit
