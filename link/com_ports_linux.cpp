// Serial devices as Linux tells of them under /sys/class/tty.
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <fstream>
#include <system_error>
#include <utility>

#include "com_ports.h"

namespace wrenbit {
namespace {

std::string First_Line(const std::filesystem::path& file) {
  std::ifstream content(file);
  std::string line;
  std::getline(content, line);
  return line;
}

// 0 when there is no such file, and no number in it.
int Number_In(const std::filesystem::path& file) {
  int number = 0;
  std::ifstream(file) >> number;
  return number;
}

}  // namespace

std::vector<Serial_Device> Serial_Devices_Present(const std::filesystem::path& system_folder) {
  std::vector<Serial_Device> present;
  std::error_code error;
  for (std::filesystem::directory_iterator tty(system_folder / "class/tty", error), end; !error && tty != end;
       tty.increment(error)) {
    // Consoles and pseudo terminals have no device behind them.
    std::error_code none;
    const std::filesystem::path hardware = std::filesystem::canonical(tty->path() / "device", none);
    if (none) continue;
    // The kernel offers more built-in ports than there are chips; those without have type 0, PORT_UNKNOWN.
    std::ifstream type_file(tty->path() / "type");
    if (int type = 0; type_file >> type && type == 0) continue;
    Serial_Device device{.Path = "/dev/" + tty->path().filename().string(),
                         .Usb = hardware.string().find("/usb") != std::string::npos};
    device.Receive_Trigger = Number_In(tty->path() / "rx_trig_bytes");
    // The port lies one or two folders below the USB device that has it.
    for (std::filesystem::path at = hardware; device.Usb && at.has_relative_path(); at = at.parent_path()) {
      if (!std::filesystem::exists(at / "idVendor", none)) continue;
      device.Maker = First_Line(at / "manufacturer");
      device.Product = First_Line(at / "product");
      break;
    }
    present.push_back(std::move(device));
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
