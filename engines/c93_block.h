// A block between a 93Cxx chip and the image, from address 0 on: 2^AccessSize bytes, at most the chip's size.
// Every byte is an instruction of its own; from firmware 5.0 on its fields are commands of the board. The
// command lock must be in force. A transfer runs through to its power-off whatever fails on the way;
// LinkError and panel 1 tell the outcome. A block size above the chip's is corrected for good, in CmbSize and
// its stored setting.
#pragma once

namespace wrenbit {

// Into an image that the caller has made anew. On failure it holds what was read up to and including the byte
// in hand, which is not to be trusted. Leaves the refilling of the grid to the caller.
void C93_AllRead();

// On failure the chip is partly written, and the image as it was. Nothing is read back, and no write cycle is
// waited for: a chip has the time that the wire takes to the next instruction (docs/wire-protocol.md).
void C93_AllWrite();

}  // namespace wrenbit
