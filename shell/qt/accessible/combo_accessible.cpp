#include "shell/qt/accessible/combo_accessible.h"

#include <QWindow>

#include "shell/qt/views/reach.h"

namespace wrenbit {
namespace {

QModelIndex Model_Index(const QComboBox& combo, int number) {
  return combo.model()->index(number, combo.modelColumn(), combo.rootModelIndex());
}

// As a pick with the mouse. A pick may bring up a message box, so the caller is not kept waiting for its end.
void Pick(QComboBox& combo, int number) {
  QMetaObject::invokeMethod(
      &combo,
      [&combo, number] {
        if (!Within_Reach(combo) || number >= combo.count()) return;
        combo.hidePopup();
        combo.setCurrentIndex(number);
        Q_EMIT combo.activated(number);
        Q_EMIT combo.textActivated(combo.itemText(number));
      },
      Qt::QueuedConnection);
}

class Entry_Accessible : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  Entry_Accessible(QListView& shown, QComboBox& owner, int entry_number)
      : view(shown), combo(owner), number(entry_number) {}

  int Number() const { return number; }

  bool isValid() const override { return number < combo.count(); }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return parent()->window(); }
  QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(&view); }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

  QString text(QAccessible::Text what) const override {
    if (what == QAccessible::Name) return combo.itemText(number);
    if (what == QAccessible::Description) return combo.itemData(number, Qt::ToolTipRole).toString();
    return {};
  }
  void setText(QAccessible::Text, const QString&) override {}
  QAccessible::Role role() const override { return QAccessible::ListItem; }

  QRect rect() const override {
    const QRect place = view.visualRect(Model_Index(combo, number)).intersected(view.viewport()->rect());
    return place.isEmpty() ? QRect() : place.translated(view.viewport()->mapToGlobal(QPoint()));
  }

  // While the list is down, the highlighted entry counts, else the chosen one.
  QAccessible::State state() const override {
    const bool down = view.isVisible();
    QAccessible::State state;
    state.disabled = !combo.isEnabled();
    state.invisible = !combo.isVisible();
    state.offscreen = !down || rect().isEmpty();
    state.focusable = state.selectable = true;
    state.selected = number == (down ? view.currentIndex().row() : combo.currentIndex());
    state.focused = state.selected && (down || combo.hasFocus());
    return state;
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
  }
  QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& action) override {
    if (action == pressAction()) Pick(combo, number);
  }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  QListView& view;
  QComboBox& combo;
  const int number;
};

}  // namespace

QComboBox* Combo_Of(const QListView& entries) {
  // Between the two stands the window that drops down. The combo itself must not be asked for its view: this
  // may run while the view is being made.
  const QObject* window = entries.parent();
  return window ? qobject_cast<QComboBox*>(window->parent()) : nullptr;
}

Combo_Accessible::Combo_Accessible(QComboBox& shown)
    : QAccessibleWidget(&shown, QAccessible::ComboBox), combo(shown) {
  // Arrow keys change the entry without the list coming down. A screen reader speaks of it only when it hears
  // that the keyboard has moved.
  QObject::connect(&combo, &QComboBox::currentIndexChanged, &combo, [&shown](int number) {
    if (number < 0 || !QAccessible::isActive() || !shown.hasFocus()) return;
    QAccessibleEvent event(shown.view(), QAccessible::Focus);
    event.setChild(number);
    QAccessible::updateAccessibility(&event);
  });
}

void* Combo_Accessible::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
  return QAccessibleWidget::interface_cast(type);
}

QAccessibleInterface* Combo_Accessible::child(int index) const {
  return index == 0 ? QAccessible::queryAccessibleInterface(combo.view()) : nullptr;
}

int Combo_Accessible::indexOfChild(const QAccessibleInterface* child) const {
  return child && child->object() == combo.view() ? 0 : -1;
}

QString Combo_Accessible::text(QAccessible::Text what) const {
  return what == QAccessible::Value ? Whole_Text() : QAccessibleWidget::text(what);
}

QAccessible::State Combo_Accessible::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.expandable = state.hasPopup = true;
  state.expanded = combo.view()->isVisible();
  state.collapsed = !state.expanded;
  return state;
}

QStringList Combo_Accessible::actionNames() const {
  return QStringList{showMenuAction(), pressAction()} + QAccessibleWidget::actionNames();
}

void Combo_Accessible::doAction(const QString& action) {
  if (action != showMenuAction() && action != pressAction()) return QAccessibleWidget::doAction(action);
  if (!Within_Reach(combo)) return;
  if (combo.view()->isVisible())
    combo.hidePopup();
  else
    combo.showPopup();
}

Entries_Accessible::Entries_Accessible(QListView& shown, QComboBox& owner)
    : QAccessibleWidget(&shown, QAccessible::List), view(shown), combo(owner) {}

QAccessibleInterface* Entries_Accessible::child(int index) const {
  if (index < 0 || index >= childCount()) return nullptr;
  return entries.Child(index, [&] { return new Entry_Accessible(view, combo, index); });
}

int Entries_Accessible::indexOfChild(const QAccessibleInterface* child) const {
  const auto* entry = dynamic_cast<const Entry_Accessible*>(child);
  return entry && entry->parent() == this && entry->isValid() ? entry->Number() : -1;
}

QAccessibleInterface* Entries_Accessible::childAt(int x, int y) const {
  return child(view.indexAt(view.viewport()->mapFromGlobal(QPoint(x, y))).row());
}

QAccessibleInterface* Entries_Accessible::focusChild() const {
  return view.isVisible() ? child(view.currentIndex().row()) : nullptr;
}

QAccessibleInterface* Entries_Accessible::parent() const {
  return QAccessible::queryAccessibleInterface(&combo);
}

QString Entries_Accessible::text(QAccessible::Text what) const {
  return what == QAccessible::Name ? parent()->text(what) : QAccessibleWidget::text(what);
}

}  // namespace wrenbit
