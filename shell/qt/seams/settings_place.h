// Where the settings of the real program lie.
#pragma once

#include <QSettings>
#include <QString>

namespace wrenbit {

struct Settings_Place {
  QString Name;
  QSettings::Format Format;
};

// The platform's own for this user: on Windows the registry, elsewhere a file in the configuration folder.
Settings_Place Place_Of_Settings(const QString& config_folder);

}  // namespace wrenbit
