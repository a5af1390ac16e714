// Which byte a cell of the hex grid stands for. Sixteen bytes a row, behind one fixed row and one fixed
// column.
#pragma once

#include <cstdint>

namespace wrenbit {

inline constexpr int kBytesPerRow = 16;
inline constexpr int kFirstByteCol = 1;
inline constexpr int kLastByteCol = 16;
inline constexpr int kAsciiCol = 17;
inline constexpr int kGridCols = 18;

// (row - 1) x 16 + col - 1. Negative for the header row of an empty grid.
constexpr std::int32_t Address_Of_Cell(int row, int col) { return (row - 1) * kBytesPerRow + col - 1; }

// The current cell of MSFGrid1. Worked out afresh at each call: the cell is the selection, nothing else is.
std::int32_t Current_Address();

// Moves the current cell from the ASCII column to the last byte of its row.
void Leave_Ascii_Column();

// True when the current cell stands for a byte that the image has.
bool Current_Cell_In_Image();

}  // namespace wrenbit
