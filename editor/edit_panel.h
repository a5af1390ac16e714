// The byte edit panel: one byte shown four ways, each of which is also an editor. A change goes to the image
// at once, at the grid's current cell, and to all that shows it; never to the chip. Nothing happens while the
// ASCII column is current or code writes the controls (UpdatingControls).
#pragma once

#include <cstdint>
#include <string>

namespace wrenbit {

class Control;

// Shows a byte in all four ways, or leaves alone the box that the user types in. The caller holds
// UpdatingControls.
void Edit_Panel_Show(std::uint8_t byte, std::string character, const Control* left_alone = nullptr);

// Lets hex digits through, as capitals, and the backspace; the rest becomes 0.
void Text_modify_hex_KeyPress(std::int16_t& key);

// The half-typed value counts: an empty box is 0, and what is no hex digit counts as the digit 0.
void Text_modify_hex_Change();

// What is above 255 or no number becomes 255, in the box too. A fraction is rounded, a half to the even
// neighbour; what would become negative leaves the byte as it was.
void Text_modify_dec_Change();

// No character, or one that code page 932 lacks or gives two bytes, leaves the byte as it was.
void Text_modify_asc_Change();

// The same for any of the eight.
void ChkBin_Click();

}  // namespace wrenbit
