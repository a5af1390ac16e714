#include "shell/qt/seams/instance_lock.h"

#include <windows.h>

#include "core/state/wide_path.h"

namespace wrenbit {

// The file stays open and shared with nobody for the life of the process.
bool Claim_Instance(const std::string& file) {
  const HANDLE claim = CreateFileW(Long_Path(file).c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                   OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  return claim != INVALID_HANDLE_VALUE || GetLastError() != ERROR_SHARING_VIOLATION;
}

}  // namespace wrenbit
