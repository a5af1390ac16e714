// A folder of a test's own, open to every user, gone with all that it holds when the test is over.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>

class Temporary_Folder {
 public:
  Temporary_Folder() : path(testing::TempDir() + "wrenbit-test-XXXXXX") {
    if (mkdtemp(path.data()) == nullptr) throw std::runtime_error("no temporary folder " + path);
    std::filesystem::permissions(path, std::filesystem::perms::all);
  }
  Temporary_Folder(const Temporary_Folder&) = delete;
  Temporary_Folder& operator=(const Temporary_Folder&) = delete;
  ~Temporary_Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
  }

  std::string operator/(const std::string& name) const { return path + "/" + name; }
  long Entries() const {
    return std::distance(std::filesystem::directory_iterator(path), std::filesystem::directory_iterator());
  }

  const std::string& Path() const { return path; }

 private:
  std::string path;
};
