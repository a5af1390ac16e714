#include "wire_schedule.h"

#include <algorithm>

namespace board {
namespace {

using std::chrono::nanoseconds;
constexpr nanoseconds kNone{0};
constexpr nanoseconds kWireByteTime{10'000'000'000 / 9600};  // Start bit, eight data bits, stop bit.
constexpr std::chrono::milliseconds kAwakeFor{5};

}  // namespace

Wire_Schedule::Wire_Schedule(const Port_Timing& timing)
    : ByteTime(timing.Wire == Pace::kWire ? kWireByteTime : kNone), Latency(timing.Latency) {}

Wire_Schedule::Clock::time_point Wire_Schedule::Arrival(Clock::time_point sent) {
  return InFree = std::max(InFree, sent) + ByteTime;
}

Wire_Schedule::Clock::time_point Wire_Schedule::Departure(Clock::time_point said) {
  OutFree = std::max(OutFree, said) + ByteTime;
  if (Latency == kNone) return OutFree;
  return OutFree + Latency - OutFree.time_since_epoch() % Latency;
}

bool Wire_Schedule::Awake(Clock::time_point now) const {
  return ByteTime > kNone && now < std::max(InFree, OutFree) + kAwakeFor;
}

}  // namespace board
