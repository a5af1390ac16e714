#include "board/make_chip.h"

#include <algorithm>
#include <span>
#include <stdexcept>

#include "board/three_wire_chip.h"
#include "board/two_wire_chip.h"

namespace board {

namespace {

template <class Part>
const Part* Find(std::span<const Part> parts, std::string_view name) {
  const auto found = std::ranges::find(parts, name, &Part::Name);
  return found == parts.end() ? nullptr : &*found;
}

}  // namespace

std::vector<std::string> Chip_Names() {
  std::vector<std::string> names;
  for (const auto& part : Two_Wire_Parts()) names.emplace_back(part.Name);
  for (const auto& part : Three_Wire_Parts()) names.emplace_back(part.Name);
  return names;
}

const Two_Wire_Part* Find_Two_Wire(std::string_view name) { return Find(Two_Wire_Parts(), name); }
const Three_Wire_Part* Find_Three_Wire(std::string_view name) { return Find(Three_Wire_Parts(), name); }

std::size_t Chip_Size(std::string_view name) {
  if (const auto* part = Find_Two_Wire(name)) return part->Bytes;
  if (const auto* part = Find_Three_Wire(name)) return part->Bytes;
  throw std::invalid_argument("no chip has the name " + std::string(name));
}

std::unique_ptr<Chip> Make_Chip(std::string_view name, Cell_Store& store) {
  const std::size_t size = Chip_Size(name);
  if (store.Cells().size() != size) {
    throw std::invalid_argument(std::string(name) + " has " + std::to_string(size) + " bytes, its store " +
                                std::to_string(store.Cells().size()));
  }
  if (const auto* part = Find_Two_Wire(name)) return std::make_unique<Two_Wire_Chip>(*part, store);
  return std::make_unique<Three_Wire_Chip>(*Find_Three_Wire(name), store);
}

}  // namespace board
