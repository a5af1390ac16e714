// The selection of a byte: what a click into the hex grid does, and what code calls when it has changed the
// current cell or its byte.
#pragma once

namespace wrenbit {

// Loads the byte of the current cell into the edit panel, tells its address in panel 3 and gives the hex box
// the focus. The ASCII column selects the last byte of its row. Changes no byte. In an empty grid nothing is
// loaded.
void MSFGrid1_Click();

}  // namespace wrenbit
