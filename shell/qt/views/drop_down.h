// The view of a drop-down list.
#pragma once

#include <QComboBox>
#include <QWheelEvent>

#include "shell/controls/lists_and_boxes.h"

namespace wrenbit {

// A pick fires the list's Click, also of the entry that is selected already. Tips are asked for when they are
// to be shown.
class Drop_Down : public QComboBox {
 public:
  Drop_Down(ComboBox& shown, QWidget* holder);

  // Shows the list as it has become.
  void Follow();

  void showPopup() override;

 protected:
  bool event(QEvent* event) override;
  // A wheel that only rolls past must not pick another chip, which costs the image: neither at once, nor by
  // taking the keyboard, whose next key would.
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }

 private:
  ComboBox& box;
};

}  // namespace wrenbit
