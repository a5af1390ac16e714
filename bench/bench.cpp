// wrenbit-bench: what the program costs beside what it could cost at best, in ratios that are taken side by
// side in one run. No test: nothing fails when a goal is missed.
#include <QCoreApplication>
#include <QFileInfo>
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>

#include "bench/conversions.h"
#include "bench/file_costs.h"
#include "bench/machine.h"
#include "bench/report.h"
#include "bench/temporary_folder.h"
#include "bench/transfers.h"
#include "bench/whole_programs.h"
#include "bench/window_costs.h"
#include "core/state/whole_file.h"
#include "shell/qt/program.h"

namespace {

void Keep(const std::string& path, const std::string& json) {
  if (wrenbit::Write_Whole_File(path, json)) throw std::runtime_error("cannot be written: " + path);
}

}  // namespace

int main(int argc, char** argv) try {
  const bench::Temporary_Folder configuration;  // Nothing of the user's is touched.
  qputenv("XDG_CONFIG_HOME", configuration.Path().toUtf8());
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_LOGGING_RULES",
          "default.warning=false");  // The offscreen platform tells of all that it is not.
  wrenbit::Program program(argc, argv);
  QStringList arguments = QCoreApplication::arguments().mid(1);
  const bool brief = arguments.removeAll(QStringLiteral("--brief")) > 0;
  if (arguments.size() != 1 || arguments[0].startsWith(u'-')) {
    std::cerr
        << "Usage: wrenbit-bench [--brief] JSON-FILE\n--brief leaves out what takes half a minute or more.\n";
    return 2;
  }
  // The program makes its own folder the current one.
  const std::string json = QFileInfo(arguments[0]).absoluteFilePath().toStdString();
  Keep(json, {});  // Better refused now than minutes later.
  if (!program.Start()) return 1;

  bench::Report report;
  bench::Measure_Window(report, program);
  bench::Measure_Whole_Programs(report);
  bench::Measure_Files(report);
  bench::Measure_Conversions(report);
  bench::Measure_Transfers(report, brief);
  const std::string machine = bench::Machine();
  std::cout << machine << "\n\n" << report.Table();
  Keep(json, report.Json(machine));
} catch (const std::exception& error) {
  std::cerr << "wrenbit-bench: " << error.what() << '\n';
  return 1;
}
