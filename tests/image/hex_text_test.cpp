#include "hex_text.h"

#include <gtest/gtest.h>

namespace wrenbit {
namespace {

TEST(HexText, ADigitIsUpperCaseOrNothing) {
  const struct {
    const char* text;
    int value;
  } cases[] = {{"0", 0}, {"9", 9}, {"A", 10}, {"F", 15}, {"G", 0},
               {"a", 0}, {"/", 0}, {":", 0},  {"@", 0},  {"", 0}};
  for (const auto& [text, value] : cases) EXPECT_EQ(Hex_Digit(text), value) << text;
}

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

TEST(HexText, WritesTheLastDigits) {
  EXPECT_EQ(Hex_Text(0xA, 2), "0A");
  EXPECT_EQ(Hex_Text(0x1FE00, 4), "FE00");
  EXPECT_EQ(Hex_Text(0xFFFFFFFF, 8), "FFFFFFFF");
}

TEST(HexText, TheLineSumIsTheStandardOne) {
  const struct {
    const char* line;
    const char* sum;
  } cases[] = {
      {":00000001", "FF"},
      {":020000040001", "F9"},
      {":10000000000102030405060708090A0B0C0D0E0F", "78"},
      {":10000000FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFF", "00"},
      {":01000000FA", "05"},
  };
  for (const auto& [line, sum] : cases) {
    std::string whole = line;
    Hex_LineSum(whole);
    EXPECT_EQ(whole, std::string(line) + sum);
  }
}

}  // namespace
}  // namespace wrenbit
