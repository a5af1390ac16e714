// What assistive technology finds and can do. No screen reader need run.
#include "accessibility.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "form_view.h"
#include "grid_view.h"
#include "windows.h"

namespace wrenbit {
namespace {

QAccessibleInterface& Seen(QWidget* view) { return *QAccessible::queryAccessibleInterface(view); }

TEST(Accessibility, WhateverIsOnAWindowHasARoleAndAName) {
  int named = 0;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    auto* form_view = dynamic_cast<Form_View*>(window);
    if (!form_view) continue;
    for (const Form* form : {static_cast<Form*>(&frmMain), static_cast<Form*>(&frmCom),
                             static_cast<Form*>(&frmAbout), static_cast<Form*>(&frmSplash)}) {
      for (const Control* control : form->Controls()) {
        QWidget* view = form_view->View_Of(*control);
        if (!view) continue;
        const auto place = std::to_string(control->At.Left) + ',' + std::to_string(control->At.Top);
        EXPECT_NE(Seen(view).role(), QAccessible::NoRole) << place;
        EXPECT_NE(Seen(view).role(), QAccessible::Client) << place;
        const auto* label = dynamic_cast<const Label*>(control);
        if ((label && label->Caption().empty()) || dynamic_cast<const Line*>(control)) continue;
        const QString name = Seen(view).text(QAccessible::Name);
        EXPECT_FALSE(name.isEmpty() || name.contains('&')) << place;
        ++named;
      }
    }
  }
  EXPECT_GT(named, 50);
}

struct Sample : Form {
  Sample() : Form(10275, 7035) { List.AccessibleName = "Sizes"; }
  FlexGrid Grid{*this, {0, 1500, 10005, 4560}};
  ComboBox List{*this, {0, 0, 1500, 300}};
  Label Behind{*this, {0, 600, 900, 300}, "wait"};
  Label Above{*this, {0, 600, 1500, 300}, "done"};
};

class Accessible : public testing::Test {
 protected:
  Accessible() {
    form.Grid.Click = form.List.Click = [this] { ++events; };
    window = std::make_unique<Form_View>(form, Form_Kind::Main);
    form.Show();
    form.Grid.Set_Cols(18);
    form.Grid.Set_Rows(8193);
    form.Grid.Set_FormatString("Adr.|^0x00|^0x01");
    form.Grid.Set_Row(8000);
    form.Grid.Set_ColSel(17);
    form.Grid.Set_Clip("0x01F3F0\tAA\t55");
    for (const char* item : {"16", "32", "64"}) form.List.AddItem(item);
    events = 0;
  }
  QAccessibleInterface& Grid() { return Seen(window->View_Of(form.Grid)); }

  Sample form;
  int events = 0;
  std::unique_ptr<Form_View> window;
};

TEST_F(Accessible, ACellIsFoundByRowAndColumnAndPressedFromAfar) {
  QAccessibleTableInterface& table = *Grid().tableInterface();
  EXPECT_EQ(table.rowCount(), 8192);
  EXPECT_EQ(table.columnCount(), 18);
  EXPECT_EQ(table.cellAt(8192, 1), nullptr);
  QAccessibleInterface& cell = *table.cellAt(7999, 2);
  EXPECT_EQ(cell.text(QAccessible::Name), "0x01F3F0 0x01");
  EXPECT_EQ(cell.textInterface()->text(0, 2), "55");
  EXPECT_EQ(Grid().child(Grid().indexOfChild(&cell)), &cell);
  EXPECT_EQ(cell.tableCellInterface()->rowHeaderCells()[0]->text(QAccessible::Name), "0x01F3F0");
  EXPECT_EQ(table.columnDescription(2), "0x01");

  form.Grid.Set_Row(1);
  EXPECT_TRUE(cell.state().offscreen);
  cell.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(events, 1);
  EXPECT_EQ(form.Grid.Row(), 8000);
  EXPECT_EQ(form.Grid.Col(), 2);
  EXPECT_TRUE(cell.state().selected);
  EXPECT_FALSE(cell.state().offscreen);
  EXPECT_EQ(Grid().childAt(cell.rect().center().x(), cell.rect().center().y()), &cell);

  Grid().child(5)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(events, 2);
  EXPECT_EQ(form.Grid.Row(), 8000);
  form.Grid.Set_Enabled(false);
  cell.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(events, 2);

  const QAccessible::Id id = QAccessible::uniqueId(&cell);
  window.reset();
  EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
}

TEST_F(Accessible, TheCurrentCellHasTheFocusWhileTheGridHasIt) {
  QWidget* view = window->View_Of(form.Grid);
  EXPECT_EQ(Grid().focusChild(), nullptr);
  window->activateWindow();
  QCoreApplication::processEvents();
  Grid().child(8000 * 18 + 1)->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
  QTest::keyClick(view, Qt::Key_Right);
  ASSERT_NE(Grid().focusChild(), nullptr);
  EXPECT_EQ(Grid().focusChild()->text(QAccessible::Name), "0x01F3F0 0x01");
  EXPECT_TRUE(Grid().focusChild()->state().focused);
  EXPECT_EQ(events, 0);
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) QTest::keyClick(view, key);
  EXPECT_EQ(events, 3);
}

TEST_F(Accessible, AnEntryIsPickedWithoutTheListComingDown) {
  QAccessibleInterface& list = Seen(window->View_Of(form.List));
  EXPECT_EQ(list.text(QAccessible::Name), "Sizes");
  QAccessibleInterface& entries = *list.child(0);
  ASSERT_EQ(entries.childCount(), 3);
  for (const int picked : {2, 2, 0}) {
    events = 0;
    entries.child(picked)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCoreApplication::processEvents();
    EXPECT_EQ(events, 1);
    EXPECT_EQ(form.List.ListIndex(), picked);
    EXPECT_EQ(list.textInterface()->text(0, 2), entries.child(picked)->text(QAccessible::Name));
  }
  form.List.Clear();
  EXPECT_EQ(entries.childCount(), 0);
}

TEST_F(Accessible, ALabelBehindAnotherIsNotReadOut) {
  EXPECT_TRUE(Seen(window->View_Of(form.Behind)).state().invisible);
  form.Above.Set_Visible(false);
  EXPECT_FALSE(Seen(window->View_Of(form.Behind)).state().invisible);
}

}  // namespace
}  // namespace wrenbit
