// The hex grid: its shape and its filling from the image.
#pragma once

namespace wrenbit {

// Rebuilds every row from the image, selects the first byte, and sets the checksum label. What has changed so
// far shows before the first row changes. An image of no size gives an empty grid, with nothing selected.
void Grid_Refill();

// Grid, checksum label and edit boxes turn grey: they show what the image held before a read that failed.
// Until the next refill; the boxes until they show a byte of the image again.
void Grid_Out_Of_Date();

// A blank image of the selected device's size, shown in the grid.
void Buffer_Init();

void mnuBufferClear_Click();

}  // namespace wrenbit
