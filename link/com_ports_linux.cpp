// Serial devices as Linux tells of them under /sys/class/tty.
#include "link/com_ports.h"

#include <algorithm>
#include <fstream>
#include <string>
#include <system_error>
#include <utility>

namespace wrenbit {
namespace {

std::string First_Line(const std::filesystem::path& file) {
  std::ifstream content(file);
  std::string line;
  std::getline(content, line);
  std::ranges::replace_if(
      line, [](unsigned char c) { return c < ' '; }, ' ');
  return line;
}

std::string Behind(const std::string& text, char mark) { return text.substr(text.find(mark) + 1); }

// 0 when there is no such file, and no number in it.
int Number_In(const std::filesystem::path& file) {
  int number = 0;
  std::ifstream(file) >> number;
  return number;
}

// ".../0000:00:14.0/usb1/1-2/1-2.3/1-2.3:1.0/ttyUSB0": controller, root hub, hub, device, interface, port. Of
// some devices, ttyACM among them, the interface is the port.
void Describe_Usb(const std::filesystem::path& port, Serial_Device& device) {
  std::error_code none;
  std::filesystem::path usb = port, interface;
  while (usb.has_relative_path() && !std::filesystem::exists(usb / "idVendor", none)) {
    interface = usb.filename();
    usb = usb.parent_path();
  }
  if (!usb.has_relative_path()) return;
  device.Maker = First_Line(usb / "manufacturer");
  device.Product = First_Line(usb / "product");
  device.Serial = First_Line(usb / "serial");

  // Behind the device's own name, which begins with the number of the bus.
  std::string which = Behind(interface.string(), ':');
  if (const int number = Number_In(port / "port_number")) (which += '.') += std::to_string(number);
  device.Kind = First_Line(usb / "idVendor") + ":" + First_Line(usb / "idProduct") + ":" + which;
  std::filesystem::path controller = usb.parent_path();
  while (controller.filename().string().find('-') != std::string::npos) controller = controller.parent_path();
  device.Place =
      controller.parent_path().string() + "/usb-" + Behind(usb.filename().string(), '-') + ":" + which;
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
    device.ReceiveTrigger = Number_In(tty->path() / "rx_trig_bytes");
    device.Place = tty->path().filename().string();
    if (device.Usb) Describe_Usb(hardware, device);
    present.push_back(std::move(device));
  }
  return present;
}

}  // namespace wrenbit
