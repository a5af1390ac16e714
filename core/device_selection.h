// The selection of a device and of the block size.
#pragma once

namespace wrenbit {

// Makes the row of Combo_device the working context: device values, labels, a blank image in the grid, and a
// block-size list that fits the chip. Stores the choice. What the image held is gone.
void Combo_device_Click();

// Fills CmbSize with the powers of two from 16 up to 2^exponent bytes. Selects none.
void Offer_Block_Sizes(int exponent);

// Takes the block size from CmbSize, stores the choice, and tells in the tips of CmbSize and of the four
// transfer buttons how much of the chip they move.
void CmbSize_Click();

}  // namespace wrenbit
