#include "link/com_ports.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <string>
#include <tuple>

namespace wrenbit {
namespace {

// "/dev/ttyUSB12" is 12.
long Trailing_Number(const std::string& path) {
  const std::size_t digits = path.find_last_not_of("0123456789") + 1;
  return digits < path.size() ? std::strtol(path.c_str() + digits, nullptr, 10) : 0;
}

}  // namespace

std::vector<Serial_Device> In_Com_Order(std::vector<Serial_Device> devices) {
  // ttyUSB before ttyACM where the numbers are the same: plain adapters before devices with a modem's
  // manners.
  const auto rank = [](const Serial_Device& d) {
    return std::tuple(!d.Usb, Trailing_Number(d.Path), d.Path.find("ttyACM") != d.Path.npos, d.Path);
  };
  std::sort(devices.begin(), devices.end(),
            [&](const Serial_Device& a, const Serial_Device& b) { return rank(a) < rank(b); });
  return devices;
}

}  // namespace wrenbit
