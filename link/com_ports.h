// Which serial device stands behind COM1 to COM20.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace wrenbit {

inline constexpr int kComPorts = 20;

struct Serial_Device {
  std::string Path;  // "/dev/ttyUSB0"
  bool Usb = false;
  // As a USB device names itself; empty where it does not.
  std::string Maker = {};
  std::string Product = {};
  // Received bytes that a built-in port's UART collects before it hands any on; 0 when it does not tell.
  int Receive_Trigger = 0;
};

// USB adapters first, in the order of their numbers, then the built-in ports in theirs. So one adapter,
// nothing configured, is COM1.
std::vector<Serial_Device> In_Com_Order(std::vector<Serial_Device> devices);

// The devices that are present and have hardware behind them, in no order. The folder is where the system
// tells of its devices.
std::vector<Serial_Device> Serial_Devices_Present(const std::filesystem::path& system_folder = "/sys");

// The device of COMn: the target of the link ports_folder/COMn, else the n-th of the devices in COM order.
// Nothing when n is outside 1 to 20 or no device is left for it, and nothing when the link leads to no
// device: no other one takes the place of an adapter that is unplugged. A virtual board holds a lock on
// COMn.lock beside its link; a link whose lock nobody holds was left behind by a board that was killed, and
// counts as absent.
std::optional<Serial_Device> Device_Of_Com(int number, const std::filesystem::path& ports_folder,
                                           const std::vector<Serial_Device>& in_com_order);

// True when a file is there that a process could hold a lock on, and none does.
bool Lock_Was_Left_Behind(const std::filesystem::path& lock_file);

}  // namespace wrenbit
