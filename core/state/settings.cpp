#include "settings.h"

#include "number_text.h"

namespace wrenbit {

std::string GetSetting(const char* name, const std::string& otherwise) {
  return TheSettings->Get(kSettingsSection, name, otherwise);
}

void SaveSetting(const char* name, const std::string& value) {
  TheSettings->Save(kSettingsSection, name, value);
}

long Get_Number_Setting(const char* name, long otherwise) {
  return Whole_Number(GetSetting(name, "")).value_or(otherwise);
}

}  // namespace wrenbit
