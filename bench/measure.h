// Clocks, and the one thing that is measured of a process beside time.
#pragma once

#include <functional>

namespace bench {

struct Spent {
  double Wall = 0;       // Seconds.
  double Processor = 0;  // Seconds of this process, all its threads.
};

// By the monotonic clock, which no setting of the time moves.
Spent Spend(const std::function<void()>& work);

}  // namespace bench
