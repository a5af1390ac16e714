#include "core/state/whole_file.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace wrenbit {
namespace fs = std::filesystem;

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

}  // namespace wrenbit
