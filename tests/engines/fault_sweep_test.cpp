// Every transfer, with every fault, at every place where it can strike: n = 1, 2, 3 ... until a run meets no
// fault any more. What must hold in each of these runs is the list in Violation.
#include <algorithm>
#include <iostream>

#include "board/faulty_board.h"
#include "editor/hex_grid.h"
#include "image/hex_text.h"
#include "link/identity.h"
#include "tests/support/chip_bench.h"

namespace wrenbit {
namespace {

// The device is smaller than its chip and the block smaller than the device: what lies behind either must
// stay as it is.
constexpr int kMemSize = 6;
constexpr std::size_t kDevice = 64, kBlock = 16;
constexpr std::size_t kByteAt = 37;

// Answers that a dead board may be waited for, a second each, by transfer, firmware and AddressMode:
// three-wire, short and long form. With the flag set, power on and off, start and stop ask for one each; a
// read of a block ends at the byte in hand, a write of one at the page (24Cxx) or the byte (93Cxx), the byte
// transfers at their end.
constexpr std::size_t kWaits[][2][3] = {{{10, 16, 17}, {5, 11, 13}},
                                        {{2, 14, 23}, {5, 24, 42}},
                                        {{10, 16, 17}, {10, 16, 17}},
                                        {{2, 7, 8}, {2, 7, 8}}};

struct Case {
  const char* Chip;
  Command Transfer;
  const char* Firmware;
  const std::size_t* Waits;  // By AddressMode.
};
void PrintTo(const Case& c, std::ostream* out) {
  *out << c.Chip << "_" << c.Firmware << "_" << c.Transfer.Name;
}

std::vector<Case> All_Cases() {
  std::vector<Case> cases;
  for (const char* chip : {"24C02", "24C32", "AT93C46", "AT93C86"})  // Pages above and below the block.
    for (std::size_t i = 0; i < std::size(kCommands); ++i)
      for (const bool from_5 : {false, true})
        cases.push_back({chip, kCommands[i], from_5 ? "5.00" : "4.90", kWaits[i][from_5]});
  return cases;
}

enum class Ends { Noticed, Right_Or_Noticed, Right, Perhaps_Wrong };

struct Fault {
  std::string Name;
  std::uint64_t board::Faults::*Place = nullptr;  // None: the system refuses writes.
  board::Faults With = {};                        // What else there is to it.
  Ends As = Ends::Noticed;
  bool Once = true;           // Nobody looks at the answer to the first query: there it is no fault.
  std::uint64_t Refused = 0;  // So many writes in a row.
  std::size_t Partly = 0;     // Bytes of them that go out.
  enum { Hears, Deaf, Out_Of_Reach } Board = Hears;  // When the power-off comes.
  bool Pause = false;  // A tenth of a second, some answers later, in which surplus ones are swallowed.
};

std::vector<Fault> All_Faults() {
  using board::Faults;
  std::vector<Fault> all{
      {.Name = "reply dropped", .Place = &Faults::DropReply},
      {.Name = "reply doubled", .Place = &Faults::DoubleReply, .As = Ends::Right_Or_Noticed},
      {.Name = "reply doubled, then a pause",
       .Place = &Faults::DoubleReply,
       .As = Ends::Right_Or_Noticed,
       .Pause = true},
      {.Name = "reply 1.2 s late", .Place = &Faults::LateReply, .With = {.LateBy = 1.2}, .Once = false},
      {.Name = "reply 0.4 s late", .Place = &Faults::LateReply, .With = {.LateBy = 0.4}, .As = Ends::Right},
      {.Name = "mute", .Place = &Faults::MuteFrom, .Once = false},
      {.Name = "dead", .Place = &Faults::SilentFrom, .Once = false, .Board = Fault::Deaf},
      {.Name = "port gone", .Place = &Faults::GoneAt, .Once = false, .Board = Fault::Out_Of_Reach},
      {.Name = "write refused", .Refused = 1},
      {.Name = "write refused half-way", .Refused = 1, .Partly = 2},
      {.Name = "three writes refused", .Once = false, .Refused = 3},
      {.Name = "all writes refused", .Once = false, .Refused = 1'000'000, .Board = Fault::Out_Of_Reach},
  };
  for (int bit = 0; bit < 8; ++bit)
    all.push_back({.Name = "bit " + std::to_string(bit) + " turned",
                   .Place = &Faults::CorruptReply,
                   .With = {.CorruptMask = static_cast<std::uint8_t>(1 << bit)},
                   .As = Ends::Perhaps_Wrong});
  return all;
}

bool Grid_Shows(const Bytes& image) {
  for (std::size_t at = 0; at < image.size(); ++at)
    if (frmMain.MSFGrid1.Cell(static_cast<int>(at / 16) + 1, static_cast<int>(at % 16) + 1) !=
        "0x" + Hex_Text(image[at], 2))
      return false;
  return true;
}

// One run of a transfer. Image, grid, edit panel and chip are filled, each byte other than its neighbours and
// than its counterpart.
class One_Run {
 public:
  explicit One_Run(const Case& of) : C(of), Bench(C.Chip, C.Firmware) {
    Select_Device(DeviceFamily, kMemSize, PageSize, AddressMode, AddressBits);
    frmMain.CmbSize.Set_ListIndex(0);
    Bench.Fill_Chip(1);
    Bench.Fill_Image(2);
    Grid_Refill();
    Select_Address(kByteAt);
    frmMain.MSFGrid1.Click();
    image = wanted_image = ImageBuffer;
    chip = wanted_chip = Bench.Chip_Contents();
    shown = frmMain.Text_modify_hex.Text();
    if (C.Transfer.Block && !C.Transfer.Writes) wanted_image.assign(kDevice, 0xFF);
    for (std::size_t at = 0; at < kDevice; ++at)
      if (Asked(at)) C.Transfer.Writes ? wanted_chip[at] = image[at] : wanted_image[at] = chip[at];
    Bench.Board = &Faulty;
  }

