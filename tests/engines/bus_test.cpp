// The steps of both buses, and supply and lines up and down: bytes on the wire, what is read back and told.
#include <cstddef>
#include <string>
#include <utility>

#include "core/state/state.h"
#include "engines/c24_bus.h"
#include "engines/c93_bus.h"
#include "tests/support/chip_bench.h"

namespace wrenbit {
namespace {

using board::Line;

TEST(C24_Bus, BitsBelow5AreSequencesOfPortCommands) {
  const Bytes clock_in{'m', 'w', 'a', 4,   'm', 't', 'a', 0xFD, 'm', 'w', 'a', 2,
                       'm', 'r', 'a', 'm', 'w', 'a', 0,   'm',  't', 'a', 0xF9};
  const std::pair<void (*)(), Bytes> steps[] = {
      {C24_Bit1, {'m', 'w', 'a', 4, 'm', 'w', 'a', 6, 'm', 'w', 'a', 4}},
      {C24_Bit0, {'m', 'w', 'a', 0, 'm', 'w', 'a', 2, 'm', 'w', 'a', 0}},
      {[] { C24_ACK(); }, clock_in},
      {[] { C24_DATA(); }, clock_in}};
  Chip_Bench bench("24C02", "4.99", true);
  C24_Power_on();
  C24_StartBit();
  for (const auto& [run, sent] : steps) {
    bench.Forget_Traffic();
    run();
    EXPECT_EQ(bench.Sent, sent);
  }
}

TEST(C24_Bus, TheAcknowledgeIsJudgedAlikeOnBothRoutesButToldOnOne) {
  const struct {
    const char* Firmware;
    bool Silent;  // No board answers; otherwise there is no chip.
    const char* Text;
  } cases[] = {{"4.90", false, "24Cxx ACK error"},
               {"5.00", false, ""},
               {"4.90", true, "24Cxx ACK PortA error2"},
               {"5.00", true, ""}};
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.Firmware) + c.Text);
    Chip_Bench bench("24C02", c.Firmware, true);
    bench.Programmer.Insert(nullptr);
    C24_Power_on();
    C24_StartBit();
    if (c.Silent) bench.Board = nullptr;
    EXPECT_EQ(C24_ACK(), c.Silent) << "silence reads as low";
    EXPECT_EQ(LinkError, 1);
    EXPECT_EQ(Panel(1), c.Text);
  }
}

void C93_Data() { EXPECT_EQ(C93_DATA(), 0); }

TEST(Bus, WithTheFlagSetEverySequenceEndsAtItsFirstTest) {
  const struct {
    void (*Before)();
    void (*Run)();
    const char* Text;
    std::size_t Sent;
  } cases[] = {{C24_Power_on, C24_StartBit, "24Cxx StartBit PortA error1", 7},
               {C24_Power_on, C24_StopBit, "24Cxx StopBit PortA error1", 7},
               {C24_Power_on, C24_Power_off, "24Cxx Power on PortA error", 6 * 4 + 3},
               {C93_Power_on, C93_Data, "93Cxx DATA Read on PortB error", 7}};
  for (const auto& c : cases) {
    Chip_Bench bench("24C02", "5.00", true);
    c.Before();
    LinkError = 1;
    bench.Forget_Traffic();
    c.Run();
    EXPECT_EQ(Panel(1), c.Text);
    EXPECT_EQ(bench.Sent.size(), c.Sent) << c.Text;
  }
}

// The transfers write over most of these texts, and not all of them set the flag: nothing else shows them.
TEST(Bus, ALineThatDoesNotFollowIsNamedByItsStep) {
  const struct {
    void (*Before)();
    Line Stuck;
    bool High;
    void (*Run)();
    const char* Text;
    int Error = 0;
  } cases[] = {
      {C24_Power_on, Line::Sda, false, C24_StartBit, "24Cxx StartBit PortA error1", 1},
      {C24_Power_on, Line::Sda, true, C24_StartBit, "24Cxx StartBit PortA error2", 1},
      {C24_Power_on, Line::Scl, true, C24_StartBit, "24Cxx StartBit PortA error3", 1},
      {C24_Power_on, Line::Scl, false, C24_StopBit, "24Cxx StopBit PortA error1", 1},
      {C24_Power_on, Line::Sda, false, C24_StopBit, "24Cxx StopBit PortA error2", 1},
      {C93_Power_on, Line::Di, true, C93_Data, "93Cxx DATA Read on PortB error"},
      {C93_Power_on, Line::Sk, false, C93_Data, "93Cxx DATA Read on PortB error"},
      {C93_Power_on, Line::Supply, false, C93_Data, "93Cxx DATA Read on PortB error"},
      {nullptr, Line::Sda, false, C24_Power_on, "24Cxx Power on PortA error"},
      {nullptr, Line::Scl, false, C24_Power_on, "24Cxx Power on PortA error"},
      {nullptr, Line::Supply, false, C24_Power_on, "24Cxx Power on PortB error"},
      {nullptr, Line::Sk, true, C24_Power_on, "24Cxx Power on PortB error"},
      {nullptr, Line::Do, true, C24_Power_on, "24Cxx Power on PortB error"},
      {nullptr, Line::Cs, true, C24_Power_on, "24Cxx Power on PortC error"},
      {C24_Power_on, Line::Supply, false, C24_Power_off, ""},  // Where it goes.
      {C24_Power_on, Line::Sda, true, C24_Power_off, "24Cxx Power on PortA error"},
      {C24_Power_on, Line::Supply, true, C24_Power_off, "24Cxx Power on PortA error"},
      {nullptr, Line::Sda, true, C93_Power_on, "93Cxx Power on PortA error"},
      {nullptr, Line::Scl, true, C93_Power_on, "93Cxx Power on PortA error"},
      {nullptr, Line::Supply, false, C93_Power_on, "93Cxx Power on PortB error"},
      {nullptr, Line::Di, true, C93_Power_on, "93Cxx Power on PortB error"},
      {nullptr, Line::Sk, true, C93_Power_on, "93Cxx Power on PortB error"},
      {nullptr, Line::Do, true, C93_Power_on, ""},  // The chip's own line.
      {nullptr, Line::Cs, true, C93_Power_on, "93Cxx Power on PortC error"},
      {C93_Power_on, Line::Supply, false, C93_Power_off, ""},  // Where it goes.
      {C93_Power_on, Line::Do, true, C93_Power_off, "93Cxx Power on PortB error"},
      {C93_Power_on, Line::Supply, true, C93_Power_off, "93Cxx Power on PortA error"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::to_string(&c - cases) + c.Text);
    const bool two_wire = c.Run == C24_Power_on || c.Before == C24_Power_on;
    Chip_Bench bench(two_wire ? "24C02" : "AT93C46", "5.00", true);
    if (c.Before) c.Before();
    EXPECT_EQ(Panel(1), "") << "nothing sticks yet";
    bench.Programmer.Socket().Stick(c.Stuck, c.High);
    c.Run();
    EXPECT_EQ(Panel(1), c.Text);
    EXPECT_EQ(LinkError, c.Error);
  }
}

}  // namespace
}  // namespace wrenbit
