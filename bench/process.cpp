#include "process.h"

#include <QCoreApplication>
#include <QProcess>
#include <algorithm>
#include <stdexcept>
#include <vector>

#include "measure.h"

namespace bench {
namespace {

constexpr int kRuns = 11;

double Median(std::vector<double> values) {
  std::ranges::sort(values);
  return values[values.size() / 2];
}

}  // namespace

Finished Run_Process(const QString& program, const QStringList& arguments,
                     const QProcessEnvironment& environment) {
  QProcess process;
  process.setProcessEnvironment(environment);
  Finished finished;
  finished.Seconds = Spend([&] {
                       process.start(program, arguments);
                       process.waitForFinished();
                     }).Wall;
  finished.Said = process.readAllStandardOutput();
  if (process.error() != QProcess::UnknownError || process.exitCode() != 0)
    throw std::runtime_error(program.toStdString() +
                             " failed: " + process.readAllStandardError().toStdString());
  return finished;
}

QString Beside_This(const QString& program) { return QCoreApplication::applicationDirPath() + "/" + program; }

Medians In_Turns(const std::function<double()>& first, const std::function<double()>& second) {
  std::vector<double> firsts, seconds;
  for (int run = 0; run < kRuns; ++run) {
    firsts.push_back(first());
    seconds.push_back(second());
  }
  return {Median(firsts), Median(seconds)};
}

}  // namespace bench
