#include "shell/qt/seams/settings_place.h"

namespace wrenbit {

Settings_Place Place_Of_Settings(const QString& config_folder) {
  return {config_folder + QStringLiteral("/settings.ini"), QSettings::IniFormat};
}

}  // namespace wrenbit