  void Go(const Fault& fault, std::uint64_t n) {
    board::Faults faults = fault.With;
    if (fault.Place) {
      faults.*fault.Place = n;
      Faulty.Arm(faults);
    } else {
      Bench.Takes = [&fault, n](std::size_t write) { return write < n || write >= n + fault.Refused; };
      Bench.Partly = fault.Partly;
    }
    Bench.On_Yield = [this, &fault, yields = 0]() mutable {
      Flashed = Flashed || Panel(1) == "93Cxx DATA Read on PortB error";
      if (fault.Pause && Faulty.Met() && ++yields == 4) Bench.Pass(0.1);
    };
    C.Transfer.Run();
  }

  bool Said_To_Be_Done() const { return C.Transfer.Block ? Panel(1).ends_with("sec)") : Panel(1) == "Finsh"; }
  // Those at the start of the image that are the chip's.
  std::size_t Good_Bytes() const {
    std::size_t at = 0;
    while (at < kBlock && ImageBuffer[at] == chip[at]) ++at;
    return at;
  }
  bool Data_Right() const { return ImageBuffer == wanted_image && Bench.Chip_Contents() == wanted_chip; }

  // What of all that must hold does not, in words; empty when everything does.
  std::string Violation(const Fault& fault) const {
    // The way back, whatever happened.
    if (std::string held = Bench.Still_Held(); !held.empty()) return held;
    if (frmMain.MousePointer() != Pointer::Default) return "the hourglass is up";

    // Time.
    if (Bench.LongestGap > 1.001) return "a wait of " + std::to_string(Bench.LongestGap) + " s";
    const bool answers_may_come = fault.Refused == 0 && fault.Board != Fault::Out_Of_Reach;
    const std::size_t most = !answers_may_come ? 0 : On_The_Bus() ? C.Waits[AddressMode] : 1;
    if (Bench.SilentSeconds > most) return std::to_string(Bench.SilentSeconds) + " waits for an answer";

    // The socket.
    if (On_The_Bus() && fault.Board != Fault::Out_Of_Reach && !Ended_With_Power_Off(!fault.Refused))
      return "the last commands are no power-off";
    if (fault.Board == Fault::Hears) {
      if (Bench.Programmer.Supply()) return "the socket is powered";
      const auto pins = [&](char port) { return Bench.Programmer.Direction(port); };
      if ((pins('a') & pins('b') & (pins('c') | 0x80)) != 0xFF) return "pins are driven";
    }

    // What is told. A window that is about to go tells nothing.
    const bool done = Said_To_Be_Done();
    if (!Bench.Ended) {
      if ((LinkError == 0) != done) return "an error and an end, or neither: " + Panel(1);
      const bool out_of_step = Panel(1) == "プログラマの応答がずれています。";
      if (!done && !out_of_step && Panel(1) != Error_Text())
        return "panel 1 says " + Panel(1) + ", not " + Error_Text();
      if (On_The_Bus() && !Faulty.Gone() ? !Panel(2).starts_with("COM1 : TOLVEX")
                                         : Panel(2) != "COM1 : ライター未接続")
        return "panel 2 says " + Panel(2);
    }

    // What is where.
    if (frmMain.CmbSize.ListIndex() != 0) return "the block has another size";
    if (ImageBuffer.size() != kDevice) return "the image has another size";
    if (!Chip_Untouched_Elsewhere()) return "a cell outside the block has changed";
    const bool read = !C.Transfer.Writes;
    if (done && !Data_Right() && !(read && fault.As == Ends::Perhaps_Wrong))
      return "wrong data, said to be done";
    for (std::size_t at = 0; at < kDevice; ++at)
      if (done && !Asked(at) && ImageBuffer[at] != wanted_image[at])
        return "a byte not asked for has changed";
    if ((!read || (!done && !C.Transfer.Block)) && ImageBuffer != image) return "the image has changed";
    if (read && C.Transfer.Block && !done && !Read_So_Far(fault)) return "the image is no part of the chip";
    if (Bench.Ended) return {};
    if (!Grid_Shows(read && done ? ImageBuffer : image)) return "the grid shows something else";
    const bool grey = !frmMain.MSFGrid1.OutOfDate().empty() && !frmMain.Text_modify_hex.OutOfDate().empty() &&
                      !frmMain.LblCheckSUM.OutOfDate().empty();
    if (grey != (!done && read && C.Transfer.Block)) return "the grid does not tell that it is not the image";
    if (!done && read && frmMain.Text_modify_hex.Text() != shown) return "the edit panel has changed";
    return {};
  }

