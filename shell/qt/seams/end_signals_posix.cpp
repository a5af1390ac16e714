#include "shell/qt/seams/end_signals.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <cerrno>
#include <utility>

namespace wrenbit {
namespace {

int Pipe_Ends[2] = {-1, -1};

// A signal handler may do hardly more than write to a pipe.
void On_Signal(int) {
  const int kept = errno;  // Of the call that the signal came into.
  const char wish = 1;
  [[maybe_unused]] const ssize_t written = write(Pipe_Ends[1], &wish, 1);
  errno = kept;
}

}  // namespace

void On_End_Signal(QObject* owner, std::function<void()> act) {
  if (pipe2(Pipe_Ends, O_CLOEXEC | O_NONBLOCK) != 0) return;
  auto* notifier = new QSocketNotifier(Pipe_Ends[0], QSocketNotifier::Read, owner);
  QObject::connect(notifier, &QSocketNotifier::activated, owner, [act = std::move(act)] {
    char wish;
    while (read(Pipe_Ends[0], &wish, 1) == 1) continue;
    act();
  });
  struct sigaction action {};
  action.sa_handler = On_Signal;
  action.sa_flags = SA_RESTART;
  for (const int number : {SIGINT, SIGTERM, SIGHUP}) sigaction(number, &action, nullptr);
}

}  // namespace wrenbit
