#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <stdexcept>

#include "bare_port.h"
#include "measure.h"

namespace bench {

double Bare_Round_Trips(const std::string& device, std::uint8_t command, int trips) {
  const int port = open(device.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK);
  if (port < 0) throw std::runtime_error("the bare port cannot be opened");
  bool answered = true;
  const Spent spent = Spend([&] {
    for (int trip = 0; trip < trips && answered; ++trip) {
      std::uint8_t byte = command;
      pollfd wait{.fd = port, .events = POLLIN, .revents = 0};
      answered = write(port, &byte, 1) == 1 && poll(&wait, 1, 1000) == 1 && read(port, &byte, 1) == 1;
    }
  });
  close(port);
  if (!answered) throw std::runtime_error("the board did not answer a bare round trip");
  return spent.Wall;
}

}  // namespace bench
