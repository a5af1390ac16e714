#include "shell/qt/seams/instance_lock.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>

namespace wrenbit {

// The descriptor stays open, since the lock ends with it, and programs that are started from here do not
// inherit it. Nothing is written, but over NFS only a file that is open for writing can be locked.
bool Claim_Instance(const std::string& file) {
  const int descriptor = open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
  return descriptor < 0 || flock(descriptor, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

}  // namespace wrenbit
