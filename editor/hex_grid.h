// The hex grid: its shape and its filling from the image.
#pragma once

#include <cstdint>

namespace wrenbit {

// Rebuilds every row from the image, selects the first byte, and sets the checksum label. What has changed so
// far shows before the first row changes. An image of no size gives an empty grid, with nothing selected.
void Grid_Refill();

// Grid, checksum label, edit boxes and bits turn grey: they show what the image held before a read that
// failed. Until the next refill; boxes and bits until they show a byte of the image again, the label until
// the next edit, a cell until it is written alone.
void Grid_Out_Of_Date();

// The bytes from this address on did not come from the chip: they show weaker, and the grid's tip says why,
// until the next refill. A byte that is edited or read shows as ever again. The address is a multiple of 16.
void Grid_Unread_From(std::int32_t address);

// A blank image of the selected device's size, shown in the grid.
void Buffer_Init();

void mnuBufferClear_Click();

}  // namespace wrenbit
