// A chip and an image to measure with.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace bench {

// Throws std::runtime_error when the main window has been closed, as a signal to end does.
void Check_Window();

// The chip, and its whole size as the block, as a user chooses them. Throw std::runtime_error for one that is
// not in the list, and when the window has been closed.
void Choose_Device(const std::string& chip);
// This one is also painted behind it.
void Choose(const std::string& chip);

// Bytes of which none is its neighbour's.
std::vector<std::uint8_t> Pattern(std::size_t size);

}  // namespace bench
