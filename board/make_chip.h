// Chips by name, of both families.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "board/cell_store.h"
#include "board/chip_socket.h"
#include "board/three_wire_parts.h"
#include "board/two_wire_parts.h"

namespace board {

// Two-wire parts first.
std::vector<std::string> Chip_Names();

// Null when no part of the family has that very name.
const Two_Wire_Part* Find_Two_Wire(std::string_view name);
const Three_Wire_Part* Find_Three_Wire(std::string_view name);

// Bytes. Throws std::invalid_argument when no part has that very name.
std::size_t Chip_Size(std::string_view name);

// A chip over `store`, which must have its size and outlive it. Throws std::invalid_argument for an unknown
// name and for a store of another size.
std::unique_ptr<Chip> Make_Chip(std::string_view name, Cell_Store& store);

}  // namespace board
