#include "shell/qt/views/drop_down.h"

#include <QEvent>

#include "shell/qt/drawing/look.h"

namespace wrenbit {
namespace {

constexpr int kRowsInSight = 15;

}  // namespace

Drop_Down::Drop_Down(ComboBox& shown, QWidget* holder) : QComboBox(holder), box(shown) {
  setFocusPolicy(Qt::StrongFocus);  // Unlike the list's own, which a turn of the wheel satisfies.
  setMaxVisibleItems(kRowsInSight);
  connect(this, &QComboBox::activated, this, [this](int index) { box.Set_ListIndex(index); });
}

void Drop_Down::Follow() {
  while (count() > box.ListCount()) removeItem(count() - 1);
  for (int i = 0; i < box.ListCount(); ++i) {
    if (i == count()) addItem({});
    setItemText(i, Text_Of(box.List(i)));
  }
  setCurrentIndex(box.ListIndex());
}

void Drop_Down::showPopup() {
  for (int i = 0; box.Tip && i < count(); ++i) setItemData(i, Text_Of(box.Tip(i)), Qt::ToolTipRole);
  QComboBox::showPopup();
}

bool Drop_Down::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && box.Tip && box.ListIndex() >= 0)
    setToolTip(Text_Of(box.Tip(box.ListIndex())));
  return QComboBox::event(event);
}

}  // namespace wrenbit
