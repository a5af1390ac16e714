// The settings store of the real program: one place of the user's.
#pragma once

#include <QSettings>
#include <string>

#include "core/state/settings.h"
#include "shell/qt/seams/settings_place.h"

namespace wrenbit {

class Qt_Settings : public Settings_Store {
 public:
  // The place need not exist; a file's folder is made when the first value is saved.
  explicit Qt_Settings(const Settings_Place& place) : store(place.Name, place.Format) {}
  std::string Get(const std::string& section, const std::string& key, const std::string& otherwise) override;
  void Save(const std::string& section, const std::string& key, const std::string& value) override;

 private:
  QSettings store;
};

}  // namespace wrenbit
