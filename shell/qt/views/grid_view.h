// The view of the grid: paints the cells that are in sight and nothing else, so that the grid's length costs
// nothing.
#pragma once

#include <QAbstractScrollArea>

#include "shell/controls/flex_grid.h"

class QPainter;

namespace wrenbit {

struct Grid_Cell {
  int Row;
  int Col;
};

// The header row and the address column stand still. The last column takes what width is left, a few pixels
// less than its own when the scroll bar needs them.
class Grid_View : public QAbstractScrollArea {
 public:
  Grid_View(FlexGrid& shown, QWidget* holder);

  // Shows the grid as it has become; brings the current cell into sight when it has moved.
  void Follow();

  // Where a cell is painted, in the viewport. Empty when it is not in sight.
  QRect Cell_Rect(int row, int col) const;
  // The cell at a point of the viewport. Row or column lies outside the grid when there is none.
  Grid_Cell Cell_At(const QPoint& point) const;
  const FlexGrid& Grid() const { return grid; }

  // Row by row, the fixed row's cells first.
  int Number_Of(int row, int col) const { return row * grid.Cols() + col; }

  // Makes a cell current and brings it into sight. A fixed cell cannot become the current one.
  void Go_To_Cell(int row, int col);
  // What a click with the mouse does.
  void Click_Cell(int row, int col);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  int Rows_In_Sight() const;  // Whole ones, below the header.
  int First_Row() const;
  int Column_Left(int col) const;
  void Set_Scroll_Range();
  void Show_Current_Row();
  void Tell_Current_Cell();  // Tells a screen reader where the keyboard is, if the grid has it.
  // Grey while nobody can reach the grid, and while it is out of date, but for what was written since.
  QPalette::ColorGroup Colours(int row, int col) const;
  void Paint_Cell(QPainter& painter, const QRect& cell, int row, int col) const;
  void Make_Current(int row, int col);  // Unless it is a fixed cell or none.
  void Move_To(int row, int col);       // Or as near as the grid reaches.

  FlexGrid& grid;
  int address_width = 0;  // Pixels that an address takes; the column may be wider.
  int row_in_sight = -1;  // The current cell's row at the last look.
};

}  // namespace wrenbit
