#include "accessibility.h"

#include <QAccessibleWidget>

#include "combo_accessible.h"
#include "grid_accessible.h"

namespace wrenbit {
namespace {

constexpr const char* kRole = "wrenbit_role";

// Null leaves it to Qt.
QAccessibleInterface* Interface_Of(const QString&, QObject* object) {
  if (auto* grid = dynamic_cast<Grid_View*>(object)) return new Grid_Accessible(*grid);
  if (auto* combo = qobject_cast<QComboBox*>(object); combo && !combo->isEditable())
    return new Combo_Accessible(*combo);
  if (auto* entries = qobject_cast<QListView*>(object))
    if (QComboBox* combo = Combo_Of(*entries); combo && !combo->isEditable())
      return new Entries_Accessible(*entries, *combo);
  auto* widget = qobject_cast<QWidget*>(object);
  const QVariant role = widget ? widget->property(kRole) : QVariant();
  return role.isValid() ? new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt()))
                        : nullptr;
}

}  // namespace

void Install_Accessibility() { QAccessible::installFactory(Interface_Of); }

void Set_Role(QWidget* view, QAccessible::Role role) { view->setProperty(kRole, static_cast<int>(role)); }

}  // namespace wrenbit
