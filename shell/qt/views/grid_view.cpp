#include "shell/qt/views/grid_view.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "shell/qt/drawing/colours.h"
#include "shell/qt/drawing/fitted_text.h"
#include "shell/qt/drawing/look.h"
#include "shell/qt/drawing/pixel_lines.h"

namespace wrenbit {
namespace {

constexpr int kRowHeight = 16;
constexpr int kPadding = 2;

}  // namespace

Grid_View::Grid_View(FlexGrid& shown, QWidget* holder) : QAbstractScrollArea(holder), grid(shown) {
  setFocusPolicy(Qt::StrongFocus);
  setAutoFillBackground(true);  // So that Qt knows that what lies behind it need not be painted.
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

int Grid_View::Rows_In_Sight() const { return std::max(viewport()->height() / kRowHeight - 1, 1); }

int Grid_View::First_Row() const { return 1 + verticalScrollBar()->value(); }

void Grid_View::Set_Scroll_Range() {
  verticalScrollBar()->setPageStep(Rows_In_Sight());
  verticalScrollBar()->setRange(0, std::max(grid.Rows() - 1 - Rows_In_Sight(), 0));
}

void Grid_View::Follow() {
  Set_Scroll_Range();
  address_width = fontMetrics().horizontalAdvance(Text_Of(grid.Cell(1, 0))) + 2 * kPadding;
  if (isHidden())
    row_in_sight = -1;  // A refill runs through all rows.
  else if (grid.Row() != row_in_sight)
    Show_Current_Row();
  viewport()->update();
}

QPalette::ColorGroup Grid_View::Colours(int row, int col) const {
  const bool written = row > 0 && col > 0 && !grid.Weak(row, col);
  return isEnabled() && (grid.OutOfDate().empty() || written) ? QPalette::Active : QPalette::Disabled;
}

void Grid_View::Show_Current_Row() {
  row_in_sight = grid.Row();
  const int line = row_in_sight - 1;
  QScrollBar* bar = verticalScrollBar();
  bar->setValue(std::clamp(bar->value(), line - Rows_In_Sight() + 1, std::max(line, 0)));
}

void Grid_View::Tell_Current_Cell() {
  if (!QAccessible::isActive() || !hasFocus() || grid.Row() < 1 || grid.Col() < 1) return;
  QAccessibleEvent event(this, QAccessible::Focus);
  event.setChild(Number_Of(grid.Row(), grid.Col()));
  QAccessible::updateAccessibility(&event);
}

int Grid_View::Column_Left(int col) const {
  if (col == 0) return 0;
  int left = std::max(Pixels(grid.ColWidth(0)), address_width);
  for (int c = 1; c < col; ++c) left += Pixels(grid.ColWidth(c));
  return left;
}

QRect Grid_View::Cell_Rect(int row, int col) const {
  if (row < 0 || row >= grid.Rows() || col < 0 || col >= grid.Cols()) return {};
  const int line = row == 0 ? 0 : row - First_Row() + 1;
  if (row > 0 && line < 1) return {};
  const int left = Column_Left(col);
  const int right = col == grid.Cols() - 1 ? viewport()->width() : Column_Left(col + 1);
  return QRect(left, line * kRowHeight, right - left, kRowHeight).intersected(viewport()->rect());
}

void Grid_View::Paint_Cell(QPainter& painter, const QRect& cell, int row, int col) const {
  const auto colour = [&](QPalette::ColorRole role) { return palette().color(Colours(row, col), role); };
  const bool fixed = row == 0 || col == 0;
  const bool current = !fixed && row == grid.Row() && col == grid.Col();
  painter.fillRect(cell, colour(fixed ? QPalette::Button : current ? QPalette::Highlight : QPalette::Base));
  const QColor lines = fixed ? Line_Colour(palette())
                             : Mixed(colour(QPalette::Base), palette().color(QPalette::WindowText), 18);
  Draw_Edge(painter, cell, Qt::BottomEdge, lines);
  Draw_Edge(painter, cell, Qt::RightEdge, lines);
  painter.setPen(fixed                 ? colour(QPalette::ButtonText)
                 : current             ? colour(QPalette::HighlightedText)
                 : grid.Weak(row, col) ? palette().color(QPalette::Disabled, QPalette::Text)
                                       : colour(QPalette::Text));
  const QRect room = cell.adjusted(kPadding, 0, -kPadding, 0);
  const QString text = Text_Of(grid.Cell(row, col));
  if (!fixed && grid.ColAlignment(col) == Alignment::Left)
    Draw_In_Columns(painter, room, text);
  else
    Draw_Fitted(painter, room, Qt::AlignVCenter | Side(grid.ColAlignment(col)), text);
  if (!current || !hasFocus()) return;
  painter.setPen(QPen(colour(QPalette::HighlightedText), 1, Qt::DotLine));
  painter.drawRect(cell.adjusted(0, 0, -2, -2));
}

void Grid_View::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  painter.setFont(font());
  painter.fillRect(event->rect(), palette().color(Colours(0, 0), QPalette::Base));
  const auto paint_if_asked = [&](int row, int col) {
    const QRect cell = Cell_Rect(row, col);
    if (event->region().intersects(cell)) Paint_Cell(painter, cell, row, col);
  };
  const int below = std::min(First_Row() + Rows_In_Sight() + 1, grid.Rows());
  for (int col = 0; col < grid.Cols(); ++col) {
    paint_if_asked(0, col);
    for (int row = First_Row(); row < below; ++row) paint_if_asked(row, col);
  }
}

void Grid_View::resizeEvent(QResizeEvent*) { Set_Scroll_Range(); }

// Whole rows below the header move, so that only what comes into sight is painted; a row that is cut off at
// the bottom closes there with a line of its own.
void Grid_View::scrollContentsBy(int, int rows) {
  const QRect whole(0, kRowHeight, viewport()->width(), Rows_In_Sight() * kRowHeight);
  viewport()->scroll(0, rows * kRowHeight, whole);
  viewport()->update(viewport()->rect().adjusted(0, whole.bottom() + 1, 0, 0));
}

Grid_Cell Grid_View::Cell_At(const QPoint& point) const {
  const int line = point.y() / kRowHeight;
  Grid_Cell cell{line == 0 ? 0 : First_Row() + line - 1, 0};
  while (cell.Col < grid.Cols() && !Cell_Rect(0, cell.Col).contains(point.x(), 0)) ++cell.Col;
  return cell;
}

void Grid_View::Make_Current(int row, int col) {
  if (row < 1 || row >= grid.Rows() || col < 1 || col >= grid.Cols()) return;
  grid.Set_Row(row);
  grid.Set_Col(col);
}

void Grid_View::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const auto [row, col] = Cell_At(event->position().toPoint());
  Make_Current(row, col);
}

