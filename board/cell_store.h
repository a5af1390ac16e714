// The cells of a chip, which outlive its supply. This one keeps them in memory; see image_store.h for a file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace board {

class Cell_Store {
 public:
  // `size` bytes, all erased (0xFF).
  explicit Cell_Store(std::size_t size) : bytes(size, 0xFF) {}
  Cell_Store(const Cell_Store&) = delete;
  Cell_Store& operator=(const Cell_Store&) = delete;
  virtual ~Cell_Store() = default;

  std::span<const std::uint8_t> Cells() const { return bytes; }

  // `address` is below the size. When the store behind the cells fails, its exception leaves the cell as it
  // was.
  void Write(std::size_t address, std::uint8_t value) {
    if (bytes[address] == value) return;
    Keep(address, value);
    bytes[address] = value;
  }

 protected:
  // A cell is about to change.
  virtual void Keep(std::size_t /*address*/, std::uint8_t /*value*/) {}

  std::vector<std::uint8_t> bytes;
};

}  // namespace board
