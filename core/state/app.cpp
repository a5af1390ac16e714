#include "core/state/app.h"

#include <algorithm>

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

}  // namespace wrenbit
