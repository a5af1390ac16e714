#include <poll.h>

#include "shell/qt/seams/serial_handle.h"

namespace wrenbit {

bool Hung_Up(int descriptor) {
  pollfd port{.fd = descriptor, .events = 0, .revents = 0};
  return poll(&port, 1, 0) == 1 && (port.revents & (POLLHUP | POLLERR | POLLNVAL)) != 0;
}

}  // namespace wrenbit
