// What assistive technology is told of the views, where what Qt tells of its widgets does not say enough.
#pragma once

namespace wrenbit {

// Once a process, before anybody asks.
void Install_Accessibility();

}  // namespace wrenbit
