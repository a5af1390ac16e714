#include "board/typed_lines.h"

#include <cstddef>
#include <utility>

namespace board {

namespace {

constexpr std::size_t kLongest = 4096;

}  // namespace

std::vector<std::string> Typed_Lines::Take() {
  std::vector<std::string> lines;
  const std::optional<std::string> bytes = Read();
  if (!bytes && !begun.empty()) lines.push_back(std::exchange(begun, {}));
  for (const char byte : bytes.value_or("")) {
    if (byte == '\n')
      lines.push_back(std::exchange(begun, {}));
    else if (begun.size() < kLongest)
      begun += byte;
  }
  return lines;
}

}  // namespace board
