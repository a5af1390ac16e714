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
#include <deque>
#include <optional>

#include "board/descriptor.h"

namespace board {

namespace {

using Clock = Wire_Schedule::Clock;
using Nanoseconds = std::chrono::nanoseconds;

constexpr std::size_t kMostWaiting = 4096;  // Replies in bytes, beyond those in the terminal itself.

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

struct Waiting {
  std::uint8_t Byte;
  Clock::time_point Due;
};

// Takes what the PC sent, lets the board answer, and lines the answers up.
void Take_In(int master, Wire_End& end, Wire_Schedule& wire, std::deque<Waiting>& replies) {
  std::array<std::uint8_t, 512> bytes;
  const ssize_t got = read(master, bytes.data(), bytes.size());
  if (got < 0 && errno == EAGAIN) return;
  if (got < 0) Throw_Errno("reading from the terminal");
  const auto now = Clock::now();
  for (std::size_t i = 0; i < static_cast<std::size_t>(got); ++i) {
    const Answer answer = end.Receive(bytes[i]);
    const auto late = std::chrono::duration_cast<Nanoseconds>(std::chrono::duration<double>(answer.Late));
    const auto said = wire.Arrival(now) + late;
    for (const std::uint8_t byte : answer.Bytes) {
      if (replies.size() < kMostWaiting) replies.push_back({byte, wire.Departure(said)});
    }
  }
}

// Hands the PC all replies that are due, as far as the terminal takes them.
void Put_Out(int master, std::deque<Waiting>& replies) {
  std::array<std::uint8_t, 512> bytes;
  std::size_t count = 0;
  const auto now = Clock::now();
  while (count < std::min(replies.size(), bytes.size()) && replies[count].Due <= now) {
    bytes[count] = replies[count].Byte;
    ++count;
  }
  const ssize_t put = write(master, bytes.data(), count);
  if (put < 0 && errno != EAGAIN) Throw_Errno("writing to the terminal");
  if (put > 0) replies.erase(replies.begin(), replies.begin() + put);
}

}  // namespace

Board_Terminal::Board_Terminal() : master(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK)) {
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

void Board_Terminal::Serve(Wire_End& end, const Port_Timing& timing, Typed_Lines& typed,
                           const std::function<void(const std::string& line)>& told) {
  Wire_Schedule wire(timing);
  std::deque<Waiting> replies;
  while (!Stop_Asked()) {
    pollfd files[] = {{.fd = *master, .events = POLLIN, .revents = 0},
                      {.fd = *closings, .events = POLLIN, .revents = 0},
                      {.fd = typed.Number(), .events = POLLIN, .revents = 0}};
    auto& [pc, closed, keyboard] = files;
    const auto now = Clock::now();
    std::optional<Nanoseconds> rest;
    if (!replies.empty() && replies.front().Due <= now) {
      pc.events |= POLLOUT;
    } else if (wire.Awake(now)) {
      rest = Nanoseconds(0);
    } else if (!replies.empty()) {
      rest = replies.front().Due - now;
    }
    const timespec limit{.tv_sec = rest.value_or(Nanoseconds(0)).count() / 1'000'000'000,
                         .tv_nsec = rest.value_or(Nanoseconds(0)).count() % 1'000'000'000};
    if (ppoll(files, std::size(files), rest ? &limit : nullptr, &MaskWhileWaiting) < 0) {
      if (errno == EINTR) continue;
      Throw_Errno("waiting for the terminal");
    }
    if (closed.revents & POLLIN) Unclaim();
    if (pc.revents & POLLOUT) Put_Out(*master, replies);
    if (pc.revents & POLLIN) Take_In(*master, end, wire, replies);
    if (!keyboard.revents) continue;
    for (const std::string& line : typed.Take()) told(line);
  }
}

void Board_Terminal::Unclaim() {
  std::array<char, 4096> events;
  while (read(*closings, events.data(), events.size()) > 0) continue;
  ioctl(*slave, TIOCNXCL);
}

}  // namespace board
