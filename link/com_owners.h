// The file that tells whose the COM numbers are.
#pragma once

#include <filesystem>
#include <map>

#include "link/com_ports.h"

namespace wrenbit {

struct Com_Owner {
  bool BySerial = false;  // Wherever it is plugged in; else in its place only.
  Serial_Device Device = {};
};
using Com_Owners = std::map<int, Com_Owner>;  // By number, 1 to 20.

// A line that is damaged keeps its number for a device that is away: who knows whose it was. Any other text
// is passed over. None where there is no file, or it cannot be read.
Com_Owners Read_Com_Owners(const std::filesystem::path& file);

// Whole or not at all. A file that says the same already, or that cannot be read, is left alone.
void Write_Com_Owners(const std::filesystem::path& file, const Com_Owners& owners);

}  // namespace wrenbit
