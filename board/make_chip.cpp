#include "make_chip.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include "two_wire_chip.h"

namespace board {

const Chip_Geometry* Find_Chip(std::string_view name) {
  const auto chips = Two_Wire_Chips();
  const auto found = std::ranges::find(chips, name, &Chip_Geometry::Name);
  return found == chips.end() ? nullptr : &*found;
}

std::unique_ptr<Chip> Make_Chip(std::string_view name, Cell_Store& store) {
  const Chip_Geometry* geometry = Find_Chip(name);
  if (!geometry) throw std::invalid_argument("no chip has the name " + std::string(name));
  if (store.Cells().size() != geometry->Bytes) {
    throw std::invalid_argument(std::string(name) + " has " + std::to_string(geometry->Bytes) +
                                " bytes, its store " + std::to_string(store.Cells().size()));
  }
  return std::make_unique<Two_Wire_Chip>(*geometry, store);
}

}  // namespace board
