#include "bench/board.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QRegularExpression>
#include <array>
#include <cerrno>
#include <stdexcept>

#include "bench/report.h"
#include "shell/qt/program.h"

namespace bench {
namespace {

// Milliseconds.
constexpr int kPatience = 10'000;
constexpr int kAnswerPatience = 2000;

// Reads until nothing more is owed. Bytes that come early make the next turn owe less.
bool Hear(int port, std::ptrdiff_t& owed) {
  std::array<char, 512> bytes;
  while (owed > 0) {
    pollfd wait{.fd = port, .events = POLLIN, .revents = 0};
    const int ready = poll(&wait, 1, kAnswerPatience);
    if (ready < 0 && errno == EINTR) continue;
    const ssize_t got = ready == 1 ? read(port, bytes.data(), bytes.size()) : 0;
    if (got <= 0) return false;
    owed -= got;
  }
  return true;
}

bool Say(int port, const std::vector<std::uint8_t>& bytes) {
  return write(port, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size());
}

}  // namespace

Board_Process::Board_Process(const QStringList& arguments) {
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.start(QCoreApplication::applicationDirPath() + "/tolvex-sim",
                QStringList{"--com", "1"} + arguments);
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

Recording_Port::Recording_Port() : Qt_Serial(wrenbit::Config_Folder().toStdString()) {
  wrenbit::MSComm1.Attach(this);
}

Recording_Port::~Recording_Port() {
  wrenbit::MSComm1.Close();
  wrenbit::MSComm1.Attach(nullptr);
}

wrenbit::Port_Fault Recording_Port::Open(int number, bool rts, bool dtr) {
  conversation.clear();
  return Qt_Serial::Open(number, rts, dtr);
}

std::size_t Recording_Port::Waiting() { return waiting = Qt_Serial::Waiting(); }

std::vector<std::uint8_t> Recording_Port::Take() {
  std::vector<std::uint8_t> bytes = Qt_Serial::Take();
  Count(bytes.size());
  return bytes;
}

void Recording_Port::Drop() {
  Count(waiting);
  Qt_Serial::Drop();
}

bool Recording_Port::Write(std::span<const std::uint8_t> bytes) {
  conversation.push_back({{bytes.begin(), bytes.end()}, 0});
  return Qt_Serial::Write(bytes);
}

void Recording_Port::Count(std::size_t answered) {
  if (!conversation.empty()) conversation.back().Answered += answered;
}

double Bare_Talk(const std::string& device, const Conversation& conversation) {
  const int port = open(device.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
  if (port < 0) throw std::runtime_error("the bare port cannot be opened");
  bool heard = true;
  const double seconds = Seconds([&] {
    std::ptrdiff_t owed = 0;
    for (const Turn& turn : conversation) {
      owed += static_cast<std::ptrdiff_t>(turn.Answered);
      heard = heard && Say(port, turn.Said) && Hear(port, owed);
    }
  });
  close(port);
  if (!heard) throw std::runtime_error("the board fell silent to the bare port");
  return seconds;
}

}  // namespace bench
