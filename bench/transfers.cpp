#include <QString>
#include <QStringList>
#include <algorithm>
#include <cstdint>
#include <ctime>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/board.h"
#include "bench/choice.h"
#include "bench/report.h"
#include "bench/subjects.h"
#include "core/state/state.h"
#include "shell/controls/frm_main.h"

namespace bench {
namespace {

using wrenbit::frmMain;
using wrenbit::ImageBuffer;

struct Case {
  const char* Chip;
  const char* Firmware = "5.00";
  bool Long = false;  // Takes half a minute or more at 9600 baud.
};
constexpr Case kWireCases[] = {{"24C02"}, {"AT93C46"}, {"24C64", "5.00", true}, {"24C02", "4.90", true}};

struct Command {
  const wrenbit::CommandButton& Button;
  const char* Name;
};
const Command kCommands[] = {{frmMain.Cmd_READ_all, ", block read"},
                             {frmMain.Cmd_WRITE_all, ", block write"}};

// Of one piece of the work: what Google Benchmark tells of the processor would take in the boards' starts
// too.
struct Spent {
  double Wall = 0;       // Seconds.
  double Processor = 0;  // Seconds of this process, all its threads.
};

Spent Spend(const std::function<void()>& work) {
  const std::clock_t before = std::clock();
  const double wall = Seconds(work);
  return {wall, static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC};
}

Spent Press(const wrenbit::CommandButton& button) {
  const Spent spent = Spend([&] { wrenbit::Fire(button.Click); });
  Check_Window();
  if (wrenbit::LinkError) throw std::runtime_error(button.Caption() + ": " + frmMain.sbStatusBar.Panel(1));
  return spent;
}

// Of a transfer.
struct Passed {
  Spent Took;
  Traffic Bytes;
};

// All that is measured with boards. Between the parts only the port stays.
class Transfers {
 public:
  Transfers(Report& table, const QString& file, bool short_run)
      : report(table), chip_file(file), brief(short_run) {}

  void Measure_Unpaced();
  void Measure_Silence();
  void Measure_Wire();
  void Measure_Adapters();

 private:
  // The virtual board of the case and the options. Its chip has a pattern in it, and the size of the image.
  Board_Process Start_Board(const Case& what, const QStringList& options) const;
  // Presses the button with the chip chosen and a fresh board behind the port. The image begins as something
  // else than the chip, so that only a transfer makes them equal; throws when they are not.
  Passed Transfer(const wrenbit::CommandButton& button, const Case& what, const QStringList& options) const;
  // Seconds that a program without pause, window or protocol takes to say what the last transfer said, to the
  // same board. Throws when something else passes.
  double Said_Again(const Traffic& passed, const Case& what, const QStringList& options) const;

