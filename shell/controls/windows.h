// The four windows, each a single instance that is reached by its name.
#pragma once

#include "frm_about.h"
#include "frm_com.h"
#include "frm_main.h"
#include "frm_splash.h"

namespace wrenbit {

// Puts every window back to the state in which the process began: unloaded, hidden, first texts. No event
// fires.
void Reset_Windows();

}  // namespace wrenbit
