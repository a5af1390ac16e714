// The view of a text box.
#pragma once

#include <QLineEdit>

#include "shell/controls/lists_and_boxes.h"

namespace wrenbit {

// Each typed character, also an input method's, passes the box's KeyPress; what is pasted, or written by a
// screen reader, does not. Read-only while nobody handles the box's Change.
class Edit_Line : public QLineEdit {
 public:
  Edit_Line(TextBox& shown, QWidget* holder);

  // Shows the box as it has become.
  void Follow();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  QString Passed(const QString& characters) const;
  void Seat_Letters();

  TextBox& box;
  bool entered = false;  // By the click that is still down.
};

}  // namespace wrenbit
