#include "shell/qt/accessible/grid_accessible.h"

#include <QWindow>
#include <algorithm>

#include "shell/qt/accessible/shown_text.h"
#include "shell/qt/drawing/look.h"
#include "shell/qt/views/reach.h"

namespace wrenbit {
namespace {

// Children stay what they are when columns are added.
constexpr int kMostCols = 256;

class Cell_Accessible : public QAccessibleInterface,
                        public QAccessibleTableCellInterface,
                        public QAccessibleActionInterface,
                        public Shown_Text {
 public:
  Cell_Accessible(Grid_View& shown, int at_row, int at_col)
      : view(shown), grid(shown.Grid()), row(at_row), col(at_col) {}

  int Row() const { return row; }
  int Col() const { return col; }

  bool isValid() const override { return row < grid.Rows() && col < grid.Cols(); }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return Table()->window(); }
  QAccessibleInterface* parent() const override { return Table(); }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

  // A header says its own text. A byte is called by its row and column, and its text is what stands there.
  QString text(QAccessible::Text what) const override {
    if (what == QAccessible::Value) return Whole_Text();
    if (what != QAccessible::Name) return {};
    return Fixed() ? Whole_Text() : Text_Of(grid.Cell(row, 0)) + ' ' + Text_Of(grid.Cell(0, col));
  }
  void setText(QAccessible::Text, const QString&) override {}
  using Shown_Text::text;

  QRect rect() const override {
    const QRect place = view.Cell_Rect(row, col);
    return place.isEmpty() ? QRect() : place.translated(view.viewport()->mapToGlobal(QPoint()));
  }

  QAccessible::Role role() const override {
    return row == 0 ? QAccessible::ColumnHeader : col == 0 ? QAccessible::RowHeader : QAccessible::Cell;
  }

  QAccessible::State state() const override {
    QAccessible::State state;
    state.disabled = !view.isEnabled();
    state.invisible = !view.isVisible();
    state.offscreen = view.Cell_Rect(row, col).isEmpty();
    state.readOnly = true;
    if (Fixed()) return state;
    state.focusable = state.selectable = true;
    state.selected = isSelected();
    state.focused = state.selected && view.hasFocus();
    return state;
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    switch (type) {
      case QAccessible::TableCellInterface:
        return static_cast<QAccessibleTableCellInterface*>(this);
      case QAccessible::ActionInterface:
        return static_cast<QAccessibleActionInterface*>(this);
      case QAccessible::TextInterface:
        return Fixed() ? nullptr : static_cast<QAccessibleTextInterface*>(this);
      default:
        return nullptr;
    }
  }

  bool isSelected() const override { return !Fixed() && row == grid.Row() && col == grid.Col(); }
  int rowIndex() const override { return row - 1; }
  int columnIndex() const override { return col; }
  int rowExtent() const override { return 1; }
  int columnExtent() const override { return 1; }
  QList<QAccessibleInterface*> columnHeaderCells() const override { return {Table()->Cell(0, col)}; }
  QList<QAccessibleInterface*> rowHeaderCells() const override { return {Table()->Cell(row, 0)}; }
  QAccessibleInterface* table() const override { return Table(); }

  QStringList actionNames() const override {
    return Fixed() ? QStringList{pressAction()} : QStringList{pressAction(), setFocusAction()};
  }
  void doAction(const QString& action) override {
    if (!isValid() || !Within_Reach(view) || !view.isVisible()) return;
    if (action == pressAction()) view.Click_Cell(row, col);
    if (action == setFocusAction() && !Fixed()) view.Go_To_Cell(row, col);
  }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 protected:
  QString Whole_Text() const override { return Text_Of(grid.Cell(row, col)); }

 private:
  bool Fixed() const { return row == 0 || col == 0; }
  Grid_Accessible* Table() const {
    return static_cast<Grid_Accessible*>(QAccessible::queryAccessibleInterface(&view));
  }

  Grid_View& view;
  const FlexGrid& grid;
  const int row;
  const int col;
};

}  // namespace

Grid_Accessible::Grid_Accessible(Grid_View& shown)
    : QAccessibleWidget(&shown, QAccessible::Table), view(shown), grid(shown.Grid()) {}

QAccessibleInterface* Grid_Accessible::Cell(int row, int col) const {
  if (row < 0 || row >= grid.Rows() || col < 0 || col >= grid.Cols()) return nullptr;
  return cells.Child(row * kMostCols + col, [&] { return new Cell_Accessible(view, row, col); });
}

void* Grid_Accessible::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
  return QAccessibleWidget::interface_cast(type);
}

int Grid_Accessible::childCount() const { return grid.Rows() * grid.Cols(); }

QAccessibleInterface* Grid_Accessible::child(int index) const {
  return index < 0 || index >= childCount() ? nullptr : Cell(index / grid.Cols(), index % grid.Cols());
}

int Grid_Accessible::indexOfChild(const QAccessibleInterface* child) const {
  const auto* cell = dynamic_cast<const Cell_Accessible*>(child);
  return cell && cell->isValid() && cell->parent() == this ? view.Number_Of(cell->Row(), cell->Col()) : -1;
}

QAccessibleInterface* Grid_Accessible::childAt(int x, int y) const {
  const QPoint point = view.viewport()->mapFromGlobal(QPoint(x, y));
  if (!view.viewport()->rect().contains(point)) return nullptr;
  const auto [row, col] = view.Cell_At(point);
  return Cell(row, col);
}

QAccessibleInterface* Grid_Accessible::Current() const {
  return grid.Row() < 1 || grid.Col() < 1 ? nullptr : Cell(grid.Row(), grid.Col());
}

QAccessibleInterface* Grid_Accessible::focusChild() const { return view.hasFocus() ? Current() : nullptr; }

int Grid_Accessible::rowCount() const { return std::max(grid.Rows() - 1, 0); }

int Grid_Accessible::columnCount() const { return grid.Cols(); }

QString Grid_Accessible::rowDescription(int row) const {
  const QAccessibleInterface* header = Cell(row + 1, 0);
  return header ? header->text(QAccessible::Name) : QString();
}

QString Grid_Accessible::columnDescription(int column) const {
  const QAccessibleInterface* header = Cell(0, column);
  return header ? header->text(QAccessible::Name) : QString();
}

QList<QAccessibleInterface*> Grid_Accessible::selectedCells() const {
  QAccessibleInterface* current = Current();
  return current ? QList<QAccessibleInterface*>{current} : QList<QAccessibleInterface*>();
}

}  // namespace wrenbit
