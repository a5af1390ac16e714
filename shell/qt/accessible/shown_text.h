// The text of a view for assistive technology, where there is nothing but the text itself: it is read, and
// has neither cursor nor selection.
#pragma once

#include <QAccessible>

namespace wrenbit {

class Shown_Text : public QAccessibleTextInterface {
 public:
  QString text(int from, int to) const override { return Whole_Text().mid(from, to - from); }
  int characterCount() const override { return static_cast<int>(Whole_Text().size()); }

  int cursorPosition() const override { return 0; }
  void setCursorPosition(int) override {}
  int selectionCount() const override { return 0; }
  void selection(int, int* from, int* to) const override { *from = *to = 0; }
  void addSelection(int, int) override {}
  void removeSelection(int) override {}
  void setSelection(int, int, int) override {}
  void scrollToSubstring(int, int) override {}
  QRect characterRect(int) const override { return {}; }
  int offsetAtPoint(const QPoint&) const override { return -1; }
  QString attributes(int, int* from, int* to) const override {
    *from = 0;
    *to = characterCount();
    return {};
  }

 protected:
  virtual QString Whole_Text() const = 0;
};

}  // namespace wrenbit
