#include "shell/qt/views/grid_view.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <functional>
#include <memory>
#include <string>
#include <tuple>

#include "shell/controls/form.h"
#include "shell/qt/views/form_view.h"

namespace wrenbit {
namespace {

constexpr int kRows = 100;  // With the header.

class Grid_View_Test : public testing::Test {
 protected:
  Grid_View_Test() {
    form.Show();
    grid.Set_Cols(18);
    grid.Set_Rows(kRows);
    for (int col = 0; col < 18; ++col) grid.Set_ColWidth(col, col == 0 ? 700 : col == 17 ? 2000 : 450);
    grid.Set_Row(1);
    grid.Set_Col(1);
    grid.Click = [this] { ++clicks; };
  }

  Form form{10275, 7035};
  FlexGrid grid{form, {135, 1800, 10005, 4560}, {.Face = Typeface::FixedPitch}};
  std::unique_ptr<Form_View> window = std::make_unique<Form_View>(form, Form_Kind::Dialog);
  Grid_View& view = dynamic_cast<Grid_View&>(*window->View_Of(grid));
  int clicks = 0;
};

TEST_F(Grid_View_Test, ClicksAndKeysMoveTheCurrentCellInSightButNotIntoTheHeaders) {
  const auto click = [this](int row, int col) {
    return [=, this] {
      QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.Cell_Rect(row, col).center());
    };
  };
  const auto key = [this](Qt::Key pressed, Qt::KeyboardModifiers with = {}) {
    return [=, this] { QTest::keyClick(&view, pressed, with); };
  };
  const int last = kRows - 1, page = view.verticalScrollBar()->pageStep();
  const std::tuple<std::function<void()>, int, int, int> cases[] = {
      {click(2, 16), 2, 16, 1},
      {click(0, 5), 2, 16, 1},
      {click(7, 0), 2, 16, 1},
      {key(Qt::Key_Home), 2, 1, 0},
      {key(Qt::Key_Left), 2, 1, 0},
      {key(Qt::Key_PageUp), 1, 1, 0},
      {key(Qt::Key_Right), 1, 2, 0},
      {key(Qt::Key_Down), 2, 2, 0},
      {key(Qt::Key_Up), 1, 2, 0},
      {key(Qt::Key_End), 1, 17, 0},
      {key(Qt::Key_PageDown), 1 + page, 17, 0},
      {key(Qt::Key_End, Qt::ControlModifier), last, 17, 0},
      {key(Qt::Key_PageDown), last, 17, 0},
      {key(Qt::Key_PageUp), last - page, 17, 0},
      {key(Qt::Key_Home, Qt::ControlModifier), 1, 1, 0},
      {key(Qt::Key_Return), 1, 1, 1},
  };
  for (const auto& [act, row, col, clicked] : cases) {
    SCOPED_TRACE(testing::Message() << row << ',' << col);
    clicks = 0;
    act();
    EXPECT_EQ(grid.Row(), row);
    EXPECT_EQ(grid.Col(), col);
    EXPECT_EQ(clicks, clicked);
    EXPECT_EQ(view.Cell_Rect(row, col).height(), view.Cell_Rect(0, 1).height());
  }
}

TEST_F(Grid_View_Test, AGridThatIsNotTheImageIsGreyAndSaysWhy) {
  const QImage good = view.grab().toImage();
  grid.Set_OutOfDate("前の内容です。");
  grid.Set_WeakFrom(1);
  const QImage stale = view.grab().toImage();
  EXPECT_NE(stale, good);
  grid.Set_Text("");
  EXPECT_NE(view.grab().toImage(), stale) << "what is written since is live";
  EXPECT_EQ(view.toolTip(), "前の内容です。");
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&view)->text(QAccessible::Description), view.toolTip());
  grid.Set_OutOfDate("");
  EXPECT_EQ(view.grab().toImage(), good);
}

// Scrolling moves what is on the screen and paints only the rest.
TEST_F(Grid_View_Test, AScrolledGridLooksLikeAPaintedOne) {
  for (int row = 1; row < kRows; ++row) {
    grid.Set_Row(row);
    grid.Set_Text(std::to_string(row));
  }
  const auto on_screen = [this] {
    QCoreApplication::processEvents();
    return window->screen()->grabWindow(window->winId()).toImage();
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

TEST_F(Grid_View_Test, ARowThatCodeMakesCurrentComesIntoSightAlsoAfterARefillOfTheHiddenGrid) {
  for (const int row : {kRows - 1, 50, 1}) {
    grid.Set_Row(row);
    EXPECT_FALSE(view.Cell_Rect(row, 1).isEmpty()) << row;
  }
  grid.Set_Visible(false);
  grid.Set_Row(kRows - 1);
  grid.Set_Visible(true);
  EXPECT_FALSE(view.Cell_Rect(kRows - 1, 1).isEmpty());
  grid.Set_Rows(3);
  EXPECT_EQ(view.verticalScrollBar()->maximum(), 0);
}

TEST_F(Grid_View_Test, AssistiveTechnologyFindsACellByRowAndColumnAndPressesItFromAfar) {
  grid.Set_FormatString("Adr.|^0x00|^0x01");
  grid.Set_Row(80);
  grid.Set_Col(0);
  grid.Set_ColSel(17);
  grid.Set_Clip("0x4F0\tAA\t55");
  QAccessibleInterface& seen = *QAccessible::queryAccessibleInterface(&view);
  QAccessibleTableInterface& table = *seen.tableInterface();
  EXPECT_EQ(table.rowCount(), kRows - 1);
  EXPECT_EQ(table.cellAt(kRows - 1, 1), nullptr);
  QAccessibleInterface& cell = *table.cellAt(79, 2);
  EXPECT_EQ(cell.tableCellInterface()->rowIndex(), 79);
  EXPECT_EQ(cell.text(QAccessible::Name), "0x4F0 0x01");
  EXPECT_EQ(cell.textInterface()->text(0, 2), "55");
  EXPECT_EQ(seen.child(seen.indexOfChild(&cell)), &cell);

  grid.Set_Row(1);
  QAccessibleActionInterface& actions = *cell.actionInterface();
  const QString press = QAccessibleActionInterface::pressAction();
  EXPECT_TRUE(cell.state().offscreen);
  EXPECT_EQ(seen.focusChild(), nullptr);
  window->activateWindow();
  QCoreApplication::processEvents();
  actions.doAction(QAccessibleActionInterface::setFocusAction());
  EXPECT_EQ(seen.focusChild(), &cell);
  EXPECT_TRUE(cell.state().focused);
  EXPECT_EQ(clicks, 0);

  grid.Set_Row(1);
  actions.doAction(press);
  EXPECT_EQ(clicks, 1);
  EXPECT_FALSE(cell.state().offscreen);
  EXPECT_EQ(seen.childAt(cell.rect().center().x(), cell.rect().center().y()), &cell);
  seen.child(5)->actionInterface()->doAction(press);
  EXPECT_EQ(clicks, 2) << "a header";
  EXPECT_TRUE(cell.state().selected);
  grid.Set_Enabled(false);
  actions.doAction(press);
  EXPECT_EQ(clicks, 2);

  const QAccessible::Id id = QAccessible::uniqueId(&cell);
  window.reset();
  EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
}

}  // namespace
}  // namespace wrenbit
