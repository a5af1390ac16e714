#include "board/board_terminal.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/inotify.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <span>

#include "board/descriptor.h"
#include "board/waiting_replies.h"

namespace board {

namespace {

using Clock = Waiting_Replies::Clock;
using Nanoseconds = std::chrono::nanoseconds;

constexpr int kStopSignals[] = {SIGINT, SIGTERM, SIGHUP};
volatile sig_atomic_t StopCaught = 0;
sigset_t MaskWhileWaiting;  // Signals get through in ppoll and nowhere else, so no system call is cut short.

void On_Stop_Signal(int) { StopCaught = 1; }

// A wait that finds a file ready lets no signal through; it stays pending.
bool Stop_Asked() {
  sigset_t pending;
  sigpending(&pending);
  return StopCaught ||
         std::ranges::any_of(kStopSignals, [&](int number) { return sigismember(&pending, number) == 1; });
}

void Hold_Stop_Signals() {
  struct sigaction action {};
  action.sa_handler = On_Stop_Signal;
  sigset_t held;
  sigemptyset(&held);
  for (const int number : kStopSignals) {
    sigaction(number, &action, nullptr);
    sigaddset(&held, number);
  }
  sigprocmask(SIG_BLOCK, &held, &MaskWhileWaiting);
  for (const int number : kStopSignals) sigdelset(&MaskWhileWaiting, number);
  signal(SIGPIPE, SIG_IGN);  // Whoever reads our output may go; the link must still be removed.
}

// Takes what the PC sent, and lets the board answer.
void Take_In(int master, Waiting_Replies& replies) {
  std::array<std::uint8_t, 512> bytes;
  const ssize_t got = read(master, bytes.data(), bytes.size());
  if (got < 0 && errno == EAGAIN) return;
  if (got < 0) Throw_Errno("reading from the terminal");
  replies.Take_In(std::span(bytes.data(), static_cast<std::size_t>(got)), Clock::now());
}

// Hands the PC all replies that are due, as far as the terminal takes them.
void Put_Out(int master, Waiting_Replies& replies) {
  const auto due = replies.Due(Clock::now());
  const ssize_t put = write(master, due.data(), due.size());
  if (put < 0 && errno != EAGAIN) Throw_Errno("writing to the terminal");
  if (put > 0) replies.Drop(static_cast<std::size_t>(put));
}

}  // namespace

struct Board_Terminal::Port {
  // A claim to the port for one program alone (TIOCEXCL) ends when the last holder closes the port. Here that
  // is never, since the slave is held open, and a PC program that was killed would shut out all that follow.
  void Unclaim() const {
    std::array<char, 4096> events;
    while (read(*Closings, events.data(), events.size()) > 0) continue;
    ioctl(*Slave, TIOCNXCL);
  }

  Descriptor Master;
  Descriptor Slave;     // Held open, or the master would see a hang-up each time the PC closes the port.
  Descriptor Closings;  // Readable when the PC has closed the port; none where the system gives no watch.
};

Board_Terminal::Board_Terminal() : port(std::make_unique<Port>()) {
  auto& [master, slave, closings] = *port;
  master = Descriptor(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK));
  if (!master || grantpt(*master) != 0 || unlockpt(*master) != 0) Throw_Errno("opening a pseudo terminal");
  std::array<char, 128> path;
  if (ptsname_r(*master, path.data(), path.size()) != 0) Throw_Errno("naming the pseudo terminal");
  name = path.data();
  slave = Descriptor(open(name.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC));
  termios mode{};
  if (!slave || tcgetattr(*slave, &mode) != 0) Throw_Errno(name);
  cfmakeraw(&mode);
  cfsetspeed(&mode, B9600);
  if (tcsetattr(*slave, TCSANOW, &mode) != 0) Throw_Errno(name);
  closings = Descriptor(inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
  if (closings) inotify_add_watch(*closings, name.c_str(), IN_CLOSE);
  Hold_Stop_Signals();
}

Board_Terminal::~Board_Terminal() = default;

void Board_Terminal::Serve(Wire_End& end, const Port_Timing& timing, Typed_Lines& typed,
                           const std::function<void(const std::string& line)>& told) {
  Waiting_Replies replies(end, timing);
  while (!Stop_Asked()) {
    pollfd files[] = {{.fd = *port->Master, .events = POLLIN, .revents = 0},
                      {.fd = *port->Closings, .events = POLLIN, .revents = 0},
                      {.fd = static_cast<int>(typed.Waitable()), .events = POLLIN, .revents = 0}};
    auto& [pc, closed, keyboard] = files;
    const auto now = Clock::now();
    if (!replies.Due(now).empty()) pc.events |= POLLOUT;
    const auto rest = replies.Rest(now);
    const timespec limit{.tv_sec = rest.value_or(Nanoseconds(0)).count() / 1'000'000'000,
                         .tv_nsec = rest.value_or(Nanoseconds(0)).count() % 1'000'000'000};
    if (ppoll(files, std::size(files), rest ? &limit : nullptr, &MaskWhileWaiting) < 0) {
      if (errno == EINTR) continue;
      Throw_Errno("waiting for the terminal");
    }
    if (closed.revents & POLLIN) port->Unclaim();
    if (pc.revents & POLLOUT) Put_Out(*port->Master, replies);
    if (pc.revents & POLLIN) Take_In(*port->Master, replies);
    if (!keyboard.revents) continue;
    for (const std::string& line : typed.Take()) told(line);
  }
}

}  // namespace board
