// Supply and lines up and down, for both families: what is read back, told, and waited for.
#include "c24_bus.h"
#include "c93_bus.h"
#include "chip_bench.h"

namespace wrenbit {
namespace {

struct Family {
  const char* Chip;
  const char* Name;
  void (*On)();
  void (*Off)();
};
const Family k24{"24C02", "24Cxx", C24_Power_on, C24_Power_off};
const Family k93{"AT93C46", "93Cxx", C93_Power_on, C93_Power_off};

// A mismatch here sets no flag, and the transfers write over its text: nothing else would show it.
TEST(Power_Sequence, SaysNothingWhenAllComesAndGoesAsItShould) {
  for (const Family& family : {k24, k93}) {
    Chip_Bench bench(family.Chip, "5.00", true);
    family.On();
    EXPECT_TRUE(bench.Programmer.Supply());
    family.Off();
    EXPECT_FALSE(bench.Programmer.Supply());
    EXPECT_EQ(Panel(1), "");
    EXPECT_EQ(bench.Received, 6U) << "all three ports were read, both times";
  }
}

TEST(Power_Sequence, NamesThePortOfALineThatDoesNotFollowAndSetsNoFlag) {
  using board::Line;
  const struct {
    const Family& Of;
    bool On;
    Line Stuck;
    bool High;
    const char* Text;  // Behind the family's name.
  } cases[] = {
      {k24, true, Line::kSda, false, " Power on PortA error"},
      {k24, true, Line::kScl, false, " Power on PortA error"},
      {k24, true, Line::kSupply, false, " Power on PortB error"},
      {k24, true, Line::kSk, true, " Power on PortB error"},
      {k24, true, Line::kDo, true, " Power on PortB error"},
      {k24, true, Line::kCs, true, " Power on PortC error"},
      {k24, false, Line::kSda, true, " Power on PortA error"},
      {k24, false, Line::kSupply, true, " Power on PortA error"},
      {k93, true, Line::kSda, true, " Power on PortA error"},
      {k93, true, Line::kScl, true, " Power on PortA error"},
      {k93, true, Line::kSupply, false, " Power on PortB error"},
      {k93, true, Line::kDi, true, " Power on PortB error"},
      {k93, true, Line::kSk, true, " Power on PortB error"},
      {k93, true, Line::kDo, true, ""},  // The chip's own line.
      {k93, true, Line::kCs, true, " Power on PortC error"},
      {k93, false, Line::kDo, true, " Power on PortB error"},
      {k93, false, Line::kSupply, true, " Power on PortA error"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.Of.Name) + (c.On ? " on, " : " off, ") +
                 std::to_string(static_cast<int>(c.Stuck)));
    Chip_Bench bench(c.Of.Chip, "5.00", true);
    if (!c.On) c.Of.On();
    bench.Programmer.Socket().Stick(c.Stuck, c.High);
    c.On ? c.Of.On() : c.Of.Off();
    EXPECT_EQ(Panel(1), *c.Text ? std::string(c.Of.Name) + c.Text : "");
    EXPECT_EQ(LinkError, 0);
  }
}

}  // namespace
}  // namespace wrenbit
