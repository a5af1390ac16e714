// Who gets through to a view, and as what: assistive technology takes other ways than mouse and keyboard.
#pragma once

#include <QAccessible>
#include <QWidget>

namespace wrenbit {

// True when the user can come to the view: it is enabled, and no other window is modal. Assistive technology
// gets through to the others all the same.
bool Within_Reach(const QWidget& view);

// For a view that is no more than a widget to Qt. Before anybody asks.
void Set_Role(QWidget* view, QAccessible::Role role);

// What was set, else NoRole.
QAccessible::Role Role_Of(const QWidget& view);

}  // namespace wrenbit
