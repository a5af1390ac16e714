// Where the figures come from.
#pragma once

#include <string>

namespace bench {

// Processor, cores, system, display and day, in one line.
std::string Machine();

}  // namespace bench
