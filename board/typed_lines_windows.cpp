#include "board/typed_lines.h"

#include <windows.h>

#include <array>
#include <mutex>
#include <string_view>
#include <thread>
#include <utility>

#include "board/handle.h"
#include "board/wide_text.h"

namespace board {

namespace {

// Waits for bytes of the standard input; none at its end. A console tells what was typed in its code page,
// which lacks most letters, unless it is asked for wide characters.
std::string Read_Some(HANDLE file) {
  DWORD mode = 0, got = 0;
  if (GetConsoleMode(file, &mode)) {
    std::array<wchar_t, 4096> typed;
    const bool read = ReadConsoleW(file, typed.data(), static_cast<DWORD>(typed.size()), &got, nullptr);
    return Utf8(std::wstring_view(typed.data(), read ? got : 0));
  }
  std::array<char, 512> bytes;
  const bool read = ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &got, nullptr);
  return {bytes.data(), read ? got : 0};
}

}  // namespace

struct Typed_Lines::Input {
  struct Shared {
    std::mutex Mutex;
    std::string Bytes;   // Not yet taken.
    bool Ended = false;  // Nothing comes behind them.
    Handle Came =
        Owned(CreateEventW(nullptr, TRUE, FALSE, nullptr));  // Something of the above is to be taken.
  };

  // The system can't wait for a pipe and a console alike, so a thread waits in a read. Nothing ends that but
  // the process; what both use lives as long as either.
  static void Listen(const std::shared_ptr<Shared>& shared) {
    for (bool ended = false; !ended;) {
      const std::string bytes = Read_Some(GetStdHandle(STD_INPUT_HANDLE));
      ended = bytes.empty();
      const std::lock_guard lock(shared->Mutex);
      shared->Bytes += bytes;
      shared->Ended = ended;
      SetEvent(shared->Came.get());
    }
  }

  std::shared_ptr<Shared> Thread = std::make_shared<Shared>();
  bool Over = false;
};

Typed_Lines::Typed_Lines() : input(std::make_unique<Input>()) {
  if (!input->Thread->Came) Throw_Last_Error("making an event");
  std::thread(Input::Listen, input->Thread).detach();
}

Typed_Lines::~Typed_Lines() = default;

std::intptr_t Typed_Lines::Waitable() const {
  return input->Over ? -1 : reinterpret_cast<std::intptr_t>(input->Thread->Came.get());
}

std::optional<std::string> Typed_Lines::Read() {
  auto& [mutex, bytes, ended, came] = *input->Thread;
  const std::lock_guard lock(mutex);
  if (!ended) ResetEvent(came.get());
  if (!ended || !bytes.empty()) return std::exchange(bytes, {});
  input->Over = true;
  return std::nullopt;
}

}  // namespace board
