#include "bench/bare_port.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <vector>

#include "bench/conversation.h"
#include "bench/measure.h"

namespace bench {
namespace {

constexpr int kPatience = 2000;  // Milliseconds.

// Reads until nothing more is owed. Bytes that come early make the next turn owe less.
bool Hear(int port, std::ptrdiff_t& owed) {
  std::array<char, 512> bytes;
  while (owed > 0) {
    pollfd wait{.fd = port, .events = POLLIN, .revents = 0};
    const int ready = poll(&wait, 1, kPatience);
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

double Bare_Talk(const std::string& device, const Conversation& conversation) {
  const int port = open(device.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
  if (port < 0) throw std::runtime_error("the bare port cannot be opened");
  bool heard = true;
  const Spent spent = Spend([&] {
    std::ptrdiff_t owed = 0;
    for (const Turn& turn : conversation) {
      owed += static_cast<std::ptrdiff_t>(turn.Answered);
      heard = heard && Say(port, turn.Said) && Hear(port, owed);
    }
  });
  close(port);
  if (!heard) throw std::runtime_error("the board fell silent to the bare port");
  return spent.Wall;
}

}  // namespace bench
