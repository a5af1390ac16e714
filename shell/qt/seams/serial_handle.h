// What the serial port needs of the system and Qt does not offer.
#pragma once

#include <string>

namespace wrenbit {

// True when the far end of an open port has gone, whether or not bytes are left to read.
bool Hung_Up(int descriptor);

// Asks the driver to hand each byte on at once. USB adapters hold one back up to 16 ms otherwise, which every
// one-byte reply would pay. A driver that does not know the wish goes on as it was.
void Ask_For_Low_Latency(int descriptor);

// True when a device that the user may not open is so new that the system may still be setting up who may.
bool Rights_May_Come(const std::string& device);

// What would let the user open a device that is not permitted, a few words in Japanese; empty when the group
// and the mode of the device do not tell.
std::string Missing_Right(const std::string& device);

}  // namespace wrenbit
