// The serial port of the real program.
#pragma once

#include <filesystem>
#include <memory>

#include "link/serial_backend.h"

namespace wrenbit {

// The platform's own. It lives while the application object does. The user's configuration folder tells whose
// the numbers are.
std::unique_ptr<Serial_Backend> Make_Serial_Port(const std::filesystem::path& config_folder);

}  // namespace wrenbit
