#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <array>
#include <stdexcept>

#include "bare_port.h"
#include "measure.h"

namespace bench {
namespace {

constexpr int kPatience = 2000;  // Milliseconds.

bool Take_Turn(int port, const Turn& turn) {
  if (write(port, turn.Said.data(), turn.Said.size()) != static_cast<ssize_t>(turn.Said.size())) return false;
  std::array<char, 512> bytes;
  for (std::size_t answered = 0; answered < turn.Answered;) {
    pollfd wait{.fd = port, .events = POLLIN, .revents = 0};
    const ssize_t got = poll(&wait, 1, kPatience) == 1 ? read(port, bytes.data(), bytes.size()) : 0;
    if (got <= 0) return false;
    answered += static_cast<std::size_t>(got);
  }
  return true;
}

}  // namespace

double Bare_Talk(const std::string& device, const Conversation& conversation) {
  const int port = open(device.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
  if (port < 0) throw std::runtime_error("the bare port cannot be opened");
  bool heard = true;
  const Spent spent = Spend([&] {
    for (const Turn& turn : conversation) heard = heard && Take_Turn(port, turn);
  });
  close(port);
  if (!heard) throw std::runtime_error("the board fell silent to the bare port");
  return spent.Wall;
}

}  // namespace bench
