// The one threshold among the board's firmware versions.
#pragma once

#include "core/state/state.h"

namespace wrenbit {

// True from firmware 5.0 on. Asked at every call, never remembered: the board may be another one next time.
inline bool Has_Accelerators() { return ProgrammerVersion >= 5.0F; }

}  // namespace wrenbit