  const Case& C;
  Chip_Bench Bench;
  board::Faulty_Board Faulty{Bench.Programmer};
  bool Flashed = false;  // The one message of the three-wire bus that a good end replaces.

 private:
  bool Asked(std::size_t at) const { return C.Transfer.Block ? at < kBlock : at == kByteAt; }
  bool On_The_Bus() const { return !Bench.Commands.empty() && Bench.Commands.back().front() == 'm'; }

  // In a three-wire transfer the chip is let go of before.
  bool Ended_With_Power_Off(bool deselected) const {
    static const std::vector<Bytes> k_off{{'m', 'w', 'a', 0x00}, {'m', 'w', 'b', 0x00},
                                          {'m', 'w', 'c', 0x80}, {'m', 't', 'a', 0xFF},
                                          {'m', 't', 'b', 0xFF}, {'m', 't', 'c', 0x7F}};
    auto last = Bench.Commands.rbegin();
    while (last != Bench.Commands.rend() && last->size() == 3) ++last;  // Its read-backs.
    if (!std::equal(k_off.rbegin(), k_off.rend(), last)) return false;
    const bool asked = deselected && DeviceFamily == 3;
    return !asked || *(last + std::ssize(k_off)) == Bytes{'m', 'w', 'c', 0x80};
  }

  // The last read-back of the power-off is the one that failed.
  std::string Error_Text() const {
    if (!On_The_Bus()) {
      const bool answered = Bench.Received >= 2 * kIdentityLength;  // To both queries.
      const char* reason = Faulty.Gone() ? "ポートが切断されました。" : "";
      return std::string("プログラマ接続確認エラー。") + (answered ? "" : "【1】") + reason;
    }
    const char port = static_cast<char>(Bench.Commands.back()[2] - 'a' + 'A');
    return (DeviceFamily == 2 ? "24Cxx" : "93Cxx") + std::string(" Power on Port") + port + " error" +
           (Faulty.Gone() ? " ポートが切断されました。" : "");
  }

