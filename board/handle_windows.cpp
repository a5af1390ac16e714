#include "board/handle.h"

#include <windows.h>

#include <array>
#include <stdexcept>
#include <string_view>

#include "board/wide_text.h"

namespace board {

void Handle_Closer::operator()(void* handle) const { CloseHandle(handle); }

Handle Owned(void* handle) { return Handle(handle == INVALID_HANDLE_VALUE ? nullptr : handle); }

void Throw_Last_Error(const std::string& subject) {
  const DWORD error = GetLastError();
  std::array<wchar_t, 512> text;
  const DWORD length = FormatMessageW(
      FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK, nullptr,
      error, 0, text.data(), static_cast<DWORD>(text.size()), nullptr);
  std::string reason = Utf8(std::wstring_view(text.data(), length));
  while (reason.ends_with(' ') || reason.ends_with('.')) reason.pop_back();
  throw std::runtime_error(subject + ": " + (reason.empty() ? "error " + std::to_string(error) : reason));
}

}  // namespace board
