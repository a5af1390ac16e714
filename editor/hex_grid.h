// The hex grid: its shape, its filling from the image, and the texts of its cells.
#pragma once

#include <cstdint>
#include <string>

namespace wrenbit {

// "0x0A"
std::string Byte_Cell(std::uint8_t byte);

// Rebuilds every row from the image, selects the first byte, and sets the checksum label. Yields once, before
// the first row changes. An image of no size gives an empty grid, with nothing selected.
void Grid_Refill();

// A blank image of the selected device's size, shown in the grid.
void Buffer_Init();

void mnuBufferClear_Click();

}  // namespace wrenbit
