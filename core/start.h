// The program's entry.
#pragma once

namespace wrenbit {

// Shows the splash window, refuses a second instance and a missing or empty catalogue, loads the catalogue
// and brings up the main window. The port stays closed. True when the program goes on to its event loop;
// false when it is to end at once, with its reason told where there is one to tell.
bool Main();

}  // namespace wrenbit
