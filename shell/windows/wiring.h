// Joins every event of the four windows to its handler.
#pragma once

namespace wrenbit {

// Called once, before Main and before any view is made: a view offers the user only what has a handler.
void Wire_Windows();

}  // namespace wrenbit
