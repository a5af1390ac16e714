// What the byte transfers of both families share: the cell before, image, grid and panel 1 after.
#pragma once

#include <cstdint>

namespace wrenbit {

// Moves the current cell out of the ASCII column, then refuses one without a byte in the image. True when it
// did.
bool Byte_Refused();

// The byte goes into the image and the current cell, the edit panel follows, and panel 1 says the end.
void Finish_Byte_Read(std::uint8_t byte);

// Panel 1 says the end.
void Tell_Byte_Done();

}  // namespace wrenbit
