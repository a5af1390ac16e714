#include "shell/controls/flex_grid.h"

#include <algorithm>
#include <utility>

namespace wrenbit {
namespace {

// Takes the part before the next separator off the front of the text.
std::string_view Next_Part(std::string_view& text, char separator) {
  const std::size_t end = text.find(separator);
  const std::string_view part = text.substr(0, end);
  text.remove_prefix(end == text.npos ? text.size() : end + 1);
  return part;
}

std::size_t Index(int value) { return static_cast<std::size_t>(value); }

}  // namespace

void FlexGrid::Set_Rows(int count) {
  rows.resize(Index(std::max(count, 0)));
  row = std::clamp(row, 0, std::max(Rows() - 1, 0));
  Tell_If_Visible();
}

void FlexGrid::Set_Cols(int count) {
  columns.resize(Index(std::max(count, 0)));
  col = std::clamp(col, 0, std::max(Cols() - 1, 0));
  col_sel = col;
  Tell_If_Visible();
}

void FlexGrid::Set_Row(int value) {
  if (value < 0 || value >= Rows()) return;
  col_sel = col;
  if (row == value) return;
  row = value;
  Tell_If_Visible();
}

void FlexGrid::Set_Col(int value) {
  if (value < 0 || value >= Cols()) return;
  col_sel = value;
  if (col == value) return;
  col = value;
  Tell_If_Visible();
}

void FlexGrid::Set_ColSel(int value) {
  if (value >= 0 && value < Cols()) col_sel = value;
}

void FlexGrid::Set_Clip(std::string_view text) {
  if (row >= Rows()) return;
  if (col == 0 && col_sel == Cols() - 1) {
    rows[Index(row)] = text;
  } else {
    for (int c = col; c <= col_sel; ++c) Set_Cell(row, c, Next_Part(text, '\t'));
  }
  Tell_If_Visible();
}

void FlexGrid::Set_Text(std::string_view text) {
  if (row >= Rows()) return;
  Set_Cell(row, col, text);
  if (Weak(row, col)) strong.emplace(row, col);
  Tell_If_Visible();
}

void FlexGrid::Set_WeakFrom(int first_row) {
  weak_from = first_row;
  strong.clear();
  Tell_If_Visible();
}

bool FlexGrid::Weak(int at_row, int at_col) const {
  return weak_from > 0 && at_row >= weak_from && !strong.contains({at_row, at_col});
}

std::string_view FlexGrid::Cell(int at_row, int at_col) const {
  if (at_row < 0 || at_row >= Rows() || at_col < 0 || at_col >= Cols()) return {};
  std::string_view rest = rows[Index(at_row)];
  for (int c = 0; c < at_col; ++c) Next_Part(rest, '\t');
  return Next_Part(rest, '\t');
}

void FlexGrid::Set_Cell(int at_row, int at_col, std::string_view text) {
  std::string whole;
  for (int c = 0; c < Cols(); ++c) {
    if (c > 0) whole += '\t';
    whole += c == at_col ? text : Cell(at_row, c);
  }
  rows[Index(at_row)] = std::move(whole);
}

void FlexGrid::Set_FormatString(std::string_view format) {
  for (int c = 0; c < Cols() && !format.empty(); ++c) {
    std::string_view header = Next_Part(format, '|');
    const bool centred = header.starts_with('^');
    if (centred) header.remove_prefix(1);
    columns[Index(c)].Align = centred ? Alignment::Centre : Alignment::Left;
    if (Rows() > 0) Set_Cell(0, c, header);
  }
  Tell_If_Visible();
}

void FlexGrid::Set_ColWidth(int column, int twips) { Store(columns.at(Index(column)).Width, twips); }

void FlexGrid::Set_ColAlignment(int column, Alignment alignment) {
  Store(columns.at(Index(column)).Align, alignment);
}

void FlexGrid::Reset() {
  rows.clear();
  columns.clear();
  row = col = col_sel = weak_from = 0;
  strong.clear();
  Control::Reset();
}

}  // namespace wrenbit
