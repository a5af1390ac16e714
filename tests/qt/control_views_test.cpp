// The views of the controls on a form made for the purpose, used as a person would.
#include "control_views.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <memory>

#include "form_view.h"
#include "lists_and_boxes.h"

namespace wrenbit {
namespace {

struct Sample : Form {
  Sample() : Form(6000, 3000, "Sample") {}
  Frame Group{*this, {0, 0, 3000, 3000}, "Group"};
  CommandButton Wired{Group, {150, 300, 900, 600}, "Wired"};
  CommandButton Unwired{Group, {1200, 300, 900, 600}, "Unwired"};
  CheckBox Tick{Group, {150, 1200, 900, 300}, "Tick"};
  CheckBox Fixed_Tick{Group, {1200, 1200, 900, 300}, "Fixed"};
  TextBox Box{*this, {3150, 300, 900, 240}, 3, {}};
  TextBox Fixed_Box{*this, {4200, 300, 900, 240}, 3, {}};
  ComboBox List{*this, {3150, 900, 900, 300}};
  Menu Drop{*this, "Drop(&D)"};
  Menu Entry{Drop, "Entry"};
  Menu Idle_Entry{Drop, "Idle"};
};

class Views : public testing::Test {
 protected:
  Views() {
    form.Wired.Click = form.Tick.Click = form.List.Click = form.Box.Change =
        form.Entry.Click = [this] { ++events; };
    window = std::make_unique<Form_View>(form, Form_Kind::Main);
    form.Show();
    for (const char* item : {"one", "two", "three"}) form.List.AddItem(item);
  }
  // Events after a click on the control.
  int Clicked(const Control& control) {
    events = 0;
    QWidget* view = window->View_Of(control);
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, view->mapTo(window.get(), QPoint(8, 8)));
    return events;
  }
  template <class Widget>
  Widget& View(const Control& control) {
    return dynamic_cast<Widget&>(*window->View_Of(control));
  }

  Sample form;
  int events = 0;
  std::unique_ptr<Form_View> window;
};

TEST_F(Views, OnlyWhatHasAHandlerAndIsReachableTakesClicks) {
  EXPECT_EQ(Clicked(form.Wired), 1);
  EXPECT_EQ(Clicked(form.Tick), 1);
  EXPECT_EQ(form.Tick.Value(), 1);
  EXPECT_FALSE(window->View_Of(form.Unwired)->isEnabled());
  Clicked(form.Fixed_Tick);
  EXPECT_EQ(form.Fixed_Tick.Value(), 0);
  form.Group.Set_Enabled(false);
  EXPECT_EQ(Clicked(form.Wired), 0);
  EXPECT_EQ(Clicked(form.Tick), 0);
  form.Group.Set_Enabled(true);
  form.Wired.Set_Enabled(false);
  EXPECT_EQ(Clicked(form.Wired), 0);

  const auto entries = View<QMenu>(form.Drop).actions();
  EXPECT_TRUE(entries[0]->isEnabled());
  EXPECT_FALSE(entries[1]->isEnabled());
  EXPECT_TRUE(View<QLineEdit>(form.Fixed_Box).isReadOnly());
}

TEST_F(Views, TypedTextReplacesWhatCodeSelected) {
  form.Box.Set_Text("FF");
  ASSERT_TRUE(form.Box.Set_Focus());
  form.Box.Set_SelLength(10);
  events = 0;
  auto& edit = View<QLineEdit>(form.Box);
  EXPECT_EQ(edit.selectedText(), "FF");
  QTest::keyClicks(&edit, "1ABC");
  EXPECT_EQ(form.Box.Text(), "1AB");
  EXPECT_EQ(edit.text(), "1AB");
  EXPECT_EQ(form.Box.SelLength(), 0);
  EXPECT_EQ(events, 3);
}

TEST_F(Views, APickFiresAlsoForTheEntryThatIsSelected) {
  auto& list = View<QComboBox>(form.List);
  form.List.Set_ListIndex(1);
  EXPECT_EQ(list.currentText(), "two");
  events = 0;
  list.showPopup();
  QTest::keyClick(static_cast<QWidget*>(list.view()), Qt::Key_Return);
  EXPECT_EQ(events, 1);
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(form.List.ListIndex(), 2);
  form.List.Clear();
  EXPECT_EQ(list.count(), 0);
}

TEST_F(Views, TheWindowStandsWhereTheFormSaysAndTheFormKnowsWhereItWasMoved) {
  form.Move(1000.5, -600);
  EXPECT_EQ(window->pos(), QPoint(67, -40));
  EXPECT_EQ(form.Left(), 1000.5);
  window->move(20, 30);
  QCoreApplication::processEvents();
  EXPECT_EQ(form.Left(), 300);
  EXPECT_EQ(form.Top(), 450);
}

TEST_F(Views, TheCloseBoxLeavesTheDecisionToTheForm) {
  int asked = 0;
  form.Close_Asked = [&] { ++asked; };
  window->close();
  EXPECT_EQ(asked, 1);
  EXPECT_TRUE(window->isVisible());
  form.Close_Asked = nullptr;
  window->close();
  EXPECT_FALSE(window->isVisible());
}

TEST_F(Views, AModalWindowComesBackWhenItHasGone) {
  Sample box;
  Form_View box_window(box, Form_Kind::Dialog, window.get());
  bool seen = false;
  QTimer::singleShot(0, [&] {
    seen = QApplication::activeModalWidget() == &box_window;
    box_window.close();
  });
  box.Show_Modal();
  EXPECT_TRUE(seen);
  EXPECT_FALSE(box.Visible());
}

}  // namespace
}  // namespace wrenbit
