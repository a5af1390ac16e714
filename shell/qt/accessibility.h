// What assistive technology is told of the views, where what Qt tells of its widgets does not say enough.
#pragma once

#include <QAccessible>
#include <QWidget>

namespace wrenbit {

// Once a process, before anybody asks.
void Install_Accessibility();

// For a view that is no more than a widget to Qt. Before anybody asks.
void Set_Role(QWidget* view, QAccessible::Role role);

}  // namespace wrenbit
