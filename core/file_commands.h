// The two file commands: Intel HEX in and out, through the file dialogs.
#pragma once

namespace wrenbit {

// Both are refused, with the reason in panel 1, for a device without a usable size.

// Loads a file into a blank image of the selected device and shows it. Cancelled, nothing changes but
// panel 1; without a file that can be read, HexFilePath besides.
void mnuFileOpen_Click();

// Saves the whole image. A file that is there stands until the new one is whole.
void mnuFileSaveAs_Click();

}  // namespace wrenbit
