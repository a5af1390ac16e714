// An open object of Windows, closed when its owner goes.
#pragma once

#include <memory>
#include <string>

namespace board {

struct Handle_Closer {
  void operator()(void* handle) const;
};
using Handle = std::unique_ptr<void, Handle_Closer>;

// Takes over what the system gave; null, when it gave none in either of its ways.
Handle Owned(void* handle);

// Throws std::runtime_error for the last error of the system; `subject` opens its text.
[[noreturn]] void Throw_Last_Error(const std::string& subject);

}  // namespace board
