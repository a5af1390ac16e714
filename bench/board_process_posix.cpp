#include "bench/board_process.h"

#include <signal.h>

#include <QRegularExpression>
#include <stdexcept>

#include "bench/process.h"

namespace bench {
namespace {

constexpr int kPatience = 10'000;  // Milliseconds.

}  // namespace

Board_Process::Board_Process(const QStringList& arguments) {
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.start(Beside_This("tolvex-sim"), QStringList{"--com", "1"} + arguments);
  while (!process.canReadLine() && process.waitForReadyRead(kPatience)) continue;
  const QString ready = QString::fromUtf8(process.readLine());
  const auto named = QRegularExpression(R"(on COM1 = (\S+),)").match(ready);
  if (!named.hasMatch()) throw std::runtime_error("the virtual board did not start: " + ready.toStdString());
  device = named.captured(1).toStdString();
}

Board_Process::~Board_Process() {
  if (process.state() != QProcess::NotRunning) Stop();
}

void Board_Process::Freeze() { kill(static_cast<pid_t>(process.processId()), SIGSTOP); }

void Board_Process::Stop() {
  kill(static_cast<pid_t>(process.processId()), SIGCONT);
  process.terminate();
  process.waitForFinished(kPatience);
}

Traffic Board_Process::End() {
  Stop();
  const QString said = QString::fromUtf8(process.readAll());
  const auto totals =
      QRegularExpression(R"((\d+) commands, (\d+) bytes out to the board, (\d+) bytes back)").match(said);
  if (!totals.hasMatch())
    throw std::runtime_error("the virtual board did not end well: " + said.toStdString());
  return {totals.captured(1).toULongLong(), totals.captured(2).toULongLong(),
          totals.captured(3).toULongLong()};
}

}  // namespace bench
