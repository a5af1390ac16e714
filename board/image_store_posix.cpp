#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <stdexcept>

#include "image_store.h"

namespace board {

Image_Store::Image_Store(const std::string& path, std::size_t size)
    : Cell_Store(size), Subject("image " + path), Path(path), File(open(path.c_str(), O_RDWR | O_CLOEXEC)) {
  if (File) {
    Load();
  } else if (errno == ENOENT) {
    Create();
  } else {
    Throw_Errno(Subject);
  }
}

void Image_Store::Create() {
  File = Descriptor(open(Path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
  if (!File) Throw_Errno(Subject);
  const ssize_t written = write(*File, Bytes.data(), Bytes.size());
  if (written == static_cast<ssize_t>(Bytes.size())) return;
  if (written >= 0) errno = ENOSPC;  // A regular file takes less than asked only when the disk is full.
  const int reason = errno;
  unlink(Path.c_str());
  errno = reason;
  Throw_Errno(Subject);
}

void Image_Store::Load() {
  struct stat status {};
  if (fstat(*File, &status) != 0) Throw_Errno(Subject);
  if (!S_ISREG(status.st_mode)) throw std::runtime_error(Subject + ": not a regular file");
  if (status.st_size != static_cast<off_t>(Bytes.size())) {
    throw std::runtime_error(Subject + ": holds " + std::to_string(status.st_size) + " bytes, the chip " +
                             std::to_string(Bytes.size()));
  }
  const ssize_t got = pread(*File, Bytes.data(), Bytes.size(), 0);
  if (got < 0) Throw_Errno(Subject);
  if (got != static_cast<ssize_t>(Bytes.size())) throw std::runtime_error(Subject + ": ends early");
}

void Image_Store::Keep(std::size_t address, std::uint8_t value) {
  if (pwrite(*File, &value, 1, static_cast<off_t>(address)) != 1) Throw_Errno(Subject);
}

}  // namespace board
