#include "bench/process.h"

#include <QCoreApplication>
#include <QProcess>
#include <stdexcept>

#include "bench/measure.h"

namespace bench {

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

}  // namespace bench
