// One byte between a 93Cxx chip and the image: the one under the grid's current cell. Complete transactions,
// from handshake to power-off, bit by bit at every firmware version. The command lock must be in force.
// A transfer runs through to its power-off whatever fails on the way; LinkError and panel 1 tell the outcome.
// A chip that does not listen, or is not there, goes unseen.
#pragma once

namespace wrenbit {

// On failure image, grid and edit panel stay as they were.
void C93_ByteRead();

// Sends the image's byte. What the chip stored is not read back, and its write cycle is not waited for: it
// has the time of the power-off's first two commands.
void C93_ByteWrite();

}  // namespace wrenbit
