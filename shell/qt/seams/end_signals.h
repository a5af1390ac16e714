// The system's wish that the program end: a terminal's interrupt, a log-out, a shut-down.
#pragma once

#include <functional>

class QObject;

namespace wrenbit {

// Calls `act` from the event loop, wherever that runs, when the system asks for the end, in place of ending
// on the spot with a socket left powered. Once in a process; lasts as long as the owner.
void On_End_Signal(QObject* owner, std::function<void()> act);

}  // namespace wrenbit
