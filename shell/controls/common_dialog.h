// The file dialogs.
#pragma once

#include <functional>
#include <string>

namespace wrenbit {

// Everything is as the last use left it, until it is set again.
class CommonDialog {
 public:
  std::string DialogTitle;
  std::string InitDir;     // Folder to begin in; empty leaves it to the platform.
  std::string Filter;      // Name, "|", pattern, "|", and again.
  std::string DefaultExt;  // Goes behind a typed name that has none; when opening, if that file is there.
  std::string FileName;    // Proposed name before, whole path afterwards.
  std::string FileTitle;   // Name without the folder.

  // False when the user cancelled; the names are then as they were.
  bool ShowOpen() { return View_Open && View_Open(); }
  bool ShowSave() { return View_Save && View_Save(); }

  std::function<bool()> View_Open;
  std::function<bool()> View_Save;
};

}  // namespace wrenbit
