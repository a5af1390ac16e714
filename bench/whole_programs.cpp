#include "whole_programs.h"

#include <QTemporaryDir>

#include "process.h"

namespace bench {
namespace {

// A small program that shows a window and says what memory it needed.
class Showing {
 public:
  explicit Showing(const char* name, const QStringList& words = {})
      : program(Beside_This(name)), arguments(words) {
    environment.insert("XDG_CONFIG_HOME", configuration.path());
  }
  double Seconds() const { return Run_Process(program, arguments, environment).Seconds; }
  double Memory() const { return Run_Process(program, arguments, environment).Said.toDouble(); }

 private:
  QString program;
  QStringList arguments;
  QTemporaryDir configuration;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
};

}  // namespace

void Measure_Whole_Programs(Report& report) {
  report.Begin("The whole program");
  const char* const kEmpty = "an empty Qt window";
  const QTemporaryDir folder;
  const Showing empty("empty-window"), label("empty-window", {"読み出し"}), program("shown-program"),
      largest_chip("shown-program", {"largest", folder.filePath("image.hex")});
  const auto start = [&](const char* subject, const Showing& shown, std::optional<double> goal) {
    const auto [seconds, bare] = In_Turns([&] { return shown.Seconds(); }, [&] { return empty.Seconds(); });
    report.Add({subject, seconds, kEmpty, bare, "s", goal});
  };
  start("start to the shown window", program, 1.3);
  start("  the same of a window with one label", label, {});
  const double bare = empty.Memory();
  const double largest = largest_chip.Memory();
  report.Add({"memory, first chip", program.Memory(), kEmpty, bare, "B", {}});
  report.Add({"memory, largest chip", largest, kEmpty, bare, "B", {}});
  report.Add({"what that is more", largest - bare, "10 MiB", 10 << 20, "B", 1.0});
  report.Add({"  the same of a window with one label", label.Memory() - bare, "10 MiB", 10 << 20, "B", {}});
}

}  // namespace bench
