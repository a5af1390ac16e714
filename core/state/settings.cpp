#include "core/state/settings.h"

#include "core/state/number_text.h"

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

bool Stored_RTS() { return Get_Number_Setting(key::kRts, 1) != 0; }
bool Stored_DTR() { return Get_Number_Setting(key::kDtr, 0) != 0; }

}  // namespace wrenbit