void Grid_View::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && viewport()->rect().contains(event->position().toPoint()))
    Fire(grid.Click);
}

void Grid_View::Go_To_Cell(int row, int col) {
  setFocus();
  Make_Current(row, col);
  Show_Current_Row();
  Tell_Current_Cell();
}

void Grid_View::Click_Cell(int row, int col) {
  Go_To_Cell(row, col);
  Fire(grid.Click);
}

void Grid_View::Move_To(int row, int col) {
  Make_Current(std::clamp(row, 1, std::max(grid.Rows() - 1, 1)),
               std::clamp(col, 1, std::max(grid.Cols() - 1, 1)));
  Tell_Current_Cell();
}

void Grid_View::keyPressEvent(QKeyEvent* event) {
  const int row = grid.Row();
  const int col = grid.Col();
  const bool whole_grid = event->modifiers() & Qt::ControlModifier;
  switch (event->key()) {
    case Qt::Key_Left:
      return Move_To(row, col - 1);
    case Qt::Key_Right:
      return Move_To(row, col + 1);
    case Qt::Key_Up:
      return Move_To(row - 1, col);
    case Qt::Key_Down:
      return Move_To(row + 1, col);
    case Qt::Key_PageUp:
      return Move_To(row - Rows_In_Sight(), col);
    case Qt::Key_PageDown:
      return Move_To(row + Rows_In_Sight(), col);
    case Qt::Key_Home:
      return Move_To(whole_grid ? 1 : row, 1);
    case Qt::Key_End:
      return Move_To(whole_grid ? grid.Rows() - 1 : row, grid.Cols() - 1);
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      return Fire(grid.Click);
    default:
      event->ignore();
  }
}

void Grid_View::focusInEvent(QFocusEvent*) {
  viewport()->update();
  // Afterwards, since Qt says behind this that the grid has the focus.
  QMetaObject::invokeMethod(
      this, [this] { Tell_Current_Cell(); }, Qt::QueuedConnection);
}

void Grid_View::focusOutEvent(QFocusEvent*) { viewport()->update(); }

}  // namespace wrenbit
