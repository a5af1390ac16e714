// When a paced board's bytes get through, on a clock that stands still.
#include "board/wire_schedule.h"

#include <gtest/gtest.h>

namespace board {
namespace {

using namespace std::chrono_literals;
using Time = Wire_Schedule::Clock::time_point;

TEST(Wire_Schedule, CarriesBytesOneAfterTheOtherInEachDirectionAndIsAwakeMeanwhile) {
  constexpr auto kByteTime = std::chrono::nanoseconds(1'041'666);
  Wire_Schedule wire({.Wire = Pace::Wire});
  const Time now(1s);
  EXPECT_FALSE(wire.Awake(now));
  EXPECT_EQ(wire.Arrival(now), now + kByteTime);
  EXPECT_EQ(wire.Arrival(now), now + 2 * kByteTime);
  EXPECT_EQ(wire.Departure(now), now + kByteTime) << "the other direction is free";
  EXPECT_TRUE(wire.Awake(now + 2ms));
  EXPECT_FALSE(wire.Awake(now + 1s));
  EXPECT_EQ(wire.Departure(now + 1s), now + 1s + kByteTime) << "a rest of the wire is not made up for";
  EXPECT_TRUE(wire.Awake(now + 1s));

  Wire_Schedule none({});
  EXPECT_EQ(none.Departure(none.Arrival(now)), now);
}

TEST(Wire_Schedule, HoldsRepliesBackForTheTurnsOfAnAdapter) {
  Wire_Schedule adapter({.Wire = Pace::At_Once, .Latency = 16ms});
  const Time turn(160ms);
  EXPECT_EQ(adapter.Departure(turn + 1ms), turn + 16ms);
  EXPECT_EQ(adapter.Departure(turn + 15ms), turn + 16ms) << "what has come by then comes together";
  EXPECT_EQ(adapter.Departure(turn + 16ms), turn + 32ms) << "too late for the turn at that time";
  EXPECT_EQ(adapter.Arrival(turn + 18ms), turn + 18ms) << "what the PC sends is not held back";
}

}  // namespace
}  // namespace board
