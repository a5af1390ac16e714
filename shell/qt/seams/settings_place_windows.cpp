#include "shell/qt/seams/settings_place.h"

namespace wrenbit {

Settings_Place Place_Of_Settings(const QString&) {
  return {QStringLiteral("HKEY_CURRENT_USER\\Software\\wrenbit"), QSettings::NativeFormat};
}

}  // namespace wrenbit
