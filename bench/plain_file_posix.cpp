#include "bench/plain_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstddef>
#include <stdexcept>

namespace bench {

std::string Plain_Read(const std::string& path) {
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  struct stat facts {};
  fstat(file, &facts);
  std::string text(static_cast<std::size_t>(facts.st_size), '\0');
  const ssize_t got = read(file, text.data(), text.size());
  close(file);
  if (got != facts.st_size) throw std::runtime_error("a file cannot be read");
  return text;
}

std::vector<std::uint8_t> Plain_Bytes(const std::string& path) {
  const std::string text = Plain_Read(path);
  return {text.begin(), text.end()};
}

void Plain_Write(const std::string& path, std::string_view text, Durable durable) {
  const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  const bool written = write(file, text.data(), text.size()) == static_cast<ssize_t>(text.size()) &&
                       (durable == Durable::No || fsync(file) == 0);
  close(file);
  if (!written) throw std::runtime_error("a file cannot be written");
}

}  // namespace bench
