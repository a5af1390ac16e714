#include "shell/qt/accessible/accessibility.h"

#include <QAccessibleWidget>
#include <QLabel>
#include <algorithm>

#include "shell/qt/accessible/combo_accessible.h"
#include "shell/qt/accessible/grid_accessible.h"
#include "shell/qt/views/grid_view.h"
#include "shell/qt/views/reach.h"

namespace wrenbit {
namespace {

// A label is called by its text, where Qt would call it by the group that it lies in. One that lies behind
// another view is not to be read before it is to be seen.
class Label_Accessible : public QAccessibleWidget {
 public:
  explicit Label_Accessible(QLabel& shown)
      : QAccessibleWidget(&shown, QAccessible::StaticText), label(shown) {}

  QString text(QAccessible::Text what) const override {
    if (what != QAccessible::Name) return QAccessibleWidget::text(what);
    return label.accessibleName().isEmpty() ? label.text() : label.accessibleName();
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = true;
    if (Covered()) state.invisible = true;
    return state;
  }

 private:
  // Siblings lie the higher the later they come.
  bool Covered() const {
    const QObjectList siblings = label.parent() ? label.parent()->children() : QObjectList();
    return std::any_of(siblings.begin() + siblings.indexOf(&label) + 1, siblings.end(),
                       [this](QObject* other) {
                         const auto* above = qobject_cast<QWidget*>(other);
                         return above && above->isVisible() && above->geometry().contains(label.geometry());
                       });
  }

  QLabel& label;
};

// Null leaves it to Qt.
QAccessibleInterface* Interface_Of(const QString&, QObject* object) {
  if (auto* grid = dynamic_cast<Grid_View*>(object)) return new Grid_Accessible(*grid);
  if (auto* combo = qobject_cast<QComboBox*>(object); combo && !combo->isEditable())
    return new Combo_Accessible(*combo);
  if (auto* entries = qobject_cast<QListView*>(object))
    if (QComboBox* combo = Combo_Of(*entries); combo && !combo->isEditable())
      return new Entries_Accessible(*entries, *combo);
  if (auto* label = qobject_cast<QLabel*>(object); label && label->textFormat() == Qt::PlainText)
    return new Label_Accessible(*label);
  auto* widget = qobject_cast<QWidget*>(object);
  const QAccessible::Role role = widget ? Role_Of(*widget) : QAccessible::NoRole;
  return role == QAccessible::NoRole ? nullptr : new QAccessibleWidget(widget, role);
}

}  // namespace

void Install_Accessibility() { QAccessible::installFactory(Interface_Of); }

}  // namespace wrenbit
