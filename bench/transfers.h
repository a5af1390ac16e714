// Transfers through the program's own commands, with the window shown and a board in a process of its own.
#pragma once

#include "bench/report.h"

namespace bench {

// Throws std::runtime_error when a transfer fails or moves other bytes than it should.
void Measure_Transfers(Report& report, bool brief);

}  // namespace bench
