#include "shell/qt/views/reach.h"

#include <QApplication>
#include <QVariant>

namespace wrenbit {
namespace {

constexpr const char* kRole = "wrenbit_role";

}  // namespace

bool Within_Reach(const QWidget& view) {
  const QWidget* modal = QApplication::activeModalWidget();
  return view.isEnabled() && (!modal || modal == view.window());
}

void Set_Role(QWidget* view, QAccessible::Role role) { view->setProperty(kRole, static_cast<int>(role)); }

QAccessible::Role Role_Of(const QWidget& view) {
  return static_cast<QAccessible::Role>(view.property(kRole).toInt());  // NoRole is 0.
}

}  // namespace wrenbit