  Report& report;
  const QString chip_file;
  const bool brief;
  Recording_Port port;
};

Board_Process Transfers::Start_Board(const Case& what, const QStringList& options) const {
  const std::vector<std::uint8_t> bytes = Pattern(ImageBuffer.size());
  Write_File(chip_file.toStdString(), std::string(bytes.begin(), bytes.end()));
  return Board_Process(QStringList{"--chip", what.Chip, "--firmware", what.Firmware, "--image", chip_file} +
                       options);
}

Passed Transfers::Transfer(const wrenbit::CommandButton& button, const Case& what,
                           const QStringList& options) const {
  Choose(what.Chip);
  std::ranges::reverse_copy(Pattern(ImageBuffer.size()), ImageBuffer.begin());
  Board_Process board = Start_Board(what, options);
  const Spent took = Press(button);
  const Traffic bytes = board.End();
  if (ImageBuffer != File_Bytes(chip_file.toStdString()))
    throw std::runtime_error("image and chip differ behind " + button.Caption());
  return {took, bytes};
}

double Transfers::Said_Again(const Traffic& passed, const Case& what, const QStringList& options) const {
  Board_Process board = Start_Board(what, options);
  const double seconds = Bare_Talk(board.Device(), port.Said());
  if (board.End() != passed) throw std::runtime_error("what was said again was not the same");
  return seconds;
}

void Transfers::Measure_Unpaced() {
  report.Begin("No wire: how fast the program itself is");
  const Case what{brief ? "24C64" : "AT24C1024"};
  const auto bare_round_trips = [&] {
    Board_Process board = Start_Board(what, {});
    return Bare_Talk(board.Device(), Conversation(ImageBuffer.size(), {{'7'}, 1}));
  };
  // The small chip's handshake would weigh as much as its bytes.
  const std::optional<double> goal = brief ? std::nullopt : std::optional(1.3);
  report.Measure({.Subject = std::string(what.Chip) + ", block read",
                  .Work = [&] { return Transfer(frmMain.Cmd_READ_all, what, {}).Took.Wall; },
                  .Beside = "as many bare round trips by poll",
                  .Reference = bare_round_trips,
                  .Goal = goal},
                 3);
}

void Transfers::Measure_Silence() {
  report.Begin("A board that is silent");
  Choose("24C02");
  Board_Process board({"--chip", "24C02"});
  Press(frmMain.Cmd_READ_single);  // The first one would also tidy up what a larger chip left on the heap.
  board.Freeze();
  const Spent spent = Spend([] { wrenbit::Fire(frmMain.Cmd_READ_single.Click); });
  if (!wrenbit::LinkError || spent.Wall < 1) throw std::runtime_error("the silent board was not waited for");
  report.Measure({.Subject = "processor while it is waited for",
                  .Work = [&] { return spent.Processor; },
                  .Beside = "the time that it took",
                  .Reference = [&] { return spent.Wall; },
                  .Goal = 0.01});
}

void Transfers::Measure_Wire() {
  report.Begin("The wire: block transfers of whole chips, the board paced to 9600 baud");
  const QStringList paced{"--pace"};
  for (const Case& what : kWireCases) {
    if (brief && what.Long) continue;
    for (const Command& command : kCommands) {
      Passed passed;
      const auto transfer = [&] { return (passed = Transfer(command.Button, what, paced)).Took.Wall; };
      const auto wire_time = [&] { return passed.Bytes.Wire_Time(); };
      const char* const beside = "the wire time of its bytes";
      report.Measure({.Subject = std::string(what.Chip) + " at " + what.Firmware + command.Name,
                      .Work = transfer,
                      .Beside = beside,
                      .Reference = wire_time,
                      .Goal = 1.02});
      report.Measure({.Subject = "  the same said by bare poll",
                      .Work = [&] { return Said_Again(passed.Bytes, what, paced); },
                      .Beside = beside,
                      .Reference = wire_time});
      report.Measure({.Subject = "  processor during it",
                      .Work = [&] { return passed.Took.Processor; },
                      .Beside = "the time that it took",
                      .Reference = [&] { return passed.Took.Wall; },
                      .Goal = 0.03});
    }
  }
}

void Transfers::Measure_Adapters() {
  report.Begin("USB adapters: the same, with the replies held back for their latency timers");
  const Case what{"24C02"};
  for (const char* latency : {"16", "1"}) {
    if (brief && latency == std::string("16")) continue;
    const QStringList options{"--pace", "--latency", latency};
    for (const Command& command : kCommands) {
      Passed passed;
      const auto transfer = [&] { return (passed = Transfer(command.Button, what, options)).Took.Wall; };
      report.Measure({.Subject = std::string(what.Chip) + command.Name + ", " + latency + " ms",
                      .Work = transfer,
                      .Beside = "the same said by bare poll",
                      .Reference = [&] { return Said_Again(passed.Bytes, what, options); }});
    }
  }
}

}  // namespace

void Measure_Transfers(Report& report, const QDir& scratch, bool brief) {
  Transfers transfers(report, scratch.filePath("chip.bin"), brief);
  transfers.Measure_Unpaced();
  transfers.Measure_Silence();
  transfers.Measure_Wire();
  transfers.Measure_Adapters();
}

}  // namespace bench
