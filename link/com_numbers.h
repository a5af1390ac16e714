// Whose the numbers COM1 to COM20 are.
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <vector>

#include "link/com_owners.h"
#include "link/com_ports.h"

namespace wrenbit {

// A number belongs to the device that answered behind it last, for as long as the user's file says so; while
// that device is away, no other takes its place. Links are the user's own word, and come first.
class Com_Numbers {
 public:
  // The user's configuration folder, with the links ports/COMn and the file com-numbers, neither of which
  // need be there; and where the system tells of its devices.
  explicit Com_Numbers(const std::filesystem::path& config_folder,
                       std::filesystem::path system_folder = "/sys");

  // The device of COMn, as things are now: the target of the link ports/COMn; else the device that the number
  // belongs to, its Path empty while it is away. What numbers are left go, in COM order, to the devices that
  // own none, or whose own one has a link to another, and which no link names. Nothing when n is outside 1 to
  // 20, no device is left for it, or the link leads to none. A virtual board holds a lock on COMn.lock beside
  // its link; a link whose lock nobody holds was left behind by a board that was killed, and counts as
  // absent.
  std::optional<Serial_Device> Device(int number) const;

  // The number belongs to this device, which Device gave for it, from now on; one that it had is free.
  // Nothing changes when it is away or the number has a link, nor where the file cannot be read or written.
  void Give(int number, const Serial_Device& device) const;

 private:
  // The owners that are present, by their numbers: taken out of the devices.
  std::map<int, Serial_Device> Take_Owners(const Com_Owners& owners,
                                           std::vector<Serial_Device>& devices) const;
  std::filesystem::path Symlink(int number) const;
  bool Has_Link(int number) const;

  const std::filesystem::path ports, file, system;
};

}  // namespace wrenbit
