#include "board/com_port_link.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <system_error>
#include <thread>

#include "board/descriptor.h"

namespace board {

namespace fs = std::filesystem;

namespace {

// The XDG Base Directory rules: a relative path in the variable doesn't count.
fs::path Ports_Folder() {
  const char* xdg = std::getenv("XDG_CONFIG_HOME");
  const char* home = std::getenv("HOME");
  fs::path config;
  if (xdg && *xdg == '/') {
    config = xdg;
  } else if (home && *home) {
    config = fs::path(home) / ".config";
  } else {
    throw std::runtime_error("neither XDG_CONFIG_HOME nor HOME says where the ports are");
  }
  fs::create_directories(config / "wrenbit" / "ports");
  return config / "wrenbit" / "ports";
}

fs::path With_Suffix(fs::path path, const char* suffix) { return path += suffix; }

// A board's link leads to a pseudo terminal and has its lock beside it. Nothing else may be replaced.
void Refuse_Foreign(const fs::path& link, const fs::path& lock) {
  const auto status = fs::symlink_status(link);
  if (!fs::exists(status)) return;
  const bool ours =
      fs::is_symlink(status) && fs::read_symlink(link).parent_path() == "/dev/pts" && fs::exists(lock);
  if (!ours)
    throw std::runtime_error(link.string() + " is there and was not made by a board; it is left alone");
}

bool Names_File(const fs::path& path, int file) {
  struct stat named {
  }, open{};
  return stat(path.c_str(), &named) == 0 && fstat(file, &open) == 0 && named.st_dev == open.st_dev &&
         named.st_ino == open.st_ino;
}

// True when the lock is ours. A program that looks whether a board lives shares the lock for a moment.
bool Lock_Alone(int file, const fs::path& path) {
  constexpr int kTries = 50;
  for (int tries = 1; flock(file, LOCK_EX | LOCK_NB) != 0; ++tries) {
    if (errno != EWOULDBLOCK) Throw_Errno(path.string());
    if (tries == kTries) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return true;
}

// A lock beside the link, held as long as the board lives. The system drops it when the board is killed,
// which tells a link that was left behind from one in use.
class Com_Port_Lock {
 public:
  // Throws std::runtime_error when another board holds `link` for half a second, or somebody else made it.
  explicit Com_Port_Lock(const fs::path& link);
  ~Com_Port_Lock();
  Com_Port_Lock(const Com_Port_Lock&) = delete;
  Com_Port_Lock& operator=(const Com_Port_Lock&) = delete;

 private:
  fs::path path;
  Descriptor file;
};

Com_Port_Lock::Com_Port_Lock(const fs::path& link) : path(With_Suffix(link, ".lock")) {
  Refuse_Foreign(link, path);
  // A board that ends may remove the file between the open and the lock; a lock on a nameless file keeps
  // nobody out.
  do {
    file = Descriptor(open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666));
    if (!file) Throw_Errno(path.string());
    if (!Lock_Alone(*file, path))
      throw std::runtime_error("another board is on " + link.filename().string() + " (" + link.string() +
                               ")");
  } while (!Names_File(path, *file));
}

Com_Port_Lock::~Com_Port_Lock() { unlink(path.c_str()); }

}  // namespace

struct Com_Port_Link::Claim {
  fs::path Path;
  std::string Device;
  Com_Port_Lock Lock{Path};
};

Com_Port_Link::Com_Port_Link(int number, const std::string& device)
    : claim(new Claim{.Path = Ports_Folder() / ("COM" + std::to_string(number)), .Device = device}) {
  const fs::path made = With_Suffix(claim->Path, ".new");
  fs::remove(made);
  fs::create_symlink(device, made);
  fs::rename(made, claim->Path);
}

Com_Port_Link::~Com_Port_Link() {
  std::error_code ignored;
  if (fs::read_symlink(claim->Path, ignored) == claim->Device) fs::remove(claim->Path, ignored);
}

}  // namespace board
