#include "qt_settings.h"

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
  store.setValue(Path(section, key), QString::fromStdString(value));
  store.sync();
}

}  // namespace wrenbit
