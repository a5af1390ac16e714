#include "bench/measure.h"

#include <time.h>

namespace bench {
namespace {

double Seconds(clockid_t clock) {
  timespec now{};
  clock_gettime(clock, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

}  // namespace

Spent Spend(const std::function<void()>& work) {
  const double wall = Seconds(CLOCK_MONOTONIC);
  const double processor = Seconds(CLOCK_PROCESS_CPUTIME_ID);
  work();
  return {Seconds(CLOCK_MONOTONIC) - wall, Seconds(CLOCK_PROCESS_CPUTIME_ID) - processor};
}

}  // namespace bench
