// The views of the controls. A view shows its control and hands the user's doings on to it; how a control
// behaves is the control's business. What has no handler is shown but not offered.
#pragma once

#include <QWidget>

#include "shell/controls/control.h"

namespace wrenbit {

// Makes the view of a control, at its place in the view of its container. For a menu that is the menu bar,
// for an entry the menu's view. From now on the view follows the control's Changed.
QWidget* Make_View(Control& control, QWidget* holder);

}  // namespace wrenbit
