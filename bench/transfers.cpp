#include "transfers.h"

#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <stdexcept>
#include <vector>

#include "bare_port.h"
#include "board_process.h"
#include "choice.h"
#include "frm_main.h"
#include "measure.h"
#include "state.h"

namespace bench {
namespace {

using wrenbit::frmMain;
using wrenbit::ImageBuffer;

struct Case {
  const char* Chip;
  const char* Firmware;
  bool Long;  // Takes half a minute or more at 9600 baud.
};
constexpr Case kWireCases[] = {
    {"24C02", "5.00", false}, {"AT93C46", "5.00", false}, {"24C64", "5.00", true}, {"24C02", "4.90", true}};

Spent Press(const wrenbit::CommandButton& button) {
  const Spent spent = Spend([&] { wrenbit::Fire(button.Click); });
  if (wrenbit::LinkError) throw std::runtime_error(button.Caption() + ": " + frmMain.sbStatusBar.Panel(1));
  return spent;
}

// The board's chip, as a file with a pattern in it.
class Chip_File {
 public:
  explicit Chip_File(std::size_t size) {
    const std::vector<std::uint8_t> bytes = Pattern(size);
    QFile file(Path());
    if (!file.open(QFile::WriteOnly) || file.write(reinterpret_cast<const char*>(bytes.data()),
                                                   static_cast<qint64>(size)) != static_cast<qint64>(size))
      throw std::runtime_error("the chip's file cannot be written");
  }
  QString Path() const { return folder.filePath("chip.bin"); }
  std::vector<std::uint8_t> Bytes() const {
    QFile file(Path());
    if (!file.open(QFile::ReadOnly)) return {};
    const QByteArray bytes = file.readAll();
    return {bytes.begin(), bytes.end()};
  }

 private:
  QTemporaryDir folder;
};

struct Run {
  Spent Took;
  Traffic Passed;
};

// The image begins as something else than the chip, so that only a transfer makes them equal.
Run Transfer(const wrenbit::CommandButton& button, const Case& what, const QStringList& options) {
  Choose(what.Chip);
  const Chip_File chip(ImageBuffer.size());
  std::ranges::reverse_copy(Pattern(ImageBuffer.size()), ImageBuffer.begin());
  Board_Process board(QStringList{"--chip", what.Chip, "--firmware", what.Firmware, "--image", chip.Path()} +
                      options);
  Run run;
  run.Took = Press(button);
  run.Passed = board.End();
  if (ImageBuffer != chip.Bytes())
    throw std::runtime_error("image and chip differ behind " + button.Caption());
  return run;
}

void Measure_Wire(Report& report, bool brief) {
  report.Begin("The wire: block transfers of whole chips, the board paced to 9600 baud");
  for (const Case& what : kWireCases) {
    if (brief && what.Long) continue;
    const std::string chip = std::string(what.Chip) + " at " + what.Firmware;
    const Run read = Transfer(frmMain.Cmd_READ_all, what, {"--pace"});
    report.Add({chip + ", block read", read.Took.Wall, "the wire time of its bytes", read.Passed.Wire_Time(),
                "s", 1.02});
    report.Add({chip + ", processor during it", read.Took.Processor, "the time that it took", read.Took.Wall,
                "s", 0.03});
    const Run write = Transfer(frmMain.Cmd_WRITE_all, what, {"--pace"});
    report.Add({chip + ", block write", write.Took.Wall, "the wire time of its bytes",
                write.Passed.Wire_Time(), "s", 1.02});
  }
}

void Measure_Silence(Report& report) {
  report.Begin("A board that is silent");
  Choose("24C02");
  Board_Process board({"--chip", "24C02"});
  board.Freeze();
  const Spent spent = Spend([] { wrenbit::Fire(frmMain.Cmd_READ_single.Click); });
  if (!wrenbit::LinkError || spent.Wall < 1) throw std::runtime_error("the silent board was not waited for");
  report.Add(
      {"processor while it is waited for", spent.Processor, "the time that it took", spent.Wall, "s", 0.01});
}

void Measure_Unpaced(Report& report, bool brief) {
  report.Begin("No wire: how fast the program itself is");
  const Case what{brief ? "24C64" : "AT24C1024", "5.00", false};
  const Run read = Transfer(frmMain.Cmd_READ_all, what, {});
  Board_Process board({"--chip", what.Chip});
  const auto bytes = static_cast<int>(ImageBuffer.size());
  report.Add({std::string(what.Chip) + ", block read", read.Took.Wall, "as many bare round trips by poll",
              Bare_Round_Trips(board.Device(), '7', bytes), "s", 1.3});
}

}  // namespace

void Measure_Transfers(Report& report, bool brief) {
  Measure_Unpaced(report, brief);
  Measure_Silence(report);
  Measure_Wire(report, brief);
}

}  // namespace bench
