// A folder for what is measured, gone with the object.
#pragma once

#include <QTemporaryDir>
#include <stdexcept>

namespace bench {

class Temporary_Folder {
 public:
  Temporary_Folder() {
    if (!folder.isValid())
      throw std::runtime_error("no temporary folder: " + folder.errorString().toStdString());
  }
  QString Path() const { return folder.path(); }
  QString File(const char* name) const { return folder.filePath(name); }

 private:
  QTemporaryDir folder;
};

}  // namespace bench
