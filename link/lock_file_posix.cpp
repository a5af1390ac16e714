#include "link/lock_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace wrenbit {

bool Lock_Was_Left_Behind(const std::filesystem::path& lock_file) {
  const int file = open(lock_file.c_str(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return false;
  const bool free = flock(file, LOCK_SH | LOCK_NB) == 0;
  close(file);
  return free;
}

}  // namespace wrenbit
