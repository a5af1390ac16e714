// The steps of both buses, and supply and lines up and down: what is read back and told. What goes out is in
// wire_test.cpp.
#include "engines/c24_bus.h"
#include "engines/c93_bus.h"
#include "tests/support/chip_bench.h"

namespace wrenbit {
namespace {

using board::Line;

constexpr bool kLow = false, kHigh = true;
void Flag_Set(Chip_Bench&) { LinkError = 1; }
void Silence(Chip_Bench& bench) { bench.Board = nullptr; }

void Acknowledged() { EXPECT_TRUE(C24_ACK()); }
void Refused() { EXPECT_FALSE(C24_ACK()); }
void C93_Data() {
  EXPECT_EQ(C93_DATA(), 0);
  EXPECT_EQ(PortMirror.OutB, 0x50) << "SK stays high";
}

// The transfers write over most of these texts, and not all of them set the flag: nothing else shows them.
TEST(Bus, AStepThatFailsIsToldAndEndsAtItsFirstTest) {
  const struct {
    void (*Before)();
    Board_Fault Meets;
    void (*Run)();
    const char* Text;
    int Error = 0;
    const char* Firmware = "5.00";
  } cases[] = {
      {C24_Power_on, Stuck(Line::Sda, kLow), C24_StartBit, "24Cxx StartBit PortA error1", 1},
      {C24_Power_on, Stuck(Line::Sda, kHigh), C24_StartBit, "24Cxx StartBit PortA error2", 1},
      {C24_Power_on, Stuck(Line::Scl, kHigh), C24_StartBit, "24Cxx StartBit PortA error3", 1},
      {C24_Power_on, Flag_Set, C24_StartBit, "24Cxx StartBit PortA error1", 1},
      {C24_Power_on, Stuck(Line::Scl, kLow), C24_StopBit, "24Cxx StopBit PortA error1", 1},
      {C24_Power_on, Stuck(Line::Sda, kLow), C24_StopBit, "24Cxx StopBit PortA error2", 1},
      {C24_Power_on, Flag_Set, C24_StopBit, "24Cxx StopBit PortA error1", 1},
      {C24_Power_on, Stuck(Line::Sda, kHigh), Refused, "24Cxx ACK error", 1, "4.90"},
      {C24_Power_on, Stuck(Line::Sda, kHigh), Refused, "", 1},
      {C24_Power_on, Silence, Acknowledged, "24Cxx ACK PortA error2", 1, "4.90"},  // Silence reads as low.
      {C24_Power_on, Silence, Acknowledged, "", 1},
      {C93_Power_on, Stuck(Line::Di, kHigh), C93_Data, "93Cxx DATA Read on PortB error"},
      {C93_Power_on, Stuck(Line::Sk, kLow), C93_Data, "93Cxx DATA Read on PortB error"},
      {C93_Power_on, Stuck(Line::Supply, kLow), C93_Data, "93Cxx DATA Read on PortB error"},
      {C93_Power_on, Flag_Set, C93_Data, "93Cxx DATA Read on PortB error", 1},
      {nullptr, Stuck(Line::Sda, kLow), C24_Power_on, "24Cxx Power on PortA error"},
      {nullptr, Stuck(Line::Scl, kLow), C24_Power_on, "24Cxx Power on PortA error"},
      {nullptr, Stuck(Line::Supply, kLow), C24_Power_on, "24Cxx Power on PortB error"},
      {nullptr, Stuck(Line::Sk, kHigh), C24_Power_on, "24Cxx Power on PortB error"},
      {nullptr, Stuck(Line::Do, kHigh), C24_Power_on, "24Cxx Power on PortB error"},
      {nullptr, Stuck(Line::Cs, kHigh), C24_Power_on, "24Cxx Power on PortC error"},
      {C24_Power_on, Stuck(Line::Supply, kLow), C24_Power_off, ""},  // Where it goes.
      {C24_Power_on, Stuck(Line::Sda, kHigh), C24_Power_off, "24Cxx Power on PortA error"},
      {C24_Power_on, Stuck(Line::Supply, kHigh), C24_Power_off, "24Cxx Power on PortA error"},
      {C24_Power_on, Flag_Set, C24_Power_off, "24Cxx Power on PortA error", 1},
      {nullptr, Stuck(Line::Sda, kHigh), C93_Power_on, "93Cxx Power on PortA error"},
      {nullptr, Stuck(Line::Scl, kHigh), C93_Power_on, "93Cxx Power on PortA error"},
      {nullptr, Stuck(Line::Supply, kLow), C93_Power_on, "93Cxx Power on PortB error"},
      {nullptr, Stuck(Line::Di, kHigh), C93_Power_on, "93Cxx Power on PortB error"},
      {nullptr, Stuck(Line::Sk, kHigh), C93_Power_on, "93Cxx Power on PortB error"},
      {nullptr, Stuck(Line::Do, kHigh), C93_Power_on, ""},  // The chip's own line.
      {nullptr, Stuck(Line::Cs, kHigh), C93_Power_on, "93Cxx Power on PortC error"},
      {C93_Power_on, Stuck(Line::Supply, kLow), C93_Power_off, ""},  // Where it goes.
      {C93_Power_on, Stuck(Line::Do, kHigh), C93_Power_off, "93Cxx Power on PortB error"},
      {C93_Power_on, Stuck(Line::Supply, kHigh), C93_Power_off, "93Cxx Power on PortA error"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::to_string(&c - cases) + c.Text);
    const bool two_wire = c.Run == C24_Power_on || c.Before == C24_Power_on;
    Chip_Bench bench(two_wire ? "24C02" : "AT93C46", c.Firmware, true);
    if (c.Before) c.Before();
    EXPECT_EQ(Panel(1), "") << "nothing sticks yet";
    c.Meets(bench);
    c.Run();
    EXPECT_EQ(Panel(1), c.Text);
    EXPECT_EQ(LinkError, c.Error);
  }
}

}  // namespace
}  // namespace wrenbit
