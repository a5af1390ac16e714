// Start and memory of the whole program beside an empty Qt window.
#pragma once

#include "bench/report.h"

namespace bench {

// Throws std::runtime_error when a program does not come up.
void Measure_Whole_Programs(Report& report);

}  // namespace bench
