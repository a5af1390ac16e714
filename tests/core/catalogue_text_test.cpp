// The catalogue's text: what is a device row, what is not, and what is told of a bad one. The one that is
// delivered, held against the geometry that the virtual board took from the data sheets.
#include "core/catalogue_text.h"

#include <set>

#include "board/make_chip.h"
#include "core/catalogue.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/test_bench.h"

namespace wrenbit {
namespace {

TEST(Catalogue_Text, EachRecordIsOneOfFourKinds) {
  const struct {
    std::string Text;
    Texts Rows;
    std::string Version;
  } cases[] = {
      {"A=2\r\nB x", {"A", "B"}, ""},
      {"; note\n\n   \n\tA\tx\n", {"A"}, ""},
      {"A x 2 8 ; mine\nB\n", {"B"}, ""},  // A comment behind data drops the data.
      {" Ver 1.00 \nA\n Ver 2.00 \n", {"A"}, "Ver 2.00"},
      {"A x 2 8 8 1 0 Version\nB\n", {"B"}, "A x 2 8 8 1 0 Version"},
      {"; Ver 3\nver 1\n", {"ver"}, "; Ver 3"},
      {"A x 2, B y 3\n", {"A", "B"}, ""},
      {"\"A,1 x 2 8\"\nB\n", {"A,1", "B"}, ""},
      {"  \" A, 2\"  ,B\"C\n\"D x\nx\" E,\"F", {"A,", "B\"C", "D", "E", "F"}, ""},
      {"A x 2 8 8 1 -\nB x 3 7 - - 7\n", {"A", "B"}, ""},
      {"\x8C\xEA\n\x1Az\n", {"語"}, ""},  // Behind an end-of-file mark stands nothing.
      {"\xEF\xBB\xBF語 x\n\xE8\xFF\n", {"語", "\xE8\xFF"}, ""},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.Text);
    const Catalogue catalogue = Read_Catalogue(Catalogue_Text(c.Text));
    Texts names;
    for (const Device_Row& row : catalogue.Rows) names.push_back(row[Column_Name]);
    EXPECT_EQ(names, c.Rows);
    EXPECT_EQ(catalogue.Version, c.Version);
    EXPECT_TRUE(catalogue.Problems.empty());
  }
}

TEST(Catalogue_Text, BadRowsAreToldWithLineAndColumnAndReadAsZero) {
  const Catalogue catalogue = Read_Catalogue(
      "\"; head\r\n\r\"\nA x 2 big 8\nB\nC x 2 8 8 1.5 99999999999\n"
      "D x 2 8 12\nE x 2 8 -2147483648\nF x 2 8 512\nG x 3 8 12 - -\n");
  const std::string no_number = " は数値ではありません。0とします。";
  const std::string no_page = " は2の累乗ではありません。Block Writeはできません。";
  EXPECT_EQ(catalogue.Problems, (Texts{"4行目: A の列3 (メモリサイズ) の \"big\"" + no_number,
                                       "6行目: C の列5 (アドレスモード) の \"1.5\"" + no_number,
                                       "6行目: C の列6 (アドレスビット数) の \"99999999999\"" + no_number,
                                       "7行目: D の列4 (ページサイズ) の \"12\"" + no_page,
                                       "8行目: E の列4 (ページサイズ) の \"-2147483648\"" + no_page,
                                       "10行目: G の列6 (アドレスビット数) の \"-\"" + no_number}));
  EXPECT_EQ(Number_Cell(catalogue.Rows[0], Column_Mem_Size), 0);
  EXPECT_EQ(Number_Cell(catalogue.Rows[0], Column_Page_Size), 8);
}

TEST(Catalogue_Text, RowsBehindTheTablesEndAreToldAndLeftOut) {
  std::string text;
  for (int i = 0; i < 2000; ++i) text += "D" + std::to_string(i) + " x 2 8\n";
  const Catalogue catalogue = Read_Catalogue(text);
  EXPECT_EQ(catalogue.Rows.size(), 101U);
  EXPECT_EQ(catalogue.Problems.size(), kMostProblems) << "a vast file takes no vast memory";
  EXPECT_EQ(catalogue.Problems[0], "102行目: D101 は101行を超えたため読み込みませんでした。");
}

TEST(Delivered_Catalogue, IsWholeAndAgreesWithTheDataSheets) {
  const Catalogue catalogue = Read_Catalogue(Catalogue_Text(Content(WRENBIT_INI)));
  EXPECT_TRUE(catalogue.Problems.empty());
  EXPECT_TRUE(catalogue.Version.starts_with("Ver "));
  std::multiset<std::string> names{"24LC1026"};  // Left out: no block read fits the whole of it.
  for (const Device_Row& row : catalogue.Rows) {
    SCOPED_TRACE(row[Column_Name]);
    names.insert(row[Column_Name]);
    for (int column = Column_Name; column <= Column_Clock_Speed; ++column)
      EXPECT_FALSE(row[static_cast<std::size_t>(column)].empty()) << "column " << column;
    const std::size_t bytes = board::Chip_Size(row[Column_Name]);
    EXPECT_EQ(1U << Number_Cell(row, Column_Mem_Size), bytes);
    EXPECT_EQ(row[Column_Density], std::to_string(bytes) + "x8");
    if (const auto* chip = board::Find_Three_Wire(row[Column_Name])) {
      EXPECT_EQ(Number_Cell(row, Column_Family), 3);
      EXPECT_EQ(Number_Cell(row, Column_Address_Bits), chip->AddressBits);
      continue;
    }
    const board::Two_Wire_Part* chip = board::Find_Two_Wire(row[Column_Name]);
    EXPECT_EQ(Number_Cell(row, Column_Family), 2);
    EXPECT_EQ(Number_Cell(row, Column_Address_Mode), chip->AddressBytes);
    // A page that is too large overwrites its own start; a smaller one only takes longer.
    const auto page = static_cast<std::size_t>(Number_Cell(row, Column_Page_Size));
    EXPECT_TRUE(page >= 1 && page <= chip->Page && chip->Page % page == 0) << page;
  }
  const auto chips = board::Chip_Names();
  EXPECT_EQ(names, std::multiset<std::string>(chips.begin(), chips.end()));
}

}  // namespace
}  // namespace wrenbit
