// What the byte transfers of both families share: the cell before, image, grid and panel 1 after.
#pragma once

#include <cstdint>

namespace wrenbit {

// Moves the current cell out of the ASCII column. A cell without a byte in the image is refused before the
// port is touched: false.
bool Byte_Cell_Ready();

// Unless the transfer failed, the byte goes into the image and the current cell, the edit panel follows, and
// panel 1 says the end.
void Finish_Byte_Read(std::uint8_t byte);

// Unless the transfer failed, panel 1 says the end.
void Finish_Byte_Write();

}  // namespace wrenbit
