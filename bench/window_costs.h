// What the window makes the user wait for where no wire is involved.
#pragma once

#include "bench/report.h"
#include "shell/qt/program.h"

namespace bench {

void Measure_Window(Report& report, wrenbit::Program& program);

}  // namespace bench
