#include "core/state/whole_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <system_error>

namespace wrenbit {
namespace fs = std::filesystem;
namespace {

constexpr int kMostLinks = 40;  // As many as Linux follows.

std::string Reason(int error) {
  switch (error) {
    case ENOENT:
    case ENOTDIR:
      return "保存先のフォルダが見つかりません。";
    case EACCES:
    case EPERM:
    case EROFS:
      return "書き込みが許可されていないか、読み取り専用です。";
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return "ディスクの空き容量が足りません。";
    case EISDIR:
      return "同じ名前のフォルダがあります。";
    default:
      return "ファイルに書き込めません。(" + std::generic_category().message(error) + ")";
  }
}

// The path of the file itself, which may be yet to be made, at the end of a chain of links.
fs::path Behind_Links(fs::path path) {
  std::error_code no_link;
  for (int links = 0; links < kMostLinks; ++links) {
    const fs::path target = fs::read_symlink(path, no_link);
    if (no_link) break;
    path = path.parent_path() / target;
  }
  return path;
}

// A new file in the goal's folder, gone again unless it took the goal's place. What fails in it sets errno.
class Temporary {
 public:
  // O_EXCL neither opens what lies there already nor follows a link; the mode is left to the user's umask.
  explicit Temporary(const fs::path& folder)
      : path(folder / Unguessable_Name()),
        file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666)) {}
  Temporary(const Temporary&) = delete;
  Temporary& operator=(const Temporary&) = delete;
  ~Temporary() {
    if (!Made()) return;
    close(file);
    if (!moved) unlink(path.c_str());
  }

  bool Made() const { return file >= 0; }
  bool Set_Mode(mode_t mode) { return fchmod(file, mode) == 0; }
  bool Write(std::string_view text) {
    while (!text.empty()) {
      const ssize_t written = write(file, text.data(), text.size());
      if (written < 0 && errno == EINTR) continue;
      if (written < 0) return false;
      text.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
  }
  // Without the flush a loss of power could leave the goal's new name on a file without its bytes.
  bool Move_To(const fs::path& goal) {
    return moved = fsync(file) == 0 && rename(path.c_str(), goal.c_str()) == 0;
  }

 private:
  static std::string Unguessable_Name() {
    std::random_device random;
    return ".wrenbit-" + std::to_string(random()) + "-" + std::to_string(random());
  }

  const fs::path path;
  const int file;
  bool moved = false;
};

}  // namespace

bool File_Exists(const std::string& path) {
  std::error_code ignored;
  return fs::is_regular_file(path, ignored) && std::ifstream(path).is_open();
}

std::optional<std::string> Read_Whole_File(const std::string& path) {
  constexpr std::uintmax_t kLargestFile = 256u << 20;
  // Looked at before it is opened: opening a pipe would wait for a writer.
  std::error_code error;
  if (!fs::is_regular_file(path, error)) return std::nullopt;
  const std::uintmax_t size = fs::file_size(path, error);
  if (error || size > kLargestFile) return std::nullopt;
  std::ifstream file(path, std::ios::binary);
  if (!file) return std::nullopt;
  std::string text(static_cast<std::size_t>(size), '\0');
  file.read(text.data(), static_cast<std::streamsize>(text.size()));
  text.resize(static_cast<std::size_t>(file.gcount()));
  return text;
}

std::optional<std::string> Write_Whole_File(const std::string& path, std::string_view text) {
  const fs::path goal = Behind_Links(path);
  if (goal.empty()) return Reason(ENOENT);
  struct stat old {};
  const bool replaces = stat(goal.c_str(), &old) == 0;
  if (!replaces && errno != ENOENT) return Reason(errno);
  if (replaces) {
    if (S_ISDIR(old.st_mode)) return Reason(EISDIR);
    if (!S_ISREG(old.st_mode)) return "通常のファイルではないので、書き込めません。";
    // Moving a file over it asks the folder only.
    if (faccessat(AT_FDCWD, goal.c_str(), W_OK, AT_EACCESS) != 0) return Reason(errno);
  }
  Temporary file(goal.parent_path());
  const bool written = file.Made() && (!replaces || file.Set_Mode(old.st_mode & 07777)) && file.Write(text) &&
                       file.Move_To(goal);
  if (!written) return Reason(errno);
  return std::nullopt;
}

}  // namespace wrenbit
