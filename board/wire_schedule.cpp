#include "board/wire_schedule.h"

#include <algorithm>

#include "board/wire_end.h"

namespace board {
namespace {

using std::chrono::nanoseconds;
constexpr nanoseconds kNone{0};
constexpr std::chrono::milliseconds kAwakeFor{5};

}  // namespace

Wire_Schedule::Wire_Schedule(const Port_Timing& timing)
    : byte_time(timing.Wire == Pace::Wire
                    ? std::chrono::duration_cast<nanoseconds>(std::chrono::duration<double>(kByteTime))
                    : kNone),
      latency(timing.Latency) {}

Wire_Schedule::Clock::time_point Wire_Schedule::Arrival(Clock::time_point sent) {
  return in_free = std::max(in_free, sent) + byte_time;
}

Wire_Schedule::Clock::time_point Wire_Schedule::Departure(Clock::time_point said) {
  out_free = std::max(out_free, said) + byte_time;
  if (latency == kNone) return out_free;
  return out_free + latency - out_free.time_since_epoch() % latency;
}

bool Wire_Schedule::Awake(Clock::time_point now) const {
  return byte_time > kNone && now < std::max(in_free, out_free) + kAwakeFor;
}

}  // namespace board
