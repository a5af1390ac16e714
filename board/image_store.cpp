#include "board/image_store.h"

#include <cerrno>
#include <ios>
#include <stdexcept>
#include <system_error>

namespace board {

namespace fs = std::filesystem;

namespace {

// The C++ library tells that a file failed, errno why.
[[noreturn]] void Throw_Failure(const std::string& subject) {
  throw std::system_error(errno == 0 ? EIO : errno, std::generic_category(), subject);
}

}  // namespace

Image_Store::Image_Store(const std::string& image, std::size_t size)
    : Cell_Store(size), subject("image " + image), path(std::u8string(image.begin(), image.end())) {
  file.rdbuf()->pubsetbuf(nullptr, 0);
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (status.type() == fs::file_type::not_found) {
    Create();
  } else if (status.type() == fs::file_type::none) {
    throw std::system_error(error, subject);
  } else if (!fs::is_regular_file(status)) {
    throw std::runtime_error(subject + ": not a regular file");
  } else {
    Load();
  }
}

void Image_Store::Open(std::ios::openmode mode) {
  errno = 0;
  file.open(path, mode | std::ios::in | std::ios::out | std::ios::binary);
  if (!file) Throw_Failure(subject);
}

void Image_Store::Create() {
  Open(std::ios::trunc);
  if (file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size())))
    return;
  const int reason = errno;
  file.close();
  std::error_code ignored;
  fs::remove(path, ignored);
  errno = reason;
  Throw_Failure(subject);
}

void Image_Store::Load() {
  Open({});
  const std::uintmax_t length = fs::file_size(path);
  if (length != bytes.size()) {
    throw std::runtime_error(subject + ": holds " + std::to_string(length) + " bytes, the chip " +
                             std::to_string(bytes.size()));
  }
  file.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  if (file.bad()) Throw_Failure(subject);
  if (!file) throw std::runtime_error(subject + ": ends early");
}

void Image_Store::Keep(std::size_t address, std::uint8_t value) {
  file.clear();
  errno = 0;
  if (!file.seekp(static_cast<std::streamoff>(address)).put(static_cast<char>(value)).flush())
    Throw_Failure(subject);
}

}  // namespace board
