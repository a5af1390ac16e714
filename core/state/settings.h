// The user's stored settings: texts under a section and a key, written through one by one.
#pragma once

#include <string>

namespace wrenbit {

inline constexpr const char* kSettingsSection = "Settings";

// The nine keys, all in that section.
namespace key {
inline constexpr const char* kDut = "DUT";  // Combo_device's list index. Default 0.
inline constexpr const char* kAccessSize =
    "AccessSize";                                     // CmbSize's list index, not the exponent. Default 0.
inline constexpr const char* kMainLeft = "MainLeft";  // Twips, a fraction allowed. Default 1000.
inline constexpr const char* kMainTop = "MainTop";    // The same.
inline constexpr const char* kSaveDir = "SAVE_DIR";   // Folder without a closing separator. Default empty.
inline constexpr const char* kOpenDir = "OPEN_DIR0";  // The same.
inline constexpr const char* kComNo = "ComNo";        // Port number less 1. Default 0.
inline constexpr const char* kDtr = "DTR";            // "0" or "1". Default 0.
inline constexpr const char* kRts = "RTS";            // "0" or "1". Default 1.
}  // namespace key

class Settings_Store {
 public:
  virtual ~Settings_Store() = default;
  // What is stored, or the default. Never fails.
  virtual std::string Get(const std::string& section, const std::string& key,
                          const std::string& otherwise) = 0;
  // On its way to the disk when this returns. A store that cannot be written keeps the value for this run.
  virtual void Save(const std::string& section, const std::string& key, const std::string& value) = 0;
};

// The store in use. Set before anything else runs; owned by whoever sets it.
inline Settings_Store* TheSettings = nullptr;

std::string GetSetting(const char* key, const std::string& otherwise);
void SaveSetting(const char* key, const std::string& value);

// A stored number; the default also stands for a text that is no whole number.
long Get_Number_Setting(const char* key, long otherwise);

// Whether the control lines are on, by their keys and defaults.
bool Stored_RTS();
bool Stored_DTR();

}  // namespace wrenbit
