// Chips by name.
#pragma once

#include <memory>
#include <string_view>

#include "cell_store.h"
#include "chip_geometry.h"
#include "chip_socket.h"

namespace board {

// Null when no part has that very name.
const Chip_Geometry* Find_Chip(std::string_view name);

// A chip over `store`, which must have its size and outlive it. Throws std::invalid_argument for an unknown
// name and for a store of another size.
std::unique_ptr<Chip> Make_Chip(std::string_view name, Cell_Store& store);

}  // namespace board
