#include "platform.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace wrenbit {

std::string App_Version() {
  return std::to_string(App.Major) + "." + std::to_string(App.Minor) + "." + std::to_string(App.Revision);
}

std::string App_Title_Upper() {
  std::string title = App.Title;
  std::transform(title.begin(), title.end(), title.begin(),
                 [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
  return title;
}

bool File_Exists(const std::string& path) {
  std::error_code ignored;
  return std::filesystem::is_regular_file(path, ignored) && std::ifstream(path).is_open();
}

}  // namespace wrenbit
