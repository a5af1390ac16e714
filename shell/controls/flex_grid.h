// The grid control: rows of text cells with one fixed row above, one fixed column at the left and one current
// cell. A row is kept as it was written, cells parted by TAB, and cut up only when a cell is asked for, so
// that refilling thousands of rows costs one string each. While the grid is invisible its view is told
// nothing but that, and looks at all of it when it shows again.
#pragma once

#include <cstddef>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "shell/controls/control.h"

namespace wrenbit {

class FlexGrid : public Control {
 public:
  using Control::Control;

  // Fixed ones included. New rows are empty; a current cell that falls outside moves to the last one.
  int Rows() const { return static_cast<int>(rows.size()); }
  void Set_Rows(int count);
  int Cols() const { return static_cast<int>(columns.size()); }
  void Set_Cols(int count);

  // The current cell. Setting it fires no click; a place outside the grid is refused, with no effect.
  int Row() const { return row; }
  void Set_Row(int value);
  int Col() const { return col; }
  void Set_Col(int value);

  // End column of the selection, which begins at the current cell. Setting Row or Col takes it back there.
  void Set_ColSel(int value);
  // The texts of the selected cells, TAB between them.
  void Set_Clip(std::string_view text);

  // The current cell.
  std::string Text() const { return std::string(Cell(row, col)); }
  void Set_Text(std::string_view text);

  // The cells of this row and of those below are weaker than the others, but for what Set_Text writes from
  // now on. In a grid that is out of date, it is the weak ones that are. Until it is set again; 0 for none.
  void Set_WeakFrom(int first_row);
  bool Weak(int at_row, int at_col) const;

  // Any cell; empty outside the grid. The view is good until the grid changes.
  std::string_view Cell(int at_row, int at_col) const;

  // Header texts, a vertical bar between columns, a caret before a centred one.
  void Set_FormatString(std::string_view format);
  int ColWidth(int column) const { return columns.at(static_cast<std::size_t>(column)).Width; }
  void Set_ColWidth(int column, int twips);
  Alignment ColAlignment(int column) const { return columns.at(static_cast<std::size_t>(column)).Align; }
  void Set_ColAlignment(int column, Alignment alignment);
  void Reset() override;

  std::function<void()> Click;

 private:
  struct Column {
    int Width = 960;
    Alignment Align = Alignment::Left;
  };
  void Set_Cell(int at_row, int at_col, std::string_view text);
  void Tell_If_Visible() const {
    if (Visible()) Tell();
  }

  std::vector<std::string> rows;
  std::vector<Column> columns;
  int row = 0;
  int col = 0;
  int col_sel = 0;
  int weak_from = 0;                     // 0: none.
  std::set<std::pair<int, int>> strong;  // Row and column.
};

}  // namespace wrenbit
