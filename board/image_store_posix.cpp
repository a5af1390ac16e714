#include "board/image_store.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <stdexcept>

namespace board {

Image_Store::Image_Store(const std::string& image, std::size_t size)
    : Cell_Store(size), subject("image " + image), path(image), file(open(path.c_str(), O_RDWR | O_CLOEXEC)) {
  if (file) {
    Load();
  } else if (errno == ENOENT) {
    Create();
  } else {
    Throw_Errno(subject);
  }
}

void Image_Store::Create() {
  file = Descriptor(open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
  if (!file) Throw_Errno(subject);
  const ssize_t written = write(*file, bytes.data(), bytes.size());
  if (written == static_cast<ssize_t>(bytes.size())) return;
  if (written >= 0) errno = ENOSPC;  // A regular file takes less than asked only when the disk is full.
  const int reason = errno;
  unlink(path.c_str());
  errno = reason;
  Throw_Errno(subject);
}

void Image_Store::Load() {
  struct stat status {};
  if (fstat(*file, &status) != 0) Throw_Errno(subject);
  if (!S_ISREG(status.st_mode)) throw std::runtime_error(subject + ": not a regular file");
  if (status.st_size != static_cast<off_t>(bytes.size())) {
    throw std::runtime_error(subject + ": holds " + std::to_string(status.st_size) + " bytes, the chip " +
                             std::to_string(bytes.size()));
  }
  const ssize_t got = pread(*file, bytes.data(), bytes.size(), 0);
  if (got < 0) Throw_Errno(subject);
  if (got != static_cast<ssize_t>(bytes.size())) throw std::runtime_error(subject + ": ends early");
}

void Image_Store::Keep(std::size_t address, std::uint8_t value) {
  if (pwrite(*file, &value, 1, static_cast<off_t>(address)) != 1) Throw_Errno(subject);
}

}  // namespace board
