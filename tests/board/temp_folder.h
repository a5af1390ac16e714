// A folder of a test's own, gone with it.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

class Temp_Folder {
 public:
  Temp_Folder() {
    std::random_device chance;
    do {
      Path = std::filesystem::temp_directory_path() / ("board_test_" + std::to_string(chance()));
    } while (!std::filesystem::create_directory(Path));
  }
  ~Temp_Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(Path, ignored);
  }
  Temp_Folder(const Temp_Folder&) = delete;
  Temp_Folder& operator=(const Temp_Folder&) = delete;

  std::filesystem::path operator/(const char* name) const { return Path / name; }

 private:
  std::filesystem::path Path;
};

inline std::string Content(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

inline void Put_Content(const std::filesystem::path& path, const std::string& content) {
  std::ofstream(path, std::ios::binary) << content;
}
