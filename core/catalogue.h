// The catalogue as the program's list of devices.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace wrenbit {

inline constexpr const char* kCatalogueName = "wrenbit.ini";

// The file's bytes as UTF-8: behind a UTF-8 byte order mark, which is dropped, as they are, even where they
// are no UTF-8; otherwise from code page 932. The byte 0x1A ends the text: the end-of-file mark of old
// editors, at which sequential reading on DOS and Windows stops.
std::string Catalogue_Text(std::string_view bytes);

// Reads the file beside the program into DeviceTable and CatalogueVersionText, shows its version, which loads
// the main window, fills Combo_device, and selects the stored device, or the first one when the stored one is
// not in the list. False when the file holds no device row or cannot be read: nothing else has happened then.
// What is wrong with single rows is put into `problems`, a line each.
bool Load_Catalogue(std::vector<std::string>& problems);

}  // namespace wrenbit
