// The views of the controls on a form made for the purpose, used as a person would.
#include "shell/qt/views/control_views.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <tuple>
#include <utility>

#include "core/state/platform.h"
#include "shell/controls/common_dialog.h"
#include "shell/controls/lists_and_boxes.h"
#include "shell/controls/status_bar.h"
#include "shell/qt/seams/file_dialog.h"
#include "shell/qt/views/form_view.h"
#include "tests/support/temporary_folder.h"

namespace wrenbit {
namespace {

struct Sample : Form {
  Sample() : Form(6000, 3000, "Sample") {}
  Frame Group{*this, {0, 0, 3000, 3000}, "Group"};
  CommandButton Wired{Group, {150, 300, 900, 600}, "Wired"};
  CommandButton Unwired{Group, {1200, 300, 900, 600}, "Unwired"};
  CheckBox Tick{Group, {150, 1200, 900, 300}, "Tick"};
  CheckBox FixedTick{Group, {1200, 1200, 900, 300}, "Fixed"};
  CheckBox Bit{*this, {5400, 300, 195, 195}, ""};
  TextBox Box{*this, {3150, 300, 900, 240}, 3, {}};
  TextBox FixedBox{*this, {4200, 300, 900, 240}, 3, {}};
  ComboBox List{*this, {3150, 900, 900, 300}};
  Label Behind{*this, {3150, 1500, 900, 300}, "wait"};
  Label Above{*this, {3150, 1500, 1500, 300}, "done"};
  StatusBar Bar{*this, {0, 2700, 6000, 300}, {1500, 1500, 1500, 1500}};
  Menu Drop{*this, "Drop(&D)"};
  Menu Entry{Drop, "Entry"};
  Menu IdleEntry{Drop, "Idle"};
};

class Views : public testing::Test {
 protected:
  Views() {
    form.Group.Click = form.Wired.Click = form.Tick.Click = form.List.Click = form.Box.Change =
        form.Entry.Click = [this] { ++events; };
    window = std::make_unique<Form_View>(form, Form_Kind::Main);
    form.Show();
    for (const char* item : {"one", "two", "three"}) form.List.AddItem(item);
  }
  // Events after a click on the control.
  int Clicked(const Control& control) {
    events = 0;
    QWidget& view = View<QWidget>(control);
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, view.mapTo(window.get(), QPoint(8, 8)));
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
  EXPECT_EQ(Clicked(form.Group), 1);
  EXPECT_EQ(Clicked(form.Wired), 1);
  EXPECT_EQ(Clicked(form.Tick), 1);
  Clicked(form.FixedTick);
  EXPECT_EQ(form.Tick.Value() - form.FixedTick.Value(), 1);
  EXPECT_FALSE(View<QPushButton>(form.Unwired).isEnabled());
  EXPECT_FALSE(View<QMenu>(form.Drop).actions()[1]->isEnabled());
  EXPECT_TRUE(View<QLineEdit>(form.FixedBox).isReadOnly());
  form.Group.Set_Enabled(false);
  EXPECT_EQ(Clicked(form.Wired) + Clicked(form.Tick), 0);
}

// "G" stands for what the filter drops, "a" for what it changes.
TEST_F(Views, EveryCharacterPassesTheFilterUnlessItIsPasted) {
  form.Box.KeyPress = [](std::int16_t& key) { key = key == 'G' || key == '\r' ? 0 : key == 'a' ? 'A' : key; };
  auto& edit = View<QLineEdit>(form.Box);
  const auto commit = [&](const char* text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(&edit, &event);
  };
  const std::tuple<const char*, std::function<void()>, const char*, int> cases[] = {
      {"typed", [&] { QTest::keyClicks(&edit, "aGb"); }, "xAb", 2},
      {"typed over what code selected, the same again",
       [&] { form.Box.Set_SelLength(10), QTest::keyClicks(&edit, "x"); }, "x", 1},
      {"Enter", [&] { QTest::keyClick(&edit, Qt::Key_Return); }, "x", 0},
      {"Backspace", [&] { QTest::keyClick(&edit, Qt::Key_Backspace); }, "", 1},
      {"Delete at the end", [&] { QTest::keyClick(&edit, Qt::Key_Delete); }, "x", 0},
      {"input method", [&] { commit("aGｱ"); }, "xAｱ", 1},
      {"more than fits", [&] { commit("bcd"); }, "xbc", 1},
      {"pasted", [&] { edit.insert("aG"); }, "xaG", 1},
      {"written by a screen reader", [&] { edit.setText("aG"); }, "aG", 1},
      // Neither a question mark nor two characters.
      {"a character of two codes", [&] { commit("😀"); }, "x\uFFFD", 1},
      {"half of it fits", [&] { commit("y😀"); }, "xy\uFFFD", 1},
  };
  for (const auto& [name, act, text, count] : cases) {
    SCOPED_TRACE(name);
    form.Box.Set_Text("x");
    edit.setCursorPosition(1);
    events = 0;
    act();
    EXPECT_EQ(form.Box.Text(), text);
    EXPECT_EQ(edit.text(), text);
    EXPECT_EQ(events, count);
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
    for (const int entry : {2, 1})
      list->child(0)->child(entry)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCoreApplication::processEvents();
    EXPECT_EQ(list->textInterface()->text(0, 3), QString::fromStdString(form.List.Text()));
    EXPECT_EQ(edit.text().toStdString(), form.Box.Text());
    EXPECT_EQ(View<QCheckBox>(form.Tick).isChecked(), form.Tick.Value() == 1);
    return events;
  };
  EXPECT_EQ(events_of_all(), 6);
  EXPECT_EQ(form.List.Text(), "two");
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

TEST_F(Views, EnterAndEscapePressTheButtonsMadeForThemUnlessAnotherHasTheFocus) {
  std::string pressed;
  form.Wired.Default = form.Unwired.Cancel = true;
  form.Wired.Click = [&] { pressed += 'Y'; };
  form.Unwired.Click = [&] { pressed += 'N'; };
  form.Unwired.Set_Caption("Wired too");  // Shows that it has a handler.
  QWidget* box = window->View_Of(form.Box);
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Enter}) QTest::keyClick(box, key);
  QTest::keyClick(window->View_Of(form.Unwired), Qt::Key_Return);
  EXPECT_EQ(pressed, "YNYN");
  form.Wired.Set_Enabled(false);
  QTest::keyClick(box, Qt::Key_Return);
  EXPECT_EQ(pressed, "YNYN") << "a disabled one stays unpressed";
}

TEST_F(Views, AListFiresAlsoForTheEntryThatIsSelectedAndAsksForItsTipsWhenTheyAreToBeShown) {
  std::string device;
  form.List.Tip = [&](int number) { return std::to_string(number) + ": " + device; };
  auto& list = View<QComboBox>(form.List);
  form.List.Set_ListIndex(1);
  device = "plugged in";
  QHelpEvent hover(QEvent::ToolTip, {}, {});
  QCoreApplication::sendEvent(&list, &hover);
  EXPECT_EQ(list.toolTip(), "1: plugged in");
  events = 0;
  list.showPopup();
  EXPECT_EQ(list.itemData(2, Qt::ToolTipRole), "2: plugged in");
  QTest::keyClick(static_cast<QWidget*>(list.view()), Qt::Key_Return);
  EXPECT_EQ(events, 1);
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(form.List.ListIndex(), 2);
  while (form.List.ListCount() < 40) form.List.AddItem("more");
  list.showPopup();
  EXPECT_EQ(list.view()->viewport()->height() / list.view()->sizeHintForRow(0), 15);
  list.hidePopup();
  form.List.Clear();
  EXPECT_EQ(list.count(), 0);
}

TEST_F(Views, ATurnOfTheWheelNeitherPicksNorTakesTheKeyboard) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  form.Box.Set_Focus();
  auto& list = View<QComboBox>(form.List);
  QWheelEvent turn({5, 5}, list.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
  QSpontaneKeyEvent::setSpontaneous(&turn);  // Qt gives the focus for the user's own turns only.
  QCoreApplication::instance()->notify(&list, &turn);
  EXPECT_TRUE(window->View_Of(form.Box)->hasFocus());
  EXPECT_EQ(form.List.ListIndex(), -1);
}

TEST_F(Views, ANameWithoutAnExtensionOpensTheFileOfThatNameElseTheOneWithTheDefaultExtension) {
  const Temporary_Folder folder;
  CommonDialog dialog;
  dialog.InitDir = folder.Path();
  dialog.DefaultExt = "HEX";
  Offer_File_Dialogs(dialog, window.get());
  for (const char* file : {"plain.HEX", "small.hex", "both", "both.HEX"}) Put_Content(folder / file, "");
  for (const auto& [typed, title] :
       {std::pair{"plain", "plain.HEX"}, {"small", "small.hex"}, {"both", "both"}}) {
    QTimer::singleShot(0, [name = typed] {
      auto& box = dynamic_cast<QDialog&>(*QApplication::activeModalWidget());
      box.findChild<QLineEdit*>("fileNameEdit")->setText(name);
      box.accept();
    });
    dialog.FileName = "*.HEX";
    EXPECT_TRUE(dialog.ShowOpen());
    EXPECT_EQ(dialog.FileTitle, title);
  }
}

TEST_F(Views, ARepaintShowsWhatHasJustChanged) {
  const auto on_screen = [this] { return window->screen()->grabWindow(window->winId()).toImage(); };
  ThePlatform->DoEvents();
  const QImage before = on_screen();
  form.Wired.Set_Caption("Changed");
  ThePlatform->Repaint();
  EXPECT_NE(on_screen(), before);
}

TEST_F(Views, TheWindowStandsWhereTheFormSaysAndTheFormKnowsWhereItWasMoved) {
  form.Move(1000.5, -600);
  QCoreApplication::processEvents();
  EXPECT_EQ(window->windowHandle()->framePosition(), QPoint(67, -40));
  EXPECT_EQ(form.Left(), 1000.5) << "a window that nobody has moved";
  window->windowHandle()->setFramePosition({20, 30});
  QCoreApplication::processEvents();
  EXPECT_EQ(form.Left(), 300);
  EXPECT_EQ(form.Top(), 450);
}

TEST_F(Views, AModalWindowOpensWithTheFocusAtItsBeginningAndGoesWhenItsFormLetsIt) {
  Sample box;
  Form_View view(box, Form_Kind::Dialog, window.get());
  int asked = 0;
  for (const int opening : {1, 2}) {
    QTimer::singleShot(0, [&] {
      EXPECT_EQ(QApplication::activeModalWidget(), &view);
      EXPECT_EQ(view.focusWidget(), view.View_Of(box.Box)) << "the first that is offered";
      view.View_Of(box.FixedBox)->setFocus();
      box.Close_Asked = [&] { ++asked; };
      view.close();
      EXPECT_TRUE(view.isVisible());
      box.Close_Asked = nullptr;
      view.close();
    });
    box.Show_Modal();
    EXPECT_EQ(asked, opening);
    EXPECT_FALSE(view.isVisible());
  }
}

TEST_F(Views, ALabelBehindAnotherIsNotReadOut) {
  const QAccessibleInterface& behind = *QAccessible::queryAccessibleInterface(&View<QLabel>(form.Behind));
  EXPECT_TRUE(behind.state().invisible);
  form.Above.Set_Visible(false);
  EXPECT_FALSE(behind.state().invisible);
}

TEST_F(Views, ALabelABoxAndABitThatAreOutOfDateAreGrey) {
  form.Box.Set_Text("abc");
  form.Bit.Set_Value(1);
  for (Control* control : std::initializer_list<Control*>{&form.Box, &form.Above, &form.Bit}) {
    QWidget& view = *window->View_Of(*control);
    const QImage fresh = view.grab().toImage();
    control->Set_OutOfDate("why");
    EXPECT_NE(view.grab().toImage(), fresh);
    control->Set_OutOfDate("");
    EXPECT_EQ(view.grab().toImage(), fresh);
  }
}

TEST_F(Views, EachPanelOfTheStatusBarShowsItsOwnText) {
  for (const int number : {1, 2, 3, 4}) form.Bar.Set_Panel(number, std::to_string(number));
  QString shown;
  for (const QLabel* panel : View<QWidget>(form.Bar).findChildren<QLabel*>()) shown += panel->text();
  EXPECT_EQ(shown, "1234");
}

}  // namespace
}  // namespace wrenbit
