// The catalogue as the program's list of devices.
#pragma once

#include <string>
#include <vector>

namespace wrenbit {

inline constexpr const char* kCatalogueName = "wrenbit.ini";

// Reads the file beside the program into DeviceTable and CatalogueVersionText, shows its version, which loads
// the main window, fills Combo_device, and selects the stored device, or the first one when the stored one is
// not in the list. False when the file holds no device row or cannot be read: nothing else has happened then.
// What is wrong with single rows is put into `problems`, a line each.
bool Load_Catalogue(std::vector<std::string>& problems);

}  // namespace wrenbit
