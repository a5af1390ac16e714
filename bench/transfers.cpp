#include "bench/transfers.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/bare_port.h"
#include "bench/board_process.h"
#include "bench/choice.h"
#include "bench/measure.h"
#include "bench/median.h"
#include "bench/plain_file.h"
#include "bench/recording_port.h"
#include "bench/temporary_folder.h"
#include "core/state/state.h"
#include "shell/controls/frm_main.h"

namespace bench {
namespace {

using wrenbit::frmMain;
using wrenbit::ImageBuffer;

struct Case {
  const char* Chip;
  const char* Firmware;
  bool Long;  // Takes half a minute or more at 9600 baud.
};
constexpr const char* kWireTime = "the wire time of its bytes";
constexpr Case kWireCases[] = {
    {"24C02", "5.00", false}, {"AT93C46", "5.00", false}, {"24C64", "5.00", true}, {"24C02", "4.90", true}};

Spent Press(const wrenbit::CommandButton& button) {
  const Spent spent = Spend([&] { wrenbit::Fire(button.Click); });
  Check_Window();
  if (wrenbit::LinkError) throw std::runtime_error(button.Caption() + ": " + frmMain.sbStatusBar.Panel(1));
  return spent;
}

// The board's chip, as a file with a pattern in it.
class Chip_File {
 public:
  explicit Chip_File(std::size_t size) {
    const std::vector<std::uint8_t> bytes = Pattern(size);
    Plain_Write(Path().toStdString(), {reinterpret_cast<const char*>(bytes.data()), size}, Durable::No);
  }
  QString Path() const { return folder.File("chip.bin"); }
  std::vector<std::uint8_t> Bytes() const { return Plain_Bytes(Path().toStdString()); }

 private:
  Temporary_Folder folder;
};

// The virtual board with what the case and the options say.
Board_Process Start_Board(const Case& what, const Chip_File& chip, const QStringList& options) {
  return Board_Process(QStringList{"--chip", what.Chip, "--firmware", what.Firmware, "--image", chip.Path()} +
                       options);
}

struct Run {
  Spent Took;
  Traffic Passed;
};

// Presses the button with the chip chosen and a fresh board behind the port. The image begins as something
// else than the chip, so that only a transfer makes them equal; throws when they are not.
Run Transfer(const wrenbit::CommandButton& button, const Case& what, const QStringList& options) {
  Choose(what.Chip);
  const Chip_File chip(ImageBuffer.size());
  std::ranges::reverse_copy(Pattern(ImageBuffer.size()), ImageBuffer.begin());
  Board_Process board = Start_Board(what, chip, options);
  Run run;
  run.Took = Press(button);
  run.Passed = board.End();
  if (ImageBuffer != chip.Bytes())
    throw std::runtime_error("image and chip differ behind " + button.Caption());
  return run;
}

// Seconds that a program without pause, window or protocol takes to say the same to the same board.
double Said_Again(const Conversation& said, const Traffic& passed, const Case& what,
                  const QStringList& options) {
  const Chip_File chip(ImageBuffer.size());
  Board_Process board = Start_Board(what, chip, options);
  const double seconds = Bare_Talk(board.Device(), said);
  if (board.End() != passed) throw std::runtime_error("what was said again was not the same");
  return seconds;
}

struct Command {
  const wrenbit::CommandButton& Button;
  const char* Name;
};
const Command kRead{frmMain.Cmd_READ_all, ", block read"};
const Command kWrite{frmMain.Cmd_WRITE_all, ", block write"};

void Measure_Wire(Report& report, const Recording_Port& port, bool brief) {
  report.Begin("The wire: block transfers of whole chips, the board paced to 9600 baud");
  const QStringList paced{"--pace"};
  for (const Case& what : kWireCases) {
    if (brief && what.Long) continue;
    const std::string chip = std::string(what.Chip) + " at " + what.Firmware;
    for (const Command& command : {kRead, kWrite}) {
      const auto [took, passed] = Transfer(command.Button, what, paced);
      report.Add({chip + command.Name, took.Wall, kWireTime, passed.Wire_Time(), "s", 1.02});
      report.Add({"  the same said by bare poll", Said_Again(port.Said(), passed, what, paced), kWireTime,
                  passed.Wire_Time(), "s"});
      report.Add({"  processor during it", took.Processor, "the time that it took", took.Wall, "s", 0.03});
    }
  }
}

void Measure_Adapters(Report& report, const Recording_Port& port, bool brief) {
  report.Begin("USB adapters: the same, with the replies held back for their latency timers");
  const Case what{"24C02", "5.00", false};
  for (const char* latency : {"16", "1"}) {
    if (brief && latency == std::string("16")) continue;
    const QStringList options{"--pace", "--latency", latency};
    for (const Command& command : {kRead, kWrite}) {
      const auto [took, passed] = Transfer(command.Button, what, options);
      report.Add({std::string(what.Chip) + command.Name + ", " + latency + " ms", took.Wall,
                  "the same said by bare poll", Said_Again(port.Said(), passed, what, options), "s"});
    }
  }
}

void Measure_Silence(Report& report) {
  report.Begin("A board that is silent");
  Choose("24C02");
  Board_Process board({"--chip", "24C02"});
  Press(frmMain.Cmd_READ_single);  // The first one would also tidy up what a larger chip left on the heap.
  board.Freeze();
  const Spent spent = Spend([] { wrenbit::Fire(frmMain.Cmd_READ_single.Click); });
  if (!wrenbit::LinkError || spent.Wall < 1) throw std::runtime_error("the silent board was not waited for");
  report.Add(
      {"processor while it is waited for", spent.Processor, "the time that it took", spent.Wall, "s", 0.01});
}

void Measure_Unpaced(Report& report, bool brief) {
  report.Begin("No wire: how fast the program itself is");
  const Case what{brief ? "24C64" : "AT24C1024", "5.00", false};
  const auto program = [&] { return Transfer(frmMain.Cmd_READ_all, what, {}).Took.Wall; };
  const auto bare = [&] {
    const Chip_File chip(ImageBuffer.size());
    Board_Process board = Start_Board(what, chip, {});
    return Bare_Talk(board.Device(), Conversation(ImageBuffer.size(), {{'7'}, 1}));
  };
  const auto [read, round_trips] = In_Turns(3, program, bare);
  // The small chip's handshake would weigh as much as its bytes.
  const std::optional<double> goal = brief ? std::nullopt : std::optional(1.3);
  report.Add({std::string(what.Chip) + ", block read", read, "as many bare round trips by poll", round_trips,
              "s", goal});
}

}  // namespace

void Measure_Transfers(Report& report, bool brief) {
  const Recording_Port port;
  Measure_Unpaced(report, brief);
  Measure_Silence(report);
  Measure_Wire(report, port, brief);
  Measure_Adapters(report, port, brief);
}

}  // namespace bench
