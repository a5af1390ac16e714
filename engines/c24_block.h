// A block between a 24Cxx chip and the image, from address 0 on: 2^AccessSize bytes, at most the chip's size.
// From firmware 5.0 on whole bytes are commands of the board, but for the control byte of the read. The
// command lock must be in force. A transfer runs through to its power-off whatever fails on the way;
// LinkError and panel 1 tell the outcome. A block size above the chip's is corrected for good, in CmbSize and
// its stored setting.
#pragma once

namespace wrenbit {

// Into an image that the caller has made anew. On failure it holds what was read up to and including the byte
// in hand, which is not to be trusted. Leaves the refilling of the grid to the caller.
void C24_AllRead();

// Page by page; refused when the device's page is not usable. On failure the chip is partly written, and the
// image as it was. Nothing is read back.
void C24_AllWrite();

}  // namespace wrenbit
