#include "hex_text.h"

#include <gtest/gtest.h>

namespace wrenbit {
namespace {

TEST(HexText, ReadsTheLastFourCharacters) {
  const struct {
    const char* text;
    std::int32_t value;
  } cases[] = {
      {"", 0},       {"ff", 255}, {"fF", 255},        {"1234", 4660},    {"12345", 9029},
      {"G1", 1},     {"1G", 16},  {"FFFF", 65535},    {" 7", 7},         {"-1", 1},
      {"1あ", 0x10}, {"あ1", 1},  {"12あ34", 0x2034}, {"ｱ1ｱ2ｱ", 0x1020},
  };
  for (const auto& [text, value] : cases) EXPECT_EQ(Hex_ToLong(text), value) << text;
}

}  // namespace
}  // namespace wrenbit
