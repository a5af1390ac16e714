// Cells that live in an image file: the chip's bytes from address 0 on, and nothing else.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

#include "board/cell_store.h"

namespace board {

class Image_Store : public Cell_Store {
 public:
  // Opens the image of a chip of `size` bytes; a file that is not there is made, all bytes 0xFF. The path is
  // in UTF-8. Throws std::runtime_error when the file can't be opened for reading and writing, is no regular
  // file or has another size; it is then left untouched, and none is left half made.
  Image_Store(const std::string& path, std::size_t size);

 private:
  void Open(std::ios::openmode mode);
  void Create();
  void Load();
  // Throws std::system_error when the file takes no byte.
  void Keep(std::size_t address, std::uint8_t value) override;

  std::string subject;  // Opens the text of every error.
  std::filesystem::path path;
  std::fstream file;  // Unbuffered, so that each byte is in the file at once and none waits behind a failure.
};

}  // namespace board
