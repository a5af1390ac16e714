#include "bench/whole_programs.h"

#include <optional>
#include <stdexcept>

#include "bench/median.h"
#include "bench/process.h"
#include "bench/temporary_folder.h"

namespace bench {
namespace {

constexpr int kRuns = 11;

// A small program that shows a window and says what memory it needed.
class Showing {
 public:
  explicit Showing(const char* name, const QStringList& words = {})
      : program(Beside_This(name)), arguments(words) {
    environment.insert("XDG_CONFIG_HOME", configuration.Path());
  }
  double Seconds() const { return Run_Process(program, arguments, environment).Seconds; }
  double Memory() const {
    const double bytes = Run_Process(program, arguments, environment).Said.toDouble();
    if (bytes == 0) throw std::runtime_error("the system does not tell the memory of a process");
    return bytes;
  }

 private:
  QString program;
  QStringList arguments;
  Temporary_Folder configuration;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
};

}  // namespace

void Measure_Whole_Programs(Report& report) {
  report.Begin("The whole program");
  const char* const what = "an empty Qt window";
  const Temporary_Folder folder;
  const Showing empty("empty-window"), label("empty-window", {"読み出し"}), program("shown-program"),
      largest_chip("shown-program", {"largest", folder.File("image.hex")});
  const auto start = [&](const char* subject, const Showing& shown, std::optional<double> goal) {
    const auto [seconds, bare] = In_Turns(
        kRuns, [&] { return shown.Seconds(); }, [&] { return empty.Seconds(); });
    report.Add({subject, seconds, what, bare, "s", goal});
  };
  start("start to the shown window", program, 1.3);
  start("  the same of a window with one label", label, {});
  const auto memory = [&](const char* subject, const Showing& shown) {
    const auto [bytes, bare] = In_Turns(
        kRuns, [&] { return shown.Memory(); }, [&] { return empty.Memory(); });
    report.Add({subject, bytes, what, bare, "B", {}});
    return bytes - bare;
  };
  const auto more = [&](const char* subject, double bytes, std::optional<double> goal) {
    report.Add({subject, bytes, "10 MiB", 10 << 20, "B", goal});
  };
  memory("memory, first chip", program);
  more("  what that is more", memory("memory, largest chip", largest_chip), 1.0);
  more("  what that is more", memory("memory, a window with one label", label), {});
}

}  // namespace bench
