// What the serial port needs of the system and Qt does not offer.
#pragma once

namespace wrenbit {

// True when the far end of an open port has gone, whether or not bytes are left to read.
bool Hung_Up(int descriptor);

// Asks the driver to hand each byte on at once. USB adapters hold one back up to 16 ms otherwise, which every
// one-byte reply would pay. A driver that does not know the wish goes on as it was.
void Ask_For_Low_Latency(int descriptor);

}  // namespace wrenbit
