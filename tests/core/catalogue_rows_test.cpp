// The catalogue that is delivered, held against the geometry that the virtual board took from the data
// sheets.
#include <gtest/gtest.h>

#include <cstddef>
#include <set>
#include <string>

#include "board/make_chip.h"
#include "core/catalogue.h"
#include "core/catalogue_text.h"
#include "core/state/state.h"
#include "tests/support/temporary_folder.h"

namespace wrenbit {
namespace {

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
