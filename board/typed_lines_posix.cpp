#include "board/typed_lines.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <utility>

namespace board {

namespace {

constexpr std::size_t kLongest = 4096;

}  // namespace

Typed_Lines::Typed_Lines() : file(fcntl(STDIN_FILENO, F_GETFD) < 0 ? -1 : STDIN_FILENO) {
  signal(SIGTTIN, SIG_IGN);
}

std::vector<std::string> Typed_Lines::Take() {
  std::array<char, 512> bytes;
  const ssize_t got = read(file, bytes.data(), bytes.size());
  if (got < 0 && (errno == EAGAIN || errno == EINTR)) return {};
  std::vector<std::string> lines;
  if (got <= 0) {
    file = -1;
    if (!begun.empty()) lines.push_back(std::exchange(begun, {}));
    return lines;
  }
  for (std::size_t i = 0; i < static_cast<std::size_t>(got); ++i) {
    if (bytes[i] == '\n')
      lines.push_back(std::exchange(begun, {}));
    else if (begun.size() < kLongest)
      begun += bytes[i];
  }
  return lines;
}

}  // namespace board
