#include "com_ports.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <system_error>
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

std::optional<Serial_Device> Device_Of_Com(int number, const std::filesystem::path& ports_folder,
                                           const std::vector<Serial_Device>& in_com_order) {
  if (number < 1 || number > kComPorts) return std::nullopt;
  const std::filesystem::path link = ports_folder / ("COM" + std::to_string(number));
  std::error_code ignored;
  if (std::filesystem::is_symlink(link, ignored) &&
      !Lock_Was_Left_Behind(ports_folder / (link.filename().string() + ".lock"))) {
    if (!std::filesystem::is_character_file(link, ignored)) return std::nullopt;
    const std::string path = std::filesystem::canonical(link, ignored).string();
    const auto known = std::find_if(in_com_order.begin(), in_com_order.end(),
                                    [&](const Serial_Device& device) { return device.Path == path; });
    return known == in_com_order.end() ? Serial_Device{.Path = path} : *known;
  }
  const auto index = static_cast<std::size_t>(number - 1);
  if (index >= in_com_order.size()) return std::nullopt;
  return in_com_order[index];
}

}  // namespace wrenbit
