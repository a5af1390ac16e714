#include "core/state/text_field_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

namespace wrenbit {
namespace {

using Fields = std::vector<std::string>;

TEST(Text_Field_Reader_Test, QuotesHoldAFieldTogetherWhereTheyAreHonoured) {
  const auto fields = [](std::string_view text, Quotes quotes) {
    Fields all;
    for (Text_Field_Reader reader(text, quotes); !reader.At_End();) all.emplace_back(reader.Next());
    return all;
  };
  const std::tuple<const char*, Fields, Fields> cases[] = {
      {"\"a\r\nb\",c", {"a\r\nb", "c"}, {"\"a", "b\"", "c"}},
      {"  \" a, \"  ,  c", {" a, ", "c"}, {"\" a", "\"  ", "c"}},
      {"\"a\",\nb", {"a", "", "b"}, {"\"a\"", "", "b"}},
      {"\"a\" b,c", {"a", "b", "c"}, {"\"a\" b", "c"}},
      {"a\"b,c\"", {"a\"b", "c\""}, {"a\"b", "c\""}},
      {"\"a,b\n", {"a,b\n"}, {"\"a", "b"}},
      {"\"", {""}, {"\""}},
  };
  for (const auto& [text, honoured, plain] : cases) {
    EXPECT_EQ(fields(text, Quotes::Honoured), honoured) << text;
    EXPECT_EQ(fields(text, Quotes::Plain), plain) << text;
  }
}

TEST(Text_Field_Reader_Test, TellsTheLineOnWhichAFieldBegan) {
  Text_Field_Reader reader("a,b\r\n\rc\n\"d\r\ne\"\nf", Quotes::Honoured);
  for (const int line : {1, 1, 2, 3, 4, 6}) {
    reader.Next();
    EXPECT_EQ(reader.Line(), line);
  }
  EXPECT_TRUE(reader.At_End());
}

}  // namespace
}  // namespace wrenbit
