// The views of the controls on a form made for the purpose, used as a person would.
#include "control_views.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <memory>

#include "form_view.h"
#include "lists_and_boxes.h"
#include "platform.h"

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

// "G" stands for what the filter drops, "a" for what it changes.
TEST_F(Views, EveryCharacterPassesTheFilterUnlessItIsPasted) {
  form.Box.KeyPress = [](std::int16_t& key) { key = key == 'G' || key == '\r' ? 0 : key == 'a' ? 'A' : key; };
  auto& edit = View<QLineEdit>(form.Box);
  const auto commit = [&](const char* text) {
    QInputMethodEvent event;
    event.setCommitString(QString::fromUtf8(text));
    QCoreApplication::sendEvent(&edit, &event);
  };
  const auto press = [&](int key, Qt::KeyboardModifiers modifiers = {}) {
    return [=, &edit] { QTest::keyClick(&edit, static_cast<Qt::Key>(key), modifiers); };
  };
  const struct {
    const char* Name;
    std::function<void()> Do;
    const char* Text;
    int Events;
  } cases[] = {
      {"typed", [&] { QTest::keyClicks(&edit, "aGb"); }, "xAb", 2},
      {"Enter", press(Qt::Key_Return), "x", 0},
      {"Backspace", press(Qt::Key_Backspace), "", 1},
      {"Delete at the end", press(Qt::Key_Delete), "x", 0},
      {"shortcut", press(Qt::Key_Backspace, Qt::ControlModifier), "", 1},
      {"input method", [&] { commit("aGｱ"); }, "xAｱ", 1},
      {"more than fits", [&] { commit("bcd"); }, "xbc", 1},
      {"pasted", [&] { edit.insert("aG"); }, "xaG", 1},
      {"written by a screen reader", [&] { edit.setText("aG"); }, "aG", 1},
      {"typed over, the same again",
       [&] {
         edit.selectAll();
         QTest::keyClicks(&edit, "x");
       },
       "x", 1},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.Name);
    form.Box.Set_Text("x");
    edit.setFocus();
    edit.setCursorPosition(1);
    events = 0;
    c.Do();
    EXPECT_EQ(form.Box.Text(), c.Text);
    EXPECT_EQ(edit.text(), c.Text);
    EXPECT_EQ(events, c.Events);
  }
  // A character that needs two codes is neither a question mark nor two characters.
  for (const char* before : {"x", "xy"}) {
    form.Box.Set_Text(before);
    edit.end(false);
    commit("😀");
    EXPECT_EQ(form.Box.Text(), std::string(before) + "\uFFFD");
  }
}

TEST_F(Views, AssistiveTechnologyGetsNoFurtherThanTheUser) {
  const auto events_of_all = [&] {
    events = 0;
    auto& edit = View<QLineEdit>(form.Box);
    edit.setText(edit.text() == "a" ? "b" : "a");
    View<QCheckBox>(form.Tick).toggle();
    View<QPushButton>(form.Wired).click();
    View<QMenu>(form.Drop).actions()[0]->trigger();
    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&View<QComboBox>(form.List));
    list->child(0)->child(1)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCoreApplication::processEvents();
    EXPECT_EQ(edit.text().toStdString(), form.Box.Text());
    EXPECT_EQ(View<QCheckBox>(form.Tick).isChecked(), form.Tick.Value() == 1);
    return events;
  };
  EXPECT_EQ(events_of_all(), 5);
  Sample question;
  Form_View box(question, Form_Kind::Dialog, window.get());
  question.Show();
  EXPECT_EQ(events_of_all(), 0) << "behind a modal window";
  question.Hide();
  for (Control* control : form.Controls()) control->Set_Enabled(false);
  EXPECT_EQ(events_of_all(), 0) << "locked";
}

TEST_F(Views, TheClickThatEntersABoxSelectsItsText) {
  form.Box.Set_Text("abc");
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  form.Wired.Set_Focus();
  Clicked(form.Box);
  EXPECT_EQ(View<QLineEdit>(form.Box).selectedText(), "abc");
  Clicked(form.Box);
  EXPECT_EQ(View<QLineEdit>(form.Box).selectedText(), "") << "the next one sets the cursor";
}

TEST_F(Views, EnterAndEscapePressTheButtonsMadeForThem) {
  struct Question : Form {
    Question() : Form(3000, 3000) { Yes.Default = No.Cancel = true; }
    TextBox Box{*this, {0, 0, 900, 240}, 3, {}};
    CommandButton Yes{*this, {0, 900, 900, 600}, "Yes"};
    CommandButton No{*this, {900, 900, 900, 600}, "No"};
  } question;
  std::string pressed;
  question.Yes.Click = [&] { pressed += 'Y'; };
  question.No.Click = [&] { pressed += 'N'; };
  Form_View box(question, Form_Kind::Dialog, window.get());
  question.Show();
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Enter}) {
    box.View_Of(question.Box)->setFocus();
    QTest::keyClick(box.View_Of(question.Box), key);
  }
  box.View_Of(question.No)->setFocus();
  QTest::keyClick(box.View_Of(question.No), Qt::Key_Return);
  EXPECT_EQ(pressed, "YNYN");
  question.Yes.Set_Enabled(false);
  QTest::keyClick(box.View_Of(question.Box), Qt::Key_Return);
  EXPECT_EQ(pressed, "YNYN") << "a disabled one stays unpressed";
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

TEST_F(Views, AListAsksForItsTipsWhenTheyAreToBeShown) {
  std::string device = "none";
  form.List.Tip = [&](int number) { return std::to_string(number) + ": " + device; };
  auto& list = View<QComboBox>(form.List);
  form.List.Set_ListIndex(1);
  device = "plugged in";
  QHelpEvent hover(QEvent::ToolTip, {}, {});
  QCoreApplication::sendEvent(&list, &hover);
  EXPECT_EQ(list.toolTip(), "1: plugged in");
  list.showPopup();
  EXPECT_EQ(list.itemData(2, Qt::ToolTipRole), "2: plugged in");
  list.hidePopup();
}

TEST_F(Views, ARepaintShowsWhatHasJustChanged) {
  struct : QObject {
    int Times = 0;
    bool eventFilter(QObject*, QEvent* event) override {
      if (event->type() == QEvent::Paint) ++Times;
      return false;
    }
  } painted;
  ThePlatform->DoEvents();
  window->View_Of(form.Wired)->installEventFilter(&painted);
  form.Wired.Set_Caption("Changed");
  ThePlatform->Repaint();
  EXPECT_GT(painted.Times, 0);
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
