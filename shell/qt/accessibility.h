// What assistive technology is told of the views, where what Qt tells of its widgets does not say enough.
#pragma once

#include <QAccessible>
#include <QWidget>

namespace wrenbit {

// Once a process, before anybody asks.
void Install_Accessibility();

// True when the user can come to the view: it is enabled, and no other window is modal. Assistive technology
// gets through to the others all the same.
bool Within_Reach(const QWidget& view);

// For a view that is no more than a widget to Qt. Before anybody asks.
void Set_Role(QWidget* view, QAccessible::Role role);

}  // namespace wrenbit
