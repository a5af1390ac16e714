// The two-wire bus operations: bytes on the wire, waits, read-back tests and their texts.
#include "c24_bus.h"

#include "chip_bench.h"

namespace wrenbit {
namespace {

void Acknowledge() { C24_ACK(); }
void Data() { C24_DATA(); }

TEST(C24_Bus, EachOperationCostsOnTheWireWhatItsTableSays) {
  const struct {
    const char* Name;
    void (*Run)();
    std::size_t OutBelow5, OutFrom5, Replies;
  } operations[] = {{"start", C24_StartBit, 21, 21, 3}, {"bit 1", C24_Bit1, 12, 1, 0},
                    {"bit 0", C24_Bit0, 12, 1, 0},      {"acknowledge", Acknowledge, 23, 1, 1},
                    {"data", Data, 23, 1, 1},           {"stop", C24_StopBit, 14, 14, 2}};
  for (const char* firmware : {"4.90", "5.00"}) {
    Chip_Bench bench("24C02", firmware, true);
    C24_Power_on();
    for (const auto& op : operations) {
      SCOPED_TRACE(std::string(firmware) + " " + op.Name);
      bench.Forget_Traffic();
      LinkError = 0;  // The chip need not have acknowledged.
      op.Run();
      EXPECT_EQ(bench.Sent.size(), ProgrammerVersion < 5 ? op.OutBelow5 : op.OutFrom5);
      EXPECT_EQ(bench.Received, op.Replies);
      EXPECT_EQ(bench.Waits, op.Replies);
    }
  }
}

Bytes Sent_By(Chip_Bench& bench, void (*run)()) {
  bench.Forget_Traffic();
  run();
  return bench.Sent;
}

TEST(C24_Bus, BitsBelow5AreSequencesOfPortCommands) {
  Chip_Bench bench("24C02", "4.99", true);
  C24_Power_on();
  C24_StartBit();
  EXPECT_EQ(Sent_By(bench, C24_Bit1), (Bytes{'m', 'w', 'a', 4, 'm', 'w', 'a', 6, 'm', 'w', 'a', 4}));
  EXPECT_EQ(Sent_By(bench, C24_Bit0), (Bytes{'m', 'w', 'a', 0, 'm', 'w', 'a', 2, 'm', 'w', 'a', 0}));
  const Bytes clock_in{'m', 'w', 'a', 4,   'm', 't', 'a', 0xFD, 'm', 'w', 'a', 2,
                       'm', 'r', 'a', 'm', 'w', 'a', 0,   'm',  't', 'a', 0xF9};
  EXPECT_EQ(Sent_By(bench, Acknowledge), clock_in);
  EXPECT_EQ(Sent_By(bench, Data), clock_in);
}

TEST(C24_Bus, ALineThatDoesNotFollowIsNamedByItsStep) {
  using board::Line;
  const struct {
    const char* Name;
    Line Stuck;
    bool High;
    void (*Run)();
    const char* Text;
  } cases[] = {
      {"start, SDA low", Line::kSda, false, C24_StartBit, "24Cxx StartBit PortA error1"},
      {"start, SDA high", Line::kSda, true, C24_StartBit, "24Cxx StartBit PortA error2"},
      {"start, SCL high", Line::kScl, true, C24_StartBit, "24Cxx StartBit PortA error3"},
      {"stop, SCL low", Line::kScl, false, C24_StopBit, "24Cxx StopBit PortA error1"},
      {"stop, SDA low", Line::kSda, false, C24_StopBit, "24Cxx StopBit PortA error2"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.Name);
    Chip_Bench bench("24C02", "5.00", true);
    C24_Power_on();
    bench.Programmer.Socket().Stick(c.Stuck, c.High);
    c.Run();
    EXPECT_EQ(Panel(1), c.Text);
    EXPECT_EQ(LinkError, 1);
  }
}

TEST(C24_Bus, WithTheFlagSetEverySequenceFailsAtItsFirstTest) {
  const struct {
    const char* Name;
    void (*Run)();
    const char* Text;
    Bytes LastSent;
  } cases[] = {
      {"start leaves both lines high",
       C24_StartBit,
       "24Cxx StartBit PortA error1",
       {'m', 'w', 'a', 6, 'm', 'r', 'a'}},
      {"stop never lets SDA go",
       C24_StopBit,
       "24Cxx StopBit PortA error1",
       {'m', 'w', 'a', 2, 'm', 'r', 'a'}},
      {"power off still drives all",
       C24_Power_off,
       "24Cxx Power on PortA error",
       {'m', 't', 'c', 0x7F, 'm', 'r', 'a'}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.Name);
    Chip_Bench bench("24C02", "5.00", true);
    C24_Power_on();
    LinkError = 1;
    const Bytes sent = Sent_By(bench, c.Run);
    EXPECT_EQ(Panel(1), c.Text);
    EXPECT_EQ(Bytes(sent.end() - static_cast<std::ptrdiff_t>(c.LastSent.size()), sent.end()), c.LastSent);
    EXPECT_EQ(LinkError, 1);
  }
}

TEST(C24_Bus, TheAcknowledgeIsJudgedAlikeOnBothRoutesButToldOnOne) {
  for (const auto& [firmware, text] : {std::pair{"4.90", "24Cxx ACK error"}, std::pair{"5.00", ""}}) {
    SCOPED_TRACE(firmware);
    Chip_Bench bench("24C02", firmware, true);
    bench.Programmer.Insert(nullptr);
    C24_Power_on();
    C24_StartBit();
    EXPECT_FALSE(C24_ACK());
    EXPECT_EQ(LinkError, 1);
    EXPECT_EQ(Panel(1), text);
  }
}

TEST(C24_Bus, ATimeOutInTheAcknowledgeGivesTrueWithTheFlagSet) {
  for (const auto& [firmware, text] : {std::pair{"4.90", "24Cxx ACK PortA error2"}, std::pair{"5.00", ""}}) {
    SCOPED_TRACE(firmware);
    Chip_Bench bench("24C02", firmware, true);
    bench.Board = nullptr;
    EXPECT_TRUE(C24_ACK());
    EXPECT_EQ(LinkError, 1);
    EXPECT_EQ(Panel(1), text);
  }
}

}  // namespace
}  // namespace wrenbit
