// The settings store of the real program: one INI file in the user's configuration folder.
#pragma once

#include <QSettings>
#include <string>

#include "core/state/settings.h"

namespace wrenbit {

class Qt_Settings : public Settings_Store {
 public:
  // The file need not exist; its folder is made when the first value is saved.
  explicit Qt_Settings(const QString& file) : store(file, QSettings::IniFormat) {}
  std::string Get(const std::string& section, const std::string& key, const std::string& otherwise) override;
  void Save(const std::string& section, const std::string& key, const std::string& value) override;

 private:
  QSettings store;
};

}  // namespace wrenbit
