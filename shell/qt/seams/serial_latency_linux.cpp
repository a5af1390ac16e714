#include <linux/serial.h>
#include <sys/ioctl.h>

#include "shell/qt/seams/serial_handle.h"

namespace wrenbit {

void Ask_For_Low_Latency(int descriptor) {
  serial_struct driver{};
  if (ioctl(descriptor, TIOCGSERIAL, &driver) != 0) return;
  driver.flags |= static_cast<int>(ASYNC_LOW_LATENCY);
  ioctl(descriptor, TIOCSSERIAL, &driver);
}

}  // namespace wrenbit
