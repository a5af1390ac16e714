#include "board/arguments.h"

namespace board {

std::vector<std::string> Arguments(int argc, char** argv) {
  return argc > 0 ? std::vector<std::string>(argv + 1, argv + argc) : std::vector<std::string>();
}

}  // namespace board
