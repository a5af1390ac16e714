// The handshake before every transfer, and what is told when its port goes away.
#pragma once

#include <functional>

namespace wrenbit {

// Opens the port of the setting ComNo, with the lines of RTS and DTR, and asks the board what it is: "?"
// twice, of which the second counts. A good reply sets ProgrammerVersion and its text, which otherwise keep
// their last good values, and panel 2; the number of the port is the device's own from then on.
//
// LinkError is 0 afterwards exactly when a known board has answered; else panels 1 and 2 tell what failed.
// The port may be open in either case: Command_Unlock closes it.
void Read_Version();

// Runs as a handshake begins, before the port is touched; it may yield. Set by the port window, which takes
// the first handshake for its first use.
inline std::function<void()> Handshake_Begins;

// The open port has gone: panel 1 says so behind what it says already, unless that is it, and panel 2 shows
// no board any more.
void Tell_Port_Gone();

}  // namespace wrenbit
