#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <ctime>
#include <string>
#include <vector>

#include "shell/qt/seams/serial_handle.h"

namespace wrenbit {
namespace {

constexpr std::time_t kNew = 3;  // Seconds.

bool In_This_Session(gid_t group) {
  std::vector<gid_t> groups(static_cast<std::size_t>(std::max(getgroups(0, nullptr), 0)));
  groups.resize(
      static_cast<std::size_t>(std::max(getgroups(static_cast<int>(groups.size()), groups.data()), 0)));
  return getegid() == group || std::ranges::count(groups, group) > 0;
}

// As the group database has it, from the next login on.
bool Is_Member(gid_t group) {
  const passwd* user = getpwuid(geteuid());
  if (!user) return false;
  if (user->pw_gid == group) return true;
  const std::string name = user->pw_name;
  const ::group* entry = getgrgid(group);
  for (char** member = entry ? entry->gr_mem : nullptr; member && *member; ++member)
    if (*member == name) return true;
  return false;
}

}  // namespace

bool Rights_May_Come(const std::string& device) {
  // The kernel makes a device for root alone; udev gives it to its group, and then its rights are final.
  struct stat node {};
  return stat(device.c_str(), &node) == 0 && node.st_gid == 0 &&
         std::abs(std::time(nullptr) - node.st_ctime) <= kNew;
}

std::string Missing_Right(const std::string& device) {
  struct stat node {};
  if (stat(device.c_str(), &node) != 0 || node.st_uid == geteuid()) return "";
  constexpr mode_t kBoth = S_IRGRP | S_IWGRP;
  if (node.st_gid == 0 || (node.st_mode & kBoth) != kBoth) {
    const passwd* owner = getpwuid(node.st_uid);
    return owner ? std::string(owner->pw_name) + "のみ使用可" : "";
  }
  if (In_This_Session(node.st_gid)) return "";
  if (Is_Member(node.st_gid)) return "再ログインが必要";
  const group* entry = getgrgid(node.st_gid);
  return (entry ? entry->gr_name : std::to_string(node.st_gid)) + "に加入";
}

}  // namespace wrenbit
