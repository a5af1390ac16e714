// The text of the device catalogue taken apart: records into device rows, a version, and what is wrong with
// them.
//
//   Ver 1.00                  the version record: any record with "Ver" in it
//   ; a comment               any record with ";" in it, data before it included
//   24C02  I2C  2  8  8 ...   a device row: tokens between blanks or tabs
//
// A record ends at a line end or a comma; in double quotes it runs to the next one.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/state/state.h"

namespace wrenbit {

// The columns of a device row. Behind the last one, up to kTableColumns, they are kept and not used.
enum Device_Column {
  Column_Name,
  Column_Name_Tail,     // Shown behind the name.
  Column_Family,        // 2 = 24Cxx, 3 = 93Cxx.
  Column_Mem_Size,      // The chip holds 2^n bytes.
  Column_Page_Size,     // Bytes.
  Column_Address_Mode,  // 24Cxx: 1 = one address byte, else two.
  Column_Address_Bits,  // 93Cxx.
  Column_Status_Text,   // Panel 4.
  Column_Supply,
  Column_Endurance,
  Column_Density,
  Column_Write_Speed,
  Column_Clock_Speed,
};

inline constexpr int kLineCells = 65;

// Eight blanks for each tab, wherever it stands.
std::string Expand_Tabs(std::string_view record);

// The tokens between blanks, from cell 0 on, the rest empty. The first "=" is a token of its own. Tokens
// behind the last cell are dropped.
std::array<std::string, kLineCells> Split_Line(std::string_view record);

struct Catalogue {
  std::vector<Device_Row> Rows;       // At most kTableRows.
  std::string Version;                // The last version record, trimmed.
  std::vector<std::string> Problems;  // One line each, in Japanese: rows left out, numbers that are none,
                                      // pages by which no block can be written.
};

// What is read no further is no catalogue but some other file, perhaps a very large one.
inline constexpr std::size_t kMostProblems = 1000;

// UTF-8 in. Any text gives a catalogue, if an empty one. Ends early where it would have more problems than
// the most.
Catalogue Read_Catalogue(std::string_view text);

// A number column as the program uses it: empty and no number are 0.
std::int32_t Number_Cell(const Device_Row& row, Device_Column column);

}  // namespace wrenbit
