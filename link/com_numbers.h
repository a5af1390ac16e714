// Whose the numbers COM1 to COM20 are.
#pragma once

#include <filesystem>
#include <optional>

#include "link/com_ports.h"

namespace wrenbit {

// On Linux a number belongs to the device that answered behind it last, for as long as the user's file says
// so; while that device is away, no other takes its place. On Windows the numbers are the system's own. What
// the user, or a virtual board, puts behind a number in the folder ports comes first on both.
class Com_Numbers {
 public:
  // The user's configuration folder, with ports/COMn and the file com-numbers, neither of which need be
  // there; and where Linux tells of its devices.
  explicit Com_Numbers(const std::filesystem::path& config_folder,
                       std::filesystem::path system_folder = "/sys");

  // The device of COMn, as things are now: on Linux what the link ports/COMn leads to, on Windows what the
  // first line of ports\port-COMn.txt names; else the device that the number belongs to, its Path empty while
  // it is away. What numbers are left go on Linux, in COM order, to the devices that own none, or whose own
  // one has a link to another, and which no link names. Nothing when n is outside 1 to 20, no device is left
  // for it, or the link leads to none. On Linux a virtual board holds a lock on COMn.lock beside its link; a
  // link whose lock nobody holds was left behind by a board that was killed, and counts as absent.
  std::optional<Serial_Device> Device(int number) const;

  // The number belongs to this device, which Device gave for it, from now on; one that it had is free.
  // Nothing changes when it is away or the number has a link, nor where the file cannot be read or written,
  // nor on Windows.
  void Give(int number, const Serial_Device& device) const;

 private:
  const std::filesystem::path ports, file, system;
};

}  // namespace wrenbit
