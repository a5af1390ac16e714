// What the program was called with.
#pragma once

#include <string>
#include <vector>

namespace board {

// The arguments of main(), in UTF-8 and without the program's name. On Windows the console takes UTF-8 from
// here on, until the program ends.
std::vector<std::string> Arguments(int argc, char** argv);

}  // namespace board
