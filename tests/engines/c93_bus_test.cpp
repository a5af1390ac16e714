// Reading a bit from the three-wire bus when the lines are not as driven.
#include "c93_bus.h"

#include "chip_bench.h"

namespace wrenbit {
namespace {

TEST(C93_Bus, ABitFromALineThatDoesNotFollowIsAMessageAndSetsNoFlag) {
  using board::Line;
  for (const auto& [stuck, high] : {std::pair{Line::kDi, true}, {Line::kSk, false}, {Line::kSupply, false}}) {
    Chip_Bench bench("AT93C46", "5.00", true);
    C93_Power_on();
    bench.Programmer.Socket().Stick(stuck, high);
    EXPECT_EQ(C93_DATA(), 0);
    EXPECT_EQ(Panel(1), "93Cxx DATA Read on PortB error");
    EXPECT_EQ(LinkError, 0);
  }
}

TEST(C93_Bus, ABitThatFailedIs0AndLeavesTheClockHigh) {
  Chip_Bench bench("AT93C46", "5.00", true);
  C93_Power_on();
  EXPECT_EQ(C93_DATA(), 1) << "DO is let go";
  bench.Forget_Traffic();
  LinkError = 1;
  EXPECT_EQ(C93_DATA(), 0);
  EXPECT_EQ(bench.Sent, (Bytes{'m', 'w', 'b', 0x50, 'm', 'r', 'b'}));
  EXPECT_EQ(PortMirror.OutB, 0x50);
}

}  // namespace
}  // namespace wrenbit
