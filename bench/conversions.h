// Intel HEX to binary and back, beside tools that do the same.
#pragma once

#include "bench/report.h"

namespace bench {

// Leaves out a tool that is not installed, and says so. Throws std::runtime_error when a conversion fails or
// the tools disagree.
void Measure_Conversions(Report& report);

}  // namespace bench
