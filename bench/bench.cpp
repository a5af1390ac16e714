// wrenbit-bench: what the program costs beside what it could cost at best, in ratios that are taken side by
// side in one run. No test: nothing fails when a goal is missed.
#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QSysInfo>
#include <QTemporaryDir>
#include <QThread>
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>

#include "bench/choice.h"
#include "bench/proc_linux.h"
#include "bench/report.h"
#include "bench/subjects.h"
#include "shell/qt/program.h"

namespace {

// Processor, cores, system, display and day, in one line.
std::string Machine() {
  const QString model = QString::fromStdString(bench::Proc_Field("/proc/cpuinfo", "model name")).trimmed();
  return QStringLiteral("%1, %2 cores; %3, Linux %4; Qt %5 (%6); %7")
      .arg(model.isEmpty() ? QSysInfo::currentCpuArchitecture() : model)
      .arg(QThread::idealThreadCount())
      .arg(QSysInfo::prettyProductName(), QSysInfo::kernelVersion(), QString::fromLatin1(qVersion()),
           QGuiApplication::platformName(), QDate::currentDate().toString(Qt::ISODate))
      .toStdString();
}

}  // namespace

int main(int argc, char** argv) try {
  const QTemporaryDir folder;
  if (!folder.isValid())
    throw std::runtime_error("no temporary folder: " + folder.errorString().toStdString());
  const QDir scratch(folder.path());
  // Nothing of the user's is touched.
  qputenv("XDG_CONFIG_HOME", scratch.filePath("configuration").toUtf8());
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  // The offscreen platform tells of all that it is not.
  qputenv("QT_LOGGING_RULES", "default.warning=false");
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
  bench::Write_File(json, {});  // Better refused now than minutes later.
  if (!program.Start()) return 1;

  bench::Report report(Machine());
  bench::Measure_Window(report, program.Main_Window());
  bench::Measure_Programs(report, scratch);
  bench::Measure_Files(report, scratch);
  bench::Measure_Conversions(report, scratch);
  bench::Measure_Transfers(report, scratch, brief);
  bench::Write_File(json, report.Json());
} catch (const std::exception& error) {
  std::cerr << "wrenbit-bench: " << error.what() << '\n';
  return 1;
}
