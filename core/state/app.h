// Who the program is, and where it lies.
#pragma once

#include <string>

namespace wrenbit {

// Facts of the program; the platform fills in what it knows before Main runs.
struct App_Facts {
  std::string Title = "wrenbit";
  int Major = WRENBIT_VERSION_MAJOR;  // As the build has them.
  int Minor = WRENBIT_VERSION_MINOR;
  int Revision = WRENBIT_VERSION_PATCH;
  std::string FileDescription =
      "TOLVEX Programmerを使用し、シリアルＥＥＰＲＯＭにプログラミングするためのソフトです。";
  std::string Comments;
  std::string Path;           // Folder of the program's file, no closing separator except at the root.
  std::string HelpFile;       // Whole path of the help file; empty when the program has none.
  bool PrevInstance = false;  // Another instance of this user's runs already.
};
inline App_Facts App;

inline constexpr const char* kSupportPage = "https://wrenbit.example/support";

// "1.2.10"
std::string App_Version();
// "WRENBIT"
std::string App_Title_Upper();

}  // namespace wrenbit
