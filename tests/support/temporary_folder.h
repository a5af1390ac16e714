// A folder of a test's own, open to every user, gone with all that it holds when the test is over.
#pragma once

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

class Temporary_Folder {
 public:
  Temporary_Folder() {
    std::random_device random;
    do {
      path = (std::filesystem::temp_directory_path() / ("wrenbit-test-" + std::to_string(random()))).string();
    } while (!std::filesystem::create_directory(path));
    std::filesystem::permissions(path, std::filesystem::perms::all);
  }
  Temporary_Folder(const Temporary_Folder&) = delete;
  Temporary_Folder& operator=(const Temporary_Folder&) = delete;
  ~Temporary_Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
  }

  const std::string& Path() const { return path; }
  std::string operator/(const std::string& name) const { return path + "/" + name; }
  std::ptrdiff_t Entries() const {
    return std::distance(std::filesystem::directory_iterator(path), std::filesystem::directory_iterator());
  }

 private:
  std::string path;
};

inline std::string Content(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

inline void Put_Content(const std::filesystem::path& path, const std::string& content) {
  std::ofstream(path, std::ios::binary) << content;
}
