// The catalogue that is delivered, held against the geometry that the virtual board took from the data
// sheets.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <set>

#include "catalogue_text.h"
#include "code_page_932.h"
#include "make_chip.h"

namespace wrenbit {
namespace {

Catalogue Delivered() {
  std::ifstream file(WRENBIT_INI, std::ios::binary);
  const std::string text(std::istreambuf_iterator<char>(file), {});
  return Read_Catalogue(Utf8_From_Cp932(text));
}

TEST(Delivered_Catalogue, IsCleanAndWhole) {
  const Catalogue catalogue = Delivered();
  EXPECT_TRUE(catalogue.Problems.empty());
  EXPECT_TRUE(catalogue.Version.starts_with("Ver "));
  std::set<std::string> names;
  for (const Device_Row& row : catalogue.Rows) names.insert(row[kName]);
  EXPECT_EQ(catalogue.Rows.size(), 32U);
  EXPECT_EQ(names.size(), 32U);
  for (const Device_Row& row : catalogue.Rows)
    for (int column = kName; column <= kClockSpeed; ++column)
      EXPECT_FALSE(row[static_cast<std::size_t>(column)].empty()) << row[kName] << ", column " << column;
}

TEST(Delivered_Catalogue, AgreesWithTheDataSheets) {
  std::set<std::string> names;
  for (const Device_Row& row : Delivered().Rows) {
    SCOPED_TRACE(row[kName]);
    names.insert(row[kName]);
    const std::size_t bytes = board::Chip_Size(row[kName]);
    EXPECT_EQ(1U << Number_Cell(row, kMemSize), bytes);
    EXPECT_EQ(row[kDensity], std::to_string(bytes) + "x8");
    if (const auto* chip = board::Find_Three_Wire(row[kName])) {
      EXPECT_EQ(Number_Cell(row, kFamily), 3);
      EXPECT_EQ(Number_Cell(row, kAddressBits), chip->AddressBits);
      continue;
    }
    const board::Two_Wire_Part* chip = board::Find_Two_Wire(row[kName]);
    ASSERT_EQ(Number_Cell(row, kFamily), 2);
    EXPECT_EQ(Number_Cell(row, kAddressMode), chip->AddressBytes);
    // A page that is too large overwrites its own start; a smaller one only takes longer.
    EXPECT_LE(static_cast<std::size_t>(Number_Cell(row, kPageSize)), chip->Page);
    EXPECT_GE(Number_Cell(row, kPageSize), 1);
    EXPECT_EQ(chip->Page % static_cast<std::size_t>(Number_Cell(row, kPageSize)), 0U);
  }
  EXPECT_EQ(names.size(), board::Chip_Names().size());
}

}  // namespace
}  // namespace wrenbit
