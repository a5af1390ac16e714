// What loading and saving cost beside the bare movement of the same bytes.
#pragma once

#include "bench/report.h"

namespace bench {

// Throws std::runtime_error when a file does not come back as it went.
void Measure_Files(Report& report);

}  // namespace bench
