#include "board/typed_lines.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>

namespace board {

struct Typed_Lines::Input {
  int File = fcntl(STDIN_FILENO, F_GETFD) < 0 ? -1 : STDIN_FILENO;
};

Typed_Lines::Typed_Lines() : input(std::make_unique<Input>()) { signal(SIGTTIN, SIG_IGN); }

Typed_Lines::~Typed_Lines() = default;

std::intptr_t Typed_Lines::Waitable() const { return input->File; }

std::optional<std::string> Typed_Lines::Read() {
  std::array<char, 512> bytes;
  const ssize_t got = read(input->File, bytes.data(), bytes.size());
  if (got > 0) return std::string(bytes.data(), static_cast<std::size_t>(got));
  if (got < 0 && (errno == EAGAIN || errno == EINTR)) return "";
  input->File = -1;
  return std::nullopt;
}

}  // namespace board
