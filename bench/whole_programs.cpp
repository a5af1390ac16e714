#include "whole_programs.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <stdexcept>
#include <vector>

#include "measure.h"

namespace bench {
namespace {

constexpr int kRuns = 11;

struct Showing {
  double Seconds = 0;  // From its start to its window.
  double Memory = 0;   // Bytes, at most.
};

Showing Show(const char* name, const QStringList& arguments, const QString& configuration) {
  QProcess process;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("XDG_CONFIG_HOME", configuration);
  process.setProcessEnvironment(environment);
  Showing showing;
  showing.Seconds = Spend([&] {
                      process.start(QCoreApplication::applicationDirPath() + "/" + name, arguments);
                      process.waitForFinished();
                    }).Wall;
  showing.Memory = process.readAllStandardOutput().toDouble();
  if (process.exitCode() != 0 || showing.Memory == 0)
    throw std::runtime_error(std::string(name) + " did not show its window");
  return showing;
}

double Median(std::vector<double> values) {
  std::ranges::sort(values);
  return values[values.size() / 2];
}

}  // namespace

void Measure_Whole_Programs(Report& report) {
  report.Begin("The whole program");
  const QTemporaryDir folder;
  const auto show = [&](const char* name, const QStringList& arguments = {}) {
    return Show(name, arguments, folder.path());
  };
  std::vector<double> empty, program;
  for (int run = 0; run < kRuns; ++run) {
    empty.push_back(show("empty-window").Seconds);
    program.push_back(show("shown-program").Seconds);
  }
  report.Add({"start to the shown window", Median(program), "an empty Qt window", Median(empty), "s", 1.3});
  const double bare = show("empty-window").Memory;
  report.Add({"memory, first chip", show("shown-program").Memory, "an empty Qt window", bare, "B", {}});
  const double largest = show("shown-program", {"largest", folder.filePath("image.hex")}).Memory;
  report.Add({"memory, largest chip", largest, "an empty Qt window", bare, "B", {}});
  report.Add({"what that is more", largest - bare, "10 MiB", 10 << 20, "B", 1.0});
}

}  // namespace bench
