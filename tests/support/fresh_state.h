// The program's state as it is when the process starts.
#pragma once

namespace wrenbit {

// All of state.h zero or empty; every window unloaded, hidden, with its first texts. No event fires.
void Reset_State();

}  // namespace wrenbit
