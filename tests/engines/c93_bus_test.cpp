// The three-wire bus operations: bytes on the wire, waits, read-back tests and their texts.
#include "c93_bus.h"

#include "chip_bench.h"

namespace wrenbit {
namespace {

void Data() { C93_DATA(); }

TEST(C93_Bus, EachOperationIsItsPortCommandsAtEveryVersion) {
  const struct {
    const char* Name;
    void (*Run)();
    Bytes Sent;
    std::size_t Replies;
  } operations[] = {
      {"power on",
       C93_Power_on,
       {'m', 'w', 'a',  0,   'm', 'w', 'b',  0x40, 'm', 'w', 'c', 0x80, 'm', 't', 'a', 0xF9, 'm',
        't', 'b', 0xA7, 'm', 't', 'c', 0x77, 'm',  'r', 'a', 'm', 'r',  'b', 'm', 'r', 'c'},
       3},
      {"select", C93_CS_High, {'m', 'w', 'c', 0x88}, 0},
      {"bit 1", C93_Bit1, {'m', 'w', 'b', 0x48, 'm', 'w', 'b', 0x58, 'm', 'w', 'b', 0x48}, 0},
      {"bit 0", C93_Bit0, {'m', 'w', 'b', 0x40, 'm', 'w', 'b', 0x50, 'm', 'w', 'b', 0x40}, 0},
      {"data", Data, {'m', 'w', 'b', 0x50, 'm', 'r', 'b', 'm', 'w', 'b', 0x40}, 1},
      {"deselect", C93_CS_Low, {'m', 'w', 'c', 0x80}, 0},
      {"power off",
       C93_Power_off,
       {'m', 'w', 'a',  0,   'm', 'w', 'b',  0,   'm', 'w', 'c', 0x80, 'm', 't', 'a', 0xFF, 'm',
        't', 'b', 0xFF, 'm', 't', 'c', 0x7F, 'm', 'r', 'a', 'm', 'r',  'b', 'm', 'r', 'c'},
       3},
  };
  for (const char* firmware : {"4.90", "5.00"}) {
    Chip_Bench bench("AT93C46", firmware, true);
    for (const auto& op : operations) {
      SCOPED_TRACE(std::string(firmware) + " " + op.Name);
      bench.Forget_Traffic();
      op.Run();
      EXPECT_EQ(bench.Sent, op.Sent);
      EXPECT_EQ(bench.Received, op.Replies);
      EXPECT_EQ(bench.Waits, op.Replies);
      EXPECT_EQ(bench.Programmer.Supply(), op.Run != C93_Power_off);
    }
    EXPECT_EQ(Panel(1), "");
  }
}

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
