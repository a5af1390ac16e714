// The catalogue's text: what is a device row, what is not, and what is told of a bad one.
#include "catalogue_text.h"

#include <gtest/gtest.h>

namespace wrenbit {
namespace {

std::vector<std::string> Names(const Catalogue& catalogue) {
  std::vector<std::string> names;
  for (const Device_Row& row : catalogue.Rows) names.push_back(row[kName]);
  return names;
}

TEST(Catalogue_Text, EachRecordIsOneOfFourKinds) {
  const struct {
    const char* Name;
    std::string Text;
    std::vector<std::string> Rows;
    std::string Version;
  } cases[] = {
      {"empty", "", {}, ""},
      {"two rows", "A x 2 8\nB x 2 9\n", {"A", "B"}, ""},
      {"last line without an end, CR LF", "A x\r\nB x", {"A", "B"}, ""},
      {"comments and blanks", "; note\n\n   \nA x\n", {"A"}, ""},
      {"a comment behind data drops the data", "A x 2 8 ; mine\nB\n", {"B"}, ""},
      {"the last version stands, trimmed", " Ver 1.00 \nA\nVer 2.00\n", {"A"}, "Ver 2.00"},
      {"a version in any token", "A x 2 8 8 1 0 Version\nB\n", {"B"}, "A x 2 8 8 1 0 Version"},
      {"a version in a comment", "; Ver 3\nA\n", {"A"}, "; Ver 3"},
      {"lower case is no version", "ver 1\n", {"ver"}, ""},
      {"a comma ends a record", "A x 2, B y 3\n", {"A", "B"}, ""},
      {"a quoted comma does not", "\"A,1 x 2 8\"\nB\n", {"A,1", "B"}, ""},
      {"tabs are blanks", "\tA\tx\t2\n", {"A"}, ""},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.Name);
    const Catalogue catalogue = Read_Catalogue(c.Text);
    EXPECT_EQ(Names(catalogue), c.Rows);
    EXPECT_EQ(catalogue.Version, c.Version);
    EXPECT_TRUE(catalogue.Problems.empty());
  }
}

TEST(Catalogue_Text, ALineSplitsAtBlanksAndAtItsFirstEquals) {
  const struct {
    const char* Line;
    std::vector<std::string> Cells;
  } cases[] = {{"  a   b c  ", {"a", "b", "c", ""}},
               {"24C02=I2C 2", {"24C02", "=", "I2C", "2"}},
               {"a = b=c", {"a", "=", "b=c", ""}},
               {"", {"", ""}}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.Line);
    const auto cells = Split_Line(c.Line);
    EXPECT_EQ(
        std::vector<std::string>(cells.begin(), cells.begin() + static_cast<std::ptrdiff_t>(c.Cells.size())),
        c.Cells);
  }
  std::string many;
  for (int i = 0; i < 70; ++i) many += "t" + std::to_string(i) + " ";
  EXPECT_EQ(Split_Line(many)[64], "t64");
}

TEST(Catalogue_Text, BadRowsAreToldWithLineAndColumnAndReadAsZero) {
  const Catalogue catalogue = Read_Catalogue("; head\nA x 2 big 8\nB\nC x 2 8 8 1.5 99999999999\n");
  ASSERT_EQ(catalogue.Problems.size(), 3U);
  EXPECT_EQ(catalogue.Problems[0],
            "2行目: A の列3 (メモリサイズ) の \"big\" は数値ではありません。0とします。");
  EXPECT_NE(catalogue.Problems[1].find("4行目: C の列5"), std::string::npos);
  EXPECT_NE(catalogue.Problems[2].find("4行目: C の列6"), std::string::npos);
  EXPECT_EQ(Number_Cell(catalogue.Rows[0], kMemSize), 0);
  EXPECT_EQ(Number_Cell(catalogue.Rows[0], kPageSize), 8);
  EXPECT_EQ(Number_Cell(catalogue.Rows[1], kFamily), 0);
}

TEST(Catalogue_Text, RowsBehindTheTablesEndAreToldAndLeftOut) {
  std::string text;
  for (int i = 0; i < 103; ++i) text += "D" + std::to_string(i) + " x 2 8\n";
  const Catalogue catalogue = Read_Catalogue(text);
  EXPECT_EQ(catalogue.Rows.size(), 101U);
  ASSERT_EQ(catalogue.Problems.size(), 2U);
  EXPECT_NE(catalogue.Problems[0].find("102行目: D101"), std::string::npos);

  for (int i = 0; i < 2000; ++i) text += "too many\n";
  EXPECT_EQ(Read_Catalogue(text).Problems.size(), kMostProblems) << "a vast file takes no vast memory";
}

}  // namespace
}  // namespace wrenbit
