#include "link/com_numbers.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "link/com_owners.h"
#include "link/lock_file.h"

namespace wrenbit {
namespace fs = std::filesystem;
namespace {

bool Same_Serial(const Serial_Device& a, const Serial_Device& b) {
  return a.Kind == b.Kind && a.Serial == b.Serial && !a.Serial.empty();
}

bool Same_Place(const Serial_Device& a, const Serial_Device& b) {
  return a.Kind == b.Kind && a.Serial == b.Serial && a.Place == b.Place;
}

// The device that the link leads to, which may be a pseudo terminal; empty when it leads to none.
std::string Target(const fs::path& link) {
  std::error_code error;
  if (!fs::is_character_file(link, error)) return {};
  return fs::canonical(link, error).string();
}

fs::path Symlink(const fs::path& ports, int number) { return ports / ("COM" + std::to_string(number)); }

bool Has_Link(const fs::path& ports, int number) {
  std::error_code ignored;
  return fs::is_symlink(Symlink(ports, number), ignored) &&
         !Lock_Was_Left_Behind(Symlink(ports, number) += ".lock");
}

// The owners that are present and whose number has no link, by their numbers: taken out of the devices.
std::map<int, Serial_Device> Take_Owners(const Com_Owners& owners, const fs::path& ports,
                                         std::vector<Serial_Device>& devices) {
  std::map<int, Serial_Device> at_home;
  const auto seat = [&](auto is_owner) {
    for (const auto& [owned, owner] : owners) {
      const auto found = std::ranges::find_if(
          devices, [&, &who = owner](const Serial_Device& d) { return is_owner(who, d); });
      if (at_home.contains(owned) || Has_Link(ports, owned) || found == devices.end()) continue;
      at_home.emplace(owned, *found);
      devices.erase(found);
    }
  };
  // Who is where it was goes before who has only the serial number.
  seat([](const Com_Owner& owner, const Serial_Device& d) { return Same_Place(owner.Device, d); });
  seat([&](const Com_Owner& owner, const Serial_Device& device) {
    // A serial number that several have tells nobody apart.
    const auto same = [&](const Serial_Device& other) { return Same_Serial(device, other); };
    return owner.BySerial && same(owner.Device) && std::ranges::count_if(devices, same) == 1 &&
           std::ranges::count_if(owners, [&](const auto& o) { return same(o.second.Device); }) == 1;
  });
  return at_home;
}

}  // namespace

Com_Numbers::Com_Numbers(const fs::path& config_folder, fs::path system_folder)
    : ports(config_folder / "ports"), file(config_folder / "com-numbers"), system(std::move(system_folder)) {}

std::optional<Serial_Device> Com_Numbers::Device(int number) const {
  if (number < 1 || number > kComPorts) return std::nullopt;
  std::vector<Serial_Device> devices = In_Com_Order(Serial_Devices_Present(system));
  if (Has_Link(ports, number)) {
    const std::string path = Target(Symlink(ports, number));
    if (path.empty()) return std::nullopt;
    const auto known = std::ranges::find(devices, path, &Serial_Device::Path);
    return known == devices.end() ? Serial_Device{.Path = path} : *known;
  }

  const Com_Owners owners = Read_Com_Owners(file);
  const std::map<int, Serial_Device> at_home = Take_Owners(owners, ports, devices);
  if (at_home.contains(number)) return at_home.at(number);
  if (owners.contains(number)) return owners.at(number).Device;

  std::size_t free_before = 0;
  for (int other = 1; other <= kComPorts; ++other) {
    const bool linked = Has_Link(ports, other);
    if (linked)
      std::erase_if(devices, [&](const auto& d) { return d.Path == Target(Symlink(ports, other)); });
    if (other < number && !linked && !owners.contains(other)) ++free_before;
  }
  if (free_before >= devices.size()) return std::nullopt;
  return devices[free_before];
}

void Com_Numbers::Give(int number, const Serial_Device& device) const {
  if (device.Path.empty() || device.Place.empty() || Has_Link(ports, number)) return;
  Com_Owners owners = Read_Com_Owners(file);
  // Many cheap adapters share one serial number. That two of them were seen together once stays known.
  const std::vector<Serial_Device> present = Serial_Devices_Present(system);
  const auto same = [&](const Serial_Device& other) { return Same_Serial(device, other); };
  const bool shared =
      std::ranges::count_if(present, same) > 1 ||
      std::ranges::any_of(owners, [&](const auto& o) { return !o.second.BySerial && same(o.second.Device); });
  for (auto& [owned, owner] : owners)
    if (shared && same(owner.Device)) owner.BySerial = false;
  // It leaves the number that it had.
  std::erase_if(owners, [&](const auto& o) {
    return Same_Place(o.second.Device, device) || (o.second.BySerial && same(o.second.Device));
  });
  owners[number] = {!device.Serial.empty() && !shared, device};
  Write_Com_Owners(file, owners);
}

}  // namespace wrenbit