  // A cell in the block is what it was or what it shall be.
  bool Chip_Untouched_Elsewhere() const {
    const auto cells = Bench.Cells->Cells();
    for (std::size_t at = 0; at < cells.size(); ++at)
      if (cells[at] != chip[at] && cells[at] != wanted_chip[at]) return false;
    return true;
  }

  // Up to the byte in hand, which may be anything, and 0xFF behind it. What came before is the chip's, unless
  // the fault spoils bytes unseen.
  bool Read_So_Far(const Fault& fault) const {
    std::size_t at = fault.As == Ends::Noticed ? Good_Bytes() : kBlock;
    while (++at < kDevice)
      if (ImageBuffer[at] != 0xFF) return false;
    return true;
  }

  Bytes image, chip, wanted_image, wanted_chip;
  std::string shown;
};

struct Fault_Sweep : testing::TestWithParam<Case> {};

TEST_P(Fault_Sweep, EveryFaultAtEveryPlace) {
  std::size_t runs = 0, untold = 0, flashed = 0;
  const bool reads_block = GetParam().Transfer.Block && !GetParam().Transfer.Writes;
  for (const Fault& fault : All_Faults()) {
    bool met = true;
    std::size_t farthest = 0;
    for (std::uint64_t n = 1; met; ++n, ++runs) {
      One_Run run(GetParam());
      run.Go(fault, n);
      met = fault.Refused ? run.Bench.Commands.size() >= n : run.Faulty.Met();
      std::string violation = run.Violation(fault);
      const bool no_fault = !met || (fault.Once && n == 1);
      if (violation.empty() && LinkError == 0 && fault.As == Ends::Noticed && !no_fault)
        violation = "nobody noticed";
      if (violation.empty() && LinkError != 0 && (no_fault || fault.As == Ends::Right))
        violation = "an error where there is none";
      ASSERT_EQ(violation, "") << fault.Name << ", n = " << n;
      if (LinkError == 0 && !run.Data_Right()) ++(run.Flashed ? flashed : untold);
      if (LinkError != 0) farthest = std::max(farthest, run.Good_Bytes());
    }
    EXPECT_TRUE(!reads_block || fault.As != Ends::Noticed || farthest >= kBlock - 1)
        << fault.Name << ": of what was read before, at most " << farthest << " bytes were kept";
  }
  // For whoever adds them up.
  std::cout << "sweep: " << testing::PrintToString(GetParam()) << " runs " << runs << " untold " << untold
            << " flashed " << flashed << '\n';
}

TEST_P(Fault_Sweep, AtEveryYieldTheWindowCanBeClosedAndNothingElseBeReached) {
  static const Fault k_none{.Name = "window closed", .As = Ends::Right_Or_Noticed};
  // What has no command of its own may stay as it is.
  const auto harmless = [](Control* control) {
    const auto* menu = dynamic_cast<Menu*>(control);
    return dynamic_cast<Label*>(control) || dynamic_cast<Line*>(control) ||
           dynamic_cast<StatusBar*>(control) || (menu && !menu->Click) ||
           (dynamic_cast<Frame*>(control) && control != &frmMain.Frame1);
  };
  std::size_t closings = 0;
  for (bool met = true; met; closings += met) {
    One_Run run(GetParam());
    std::size_t yields = 0;
    run.Bench.On_Yield = [&] {
      if (++yields != closings + 1) return;
      for (Control* control : frmMain.Controls()) ASSERT_TRUE(harmless(control) || !control->Reachable());
      frmMain.Close();
      ASSERT_FALSE(run.Bench.Ended);
    };
    GetParam().Transfer.Run();
    met = yields > closings;
    ASSERT_EQ(run.Bench.Ended, met);
    ASSERT_EQ(LinkError, met ? 1 : 0) << "it ends at the next look";
    ASSERT_EQ(run.Violation(k_none), "") << "yield " << closings + 1;
    ASSERT_EQ(run.Bench.Stored.contains("MainLeft"), met);
  }
  EXPECT_GT(closings, 40U);
  std::cout << "sweep: " << testing::PrintToString(GetParam()) << " closings " << closings << '\n';
}

INSTANTIATE_TEST_SUITE_P(All, Fault_Sweep, testing::ValuesIn(All_Cases()), Case_Name<Case>);

}  // namespace
}  // namespace wrenbit
