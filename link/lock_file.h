// Files that a process holds a lock on to say that it lives.
#pragma once

#include <filesystem>

namespace wrenbit {

// True when a file is there that a process could hold a lock on, and none does.
bool Lock_Was_Left_Behind(const std::filesystem::path& lock_file);

}  // namespace wrenbit
