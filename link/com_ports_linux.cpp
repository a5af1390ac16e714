// Serial devices as Linux tells of them under /sys/class/tty.
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <fstream>

#include "com_ports.h"

namespace wrenbit {

std::vector<Serial_Device> Serial_Devices_Present() {
  std::vector<Serial_Device> present;
  std::error_code error;
  for (std::filesystem::directory_iterator tty("/sys/class/tty", error), end; !error && tty != end;
       tty.increment(error)) {
    // Consoles and pseudo terminals have no device behind them.
    std::error_code none;
    const std::filesystem::path hardware = std::filesystem::canonical(tty->path() / "device", none);
    if (none) continue;
    // The kernel offers more built-in ports than there are chips; those without have type 0, PORT_UNKNOWN.
    std::ifstream type_file(tty->path() / "type");
    if (int type = 0; type_file >> type && type == 0) continue;
    present.push_back({.Path = "/dev/" + tty->path().filename().string(),
                       .Usb = hardware.string().find("/usb") != std::string::npos});
  }
  return present;
}

bool Lock_Was_Left_Behind(const std::filesystem::path& lock_file) {
  const int file = open(lock_file.c_str(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return false;
  const bool free = flock(file, LOCK_SH | LOCK_NB) == 0;
  close(file);
  return free;
}

}  // namespace wrenbit
