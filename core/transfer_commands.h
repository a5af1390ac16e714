// The four transfer buttons: lock, engine of the device's family, unlock. Every message comes from the
// engines.
#pragma once

namespace wrenbit {

// Takes all controls out of the user's hands but the window's close box, empties panels 1 and 2 and clears
// LinkError. Not nested.
void Command_Lock();

// Gives them back, puts the focus into the hex box and closes the port, whatever the outcome; where the port
// has gone, panels 1 and 2 tell. A window that was told to close meanwhile closes now.
void Command_Unlock();

// Into a blank image; the grid follows only when the whole block came. The image is blanked before anything
// is known of the board, so that after a failure image and grid differ until the next refill, and the grid is
// grey. What lies behind a block that is smaller than the chip shows weaker than what was read.
void Cmd_READ_all_Click();
void Cmd_WRITE_all_Click();
void Cmd_READ_single_Click();
void Cmd_WRITE_single_Click();

// What the close box asks for. In the midst of a transfer it ends at its next look at LinkError, the socket
// loses its supply and the port closes; then the window goes.
void Main_Window_Close();

}  // namespace wrenbit
