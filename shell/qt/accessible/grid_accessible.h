// The hex grid as assistive technology sees it: a table of the bytes and the characters, whose headers are
// the fixed row and the fixed column. Cells are made when they are asked for.
#pragma once

#include <QAccessibleWidget>

#include "shell/qt/accessible/made_children.h"
#include "shell/qt/views/grid_view.h"

namespace wrenbit {

// The table's rows are counted behind the fixed one. Its columns begin with the addresses, so that a row that
// is read aloud begins with its own. The children are all cells, as the view numbers them.
class Grid_Accessible : public QAccessibleWidget, public QAccessibleTableInterface {
 public:
  explicit Grid_Accessible(Grid_View& shown);

  // Any cell of the grid, counted as the grid counts; null outside.
  QAccessibleInterface* Cell(int row, int col) const;

  void* interface_cast(QAccessible::InterfaceType type) override;
  int childCount() const override;
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* cell) const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  QAccessibleInterface* focusChild() const override;

  QAccessibleInterface* caption() const override { return nullptr; }
  QAccessibleInterface* summary() const override { return nullptr; }
  int rowCount() const override;
  int columnCount() const override;
  QAccessibleInterface* cellAt(int row, int column) const override { return Cell(row + 1, column); }
  QString rowDescription(int row) const override;
  QString columnDescription(int column) const override;
  int selectedCellCount() const override { return Current() ? 1 : 0; }
  QList<QAccessibleInterface*> selectedCells() const override;
  // One cell is selected, and never a row or a column.
  int selectedRowCount() const override { return 0; }
  int selectedColumnCount() const override { return 0; }
  QList<int> selectedRows() const override { return {}; }
  QList<int> selectedColumns() const override { return {}; }
  bool isRowSelected(int) const override { return false; }
  bool isColumnSelected(int) const override { return false; }
  bool selectRow(int) override { return false; }
  bool selectColumn(int) override { return false; }
  bool unselectRow(int) override { return false; }
  bool unselectColumn(int) override { return false; }
  void modelChange(QAccessibleTableModelChangeEvent*) override {}

 private:
  QAccessibleInterface* Current() const;  // Null when a fixed cell is current.

  Grid_View& view;
  const FlexGrid& grid;
  mutable Made_Children cells;
};

}  // namespace wrenbit
