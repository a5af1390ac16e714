#include "shell/qt/seams/qt_settings.h"

namespace wrenbit {
namespace {

QString Path(const std::string& section, const std::string& key) {
  return QString::fromStdString(section + "/" + key);
}

}  // namespace

std::string Qt_Settings::Get(const std::string& section, const std::string& key,
                             const std::string& otherwise) {
  const QVariant value = store.value(Path(section, key));
  if (!value.isValid()) return otherwise;
  // In a file edited by hand, a text with bare commas reads as a list.
  return value.toStringList().join(',').toStdString();
}

void Qt_Settings::Save(const std::string& section, const std::string& key, const std::string& value) {
  // What stands in the file already costs no wait for the disk. A failed save is tried again.
  store.sync();
  const QString path = Path(section, key);
  const QString text = QString::fromStdString(value);
  if (store.status() == QSettings::NoError && store.contains(path) && store.value(path) == text) return;
  store.setValue(path, text);
  store.sync();
}

}  // namespace wrenbit
