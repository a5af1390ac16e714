#include "core/state/code_page_932.h"

#include <gtest/gtest.h>

#include <utility>

namespace wrenbit {
namespace {

TEST(Code_Page_932, EverySingleByteHasTheCharacterThatWindowsShows) {
  const std::pair<int, const char*> cases[] = {
      {0x5C, "\\"},     {0x7E, "~"},      {0x80, "\xC2\x80"}, {0x81, ""}, {0x9F, ""},       {0xA0, "\u00A0"},
      {0xA1, "\uFF61"}, {0xDF, "\uFF9F"}, {0xE0, ""},         {0xFC, ""}, {0xFD, "\uF8F1"}, {0xFF, "\uF8F3"},
  };
  for (const auto& [byte, utf8] : cases)
    EXPECT_EQ(Cp932_Character(static_cast<std::uint8_t>(byte)), utf8) << std::hex << byte;
  EXPECT_EQ(Cp932_Character(0), std::string(1, '\0'));
}

TEST(Code_Page_932, DecodesWholeTexts) {
  const std::pair<const char*, const char*> cases[] = {
      {"\x93\xFA\x96\x7B\x8C\xEA 24C02\r\n", "日本語 24C02\r\n"},
      {"\x83\x5C\x83\x7C", "ソポ"},              // Trail bytes that look like ASCII.
      {"\x81\x60\x81\x5C\x81\x7C", "～―－"},     // Where Windows parts from JIS.
      {"\x87\x40\xFA\x40\xF0\x40", "①ⅰ\uE000"},  // NEC's, IBM's and the user's own characters.
      {"\xCA\xDF!", "ﾊﾟ!"},
      {"A\x81", "A\uFFFD"},                    // Cut off in the midst.
      {"\x81\r\n\x82:", "\uFFFD\r\n\uFFFD:"},  // A lead byte takes no line end and no punctuation with it.
      {"\x81\x7F", "\uFFFD\x7F"},
      {"\x81\xADz", "\uFFFDz"},  // Unassigned.
  };
  for (const auto& [bytes, utf8] : cases) EXPECT_EQ(Utf8_From_Cp932(bytes), utf8);
  EXPECT_EQ(Utf8_From_Cp932(std::string_view("\x93\xFA", 1)), "\uFFFD") << "reads no byte behind the text";
}

}  // namespace
}  // namespace wrenbit
