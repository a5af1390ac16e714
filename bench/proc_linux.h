// What Linux tells below /proc, in files with a line for each name.
#pragma once

#include <fstream>
#include <string>
#include <string_view>

namespace bench {

// What stands behind the colon in the first line that begins with the name. Empty where the system does not
// tell.
inline std::string Proc_Field(const char* path, std::string_view name) {
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);)
    if (line.starts_with(name)) return line.substr(line.find(':') + 1);
  return {};
}

}  // namespace bench
