#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <array>
#include <cerrno>

#include "typed_lines.h"

namespace board {

Typed_Lines::Typed_Lines() : File(fcntl(STDIN_FILENO, F_GETFD) < 0 ? -1 : STDIN_FILENO) {
  signal(SIGTTIN, SIG_IGN);
}

std::vector<std::string> Typed_Lines::Take() {
  std::array<char, 512> bytes;
  const ssize_t got = read(File, bytes.data(), bytes.size());
  if (got < 0 && (errno == EAGAIN || errno == EINTR)) return {};
  if (got <= 0) {
    File = -1;
    return {};
  }
  Begun.append(bytes.data(), static_cast<std::size_t>(got));
  std::vector<std::string> lines;
  for (auto end = Begun.find('\n'); end != std::string::npos; end = Begun.find('\n')) {
    lines.push_back(Begun.substr(0, end));
    Begun.erase(0, end + 1);
  }
  return lines;
}

}  // namespace board
