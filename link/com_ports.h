// The serial devices that are present.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace wrenbit {

inline constexpr int kComPorts = 20;

struct Serial_Device {
  std::string Path = {};  // "/dev/ttyUSB0"; empty for one that is known and not plugged in.
  bool Usb = false;
  // As a USB device names itself; empty where it does not.
  std::string Maker = {};
  std::string Product = {};
  // Received bytes that a built-in port's UART collects before it hands any on; 0 when it does not tell.
  int ReceiveTrigger = 0;
  // What survives replugging. A USB device's vendor, product and interface, "0403:6001:1.0", and its serial
  // number, which it may not have; empty for others.
  std::string Kind = {};
  std::string Serial = {};
  // The socket of a USB device, without the number of its bus, which changes from boot to boot; the name of a
  // built-in port.
  std::string Place = {};

  bool operator==(const Serial_Device&) const = default;
};

// USB adapters first, in the order of their numbers, then the built-in ports in theirs. So one adapter,
// nothing configured, is COM1.
std::vector<Serial_Device> In_Com_Order(std::vector<Serial_Device> devices);

// The devices that are present and have hardware behind them, in no order. The folder is where the system
// tells of its devices.
std::vector<Serial_Device> Serial_Devices_Present(const std::filesystem::path& system_folder = "/sys");

}  // namespace wrenbit
