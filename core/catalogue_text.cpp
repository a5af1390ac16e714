#include "core/catalogue_text.h"

#include <algorithm>
#include <utility>

#include "core/state/number_text.h"
#include "core/state/text_field_reader.h"
#include "core/state/utf8_text.h"
#include "engines/c24_control.h"

namespace wrenbit {
namespace {

struct Number_Column {
  Device_Column At;
  const char* Name;
};
constexpr std::array<Number_Column, 5> kNumberColumns{{{Column_Family, "ファミリ"},
                                                       {Column_Mem_Size, "メモリサイズ"},
                                                       {Column_Page_Size, "ページサイズ"},
                                                       {Column_Address_Mode, "アドレスモード"},
                                                       {Column_Address_Bits, "アドレスビット数"}}};

// Where "-" may stand.
bool Unused(const Device_Row& row, Device_Column column) {
  switch (Number_Cell(row, Column_Family)) {
    case 2:
      return column == Column_Address_Bits;
    case 3:
      return column == Column_Page_Size || column == Column_Address_Mode;
    default:
      return false;
  }
}

// What is wrong with a number cell; empty when nothing is. A row may be short: a missing cell is no fault.
std::string Fault(const Device_Row& row, Device_Column column) {
  const std::string& cell = row[column];
  if (cell.empty() || (cell == "-" && Unused(row, column))) return "";
  if (!Whole_Number(cell)) return "数値ではありません。0とします。";
  if (column == Column_Page_Size && Number_Cell(row, Column_Family) == 2 &&
      !C24_Page_Usable(Number_Cell(row, column)))
    return "2の累乗ではありません。Block Writeはできません。";
  return "";
}

// A message box shows all that it is given.
std::string Clipped(std::string_view text) { return std::string(First_Characters(text, 20)); }

std::string Line_Text(int line) { return std::to_string(line) + "行目: "; }

void Add_Row(Catalogue& catalogue, std::string_view record, int line) {
  const auto cells = Split_Line(record);
  if (catalogue.Rows.size() == kTableRows) {
    catalogue.Problems.push_back(Line_Text(line) + Clipped(cells[Column_Name]) + " は" +
                                 std::to_string(kTableRows) + "行を超えたため読み込みませんでした。");
    return;
  }
  Device_Row row;
  std::copy_n(cells.begin(), kTableColumns, row.begin());
  for (const auto& [column, name] : kNumberColumns)
    if (const std::string fault = Fault(row, column); !fault.empty())
      catalogue.Problems.push_back(Line_Text(line) + Clipped(row[Column_Name]) + " の列" +
                                   std::to_string(column) + " (" + name + ") の \"" + Clipped(row[column]) +
                                   "\" は" + fault);
  catalogue.Rows.push_back(std::move(row));
}

}  // namespace

std::string Expand_Tabs(std::string_view record) {
  std::string expanded;
  for (const char c : record) c == '\t' ? expanded.append(8, ' ') : expanded.append(1, c);
  return expanded;
}

std::array<std::string, kLineCells> Split_Line(std::string_view record) {
  std::string parted(record);
  if (const std::size_t equals = parted.find('='); equals != parted.npos) parted.replace(equals, 1, " = ");
  std::array<std::string, kLineCells> cells;
  std::string_view rest = Trim(parted);
  for (std::string& cell : cells) {
    const std::size_t end = std::min(rest.find(' '), rest.size());
    cell = rest.substr(0, end);
    rest = Trim(rest.substr(end));
  }
  return cells;
}

Catalogue Read_Catalogue(std::string_view text) {
  Catalogue catalogue;
  Text_Field_Reader reader(text, Quotes::Honoured);
  while (!reader.At_End() && catalogue.Problems.size() < kMostProblems) {
    const std::string expanded = Expand_Tabs(reader.Next());
    const std::string_view record = Trim(expanded);
    if (record.find("Ver") != record.npos)
      catalogue.Version = record;
    else if (!record.empty() && record.find(';') == record.npos)
      Add_Row(catalogue, record, reader.Line());
  }
  return catalogue;
}

std::int32_t Number_Cell(const Device_Row& row, Device_Column column) {
  return Whole_Number(row[column]).value_or(0);
}

}  // namespace wrenbit
