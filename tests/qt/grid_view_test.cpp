#include "grid_view.h"

#include <gtest/gtest.h>

#include <QScreen>
#include <QScrollBar>
#include <QTest>

#include "form.h"
#include "form_view.h"

namespace wrenbit {
namespace {

constexpr int kRows = 100;  // With the header.

class GridView : public testing::Test {
 protected:
  GridView() {
    form.Show();
    grid.Set_Cols(18);
    grid.Set_Rows(kRows);
    for (int col = 0; col < 18; ++col) grid.Set_ColWidth(col, col == 0 ? 700 : col == 17 ? 2000 : 450);
    grid.Set_Row(1);
    grid.Set_Col(1);
    grid.Click = [this] { ++clicks; };
  }
  void Click_At(int row, int col) {
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.Cell_Rect(row, col).center());
  }

  Form form{10275, 7035};
  FlexGrid grid{form, {135, 1800, 10005, 4560}, {.Face = Typeface::FixedPitch}};
  Form_View window{form, Form_Kind::Dialog};
  Grid_View& view = dynamic_cast<Grid_View&>(*window.View_Of(grid));
  int clicks = 0;
};

TEST_F(GridView, AClickMovesTheCurrentCellUnlessItIsAFixedOne) {
  struct {
    int row, col, then_row, then_col;
  } const cases[] = {{2, 16, 2, 16}, {3, 17, 3, 17}, {0, 5, 3, 17}, {7, 0, 3, 17}, {1, 1, 1, 1}};
  for (const auto& c : cases) {
    clicks = 0;
    Click_At(c.row, c.col);
    EXPECT_EQ(clicks, 1) << c.row << ',' << c.col;
    EXPECT_EQ(grid.Row(), c.then_row) << c.row << ',' << c.col;
    EXPECT_EQ(grid.Col(), c.then_col) << c.row << ',' << c.col;
  }
}

// A refill runs through all rows of the hidden grid.
TEST_F(GridView, ScrollsToTheCurrentRowWhenItComesBackAndNotBefore) {
  grid.Set_Visible(false);
  grid.Set_Row(kRows - 1);
  EXPECT_EQ(view.verticalScrollBar()->value(), 0);
  grid.Set_Visible(true);
  EXPECT_FALSE(view.Cell_Rect(kRows - 1, 1).isEmpty());
}

// Scrolling moves what is on the screen and paints only the rest.
TEST_F(GridView, AScrolledGridLooksLikeAPaintedOne) {
  for (int row = 1; row < kRows; ++row) {
    grid.Set_Row(row);
    for (int col = 0; col < 18; ++col) {
      grid.Set_Col(col);
      grid.Set_Text(std::to_string(row * 18 + col));
    }
  }
  const auto on_screen = [this] {
    QCoreApplication::processEvents();
    return window.screen()->grabWindow(window.winId()).toImage();
  };
  QImage before;
  for (const int line : {40, 41, 40, 47, 30, 0, 99, 5}) {
    view.verticalScrollBar()->setValue(line);
    const QImage scrolled = on_screen();
    EXPECT_NE(scrolled, before) << line;
    view.viewport()->update();
    EXPECT_EQ(scrolled, on_screen()) << line;
    before = scrolled;
  }
}

TEST_F(GridView, KeysMoveTheCurrentCellInSightAndClickNothing) {
  const int page = view.verticalScrollBar()->pageStep();
  struct {
    Qt::Key key;
    Qt::KeyboardModifier with;
    int row, col;
  } const cases[] = {{Qt::Key_Left, Qt::NoModifier, 1, 1},
                     {Qt::Key_Up, Qt::NoModifier, 1, 1},
                     {Qt::Key_Right, Qt::NoModifier, 1, 2},
                     {Qt::Key_Down, Qt::NoModifier, 2, 2},
                     {Qt::Key_End, Qt::NoModifier, 2, 17},
                     {Qt::Key_Right, Qt::NoModifier, 2, 17},
                     {Qt::Key_PageDown, Qt::NoModifier, 2 + page, 17},
                     {Qt::Key_End, Qt::ControlModifier, kRows - 1, 17},
                     {Qt::Key_Down, Qt::NoModifier, kRows - 1, 17},
                     {Qt::Key_PageUp, Qt::NoModifier, kRows - 1 - page, 17},
                     {Qt::Key_Home, Qt::NoModifier, kRows - 1 - page, 1},
                     {Qt::Key_Home, Qt::ControlModifier, 1, 1}};
  for (const auto& c : cases) {
    QTest::keyClick(&view, c.key, c.with);
    EXPECT_EQ(grid.Row(), c.row) << c.key;
    EXPECT_EQ(grid.Col(), c.col) << c.key;
    EXPECT_EQ(view.Cell_Rect(c.row, c.col).height(), view.Cell_Rect(0, 1).height()) << c.key;
  }
  EXPECT_EQ(clicks, 0);
}

TEST_F(GridView, ACellThatCodeMakesCurrentComesIntoSight) {
  for (const int row : {kRows - 1, 50, 1}) {
    grid.Set_Row(row);
    EXPECT_FALSE(view.Cell_Rect(row, 1).isEmpty()) << row;
  }
  grid.Set_Row(kRows - 1);
  grid.Set_Rows(3);
  EXPECT_EQ(view.verticalScrollBar()->maximum(), 0);
  EXPECT_FALSE(view.Cell_Rect(1, 1).isEmpty());
}

}  // namespace
}  // namespace wrenbit
