#include "board/board_terminal.h"

#include <windows.h>
#include <timeapi.h>

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "board/handle.h"
#include "board/waiting_replies.h"

namespace board {

namespace {

using Clock = Waiting_Replies::Clock;

HANDLE StopAsked;  // An event. The handler of the console's events runs in a thread of its own.

// Behind the console's close the system kills the process as soon as the handler returns. The process ends by
// itself, which takes this thread with it.
BOOL WINAPI On_Console_Event(DWORD event) {
  SetEvent(StopAsked);
  if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT) Sleep(INFINITE);
  return TRUE;
}

// A read, a write or the wait for a PC, which goes on while the board does other things.
struct Operation {
  Operation() {
    if (!Ended) Throw_Last_Error("making an event");
    State.hEvent = Ended.get();
  }

  // What the call that began it returned. False when it failed at once, for GetLastError to tell why.
  bool Begun(BOOL done) { return Pending = done || GetLastError() == ERROR_IO_PENDING; }
  bool Over() const { return Pending && HasOverlappedIoCompleted(&State); }

  Handle Ended = Owned(CreateEventW(nullptr, TRUE, FALSE, nullptr));
  OVERLAPPED State{};
  bool Pending = false;
};

}  // namespace

// The pipe as its server has it. What fails because the PC has gone is seen at the next read, when all is
// read that the PC sent before.
struct Board_Terminal::Port {
  Port() { timeBeginPeriod(1); }
  ~Port() {
    Cancel(In);
    Cancel(Out);
    timeEndPeriod(1);
  }

  void Cancel(Operation& operation) {
    if (!operation.Pending) return;
    CancelIoEx(Pipe.get(), &operation.State);
    Outcome(operation, TRUE);
  }

  // Ends it, and tells the bytes that got through; -1 when it failed.
  int Outcome(Operation& operation, BOOL wait = FALSE) {
    DWORD count = 0;
    const BOOL done = GetOverlappedResult(Pipe.get(), &operation.State, &count, wait);
    operation.Pending = false;
    return done ? static_cast<int>(count) : -1;
  }

  // Waits for the next PC. One that is gone again before it was seen is none.
  void Await_Pc() {
    Connected = false;
    for (; !In.Begun(ConnectNamedPipe(Pipe.get(), &In.State)); DisconnectNamedPipe(Pipe.get())) {
      const DWORD error = GetLastError();
      if (error == ERROR_PIPE_CONNECTED && Listen()) return;
      if (error != ERROR_PIPE_CONNECTED && error != ERROR_NO_DATA) Throw_Last_Error("waiting for a PC");
    }
  }

  // False when the PC has gone.
  bool Listen() {
    const auto room = static_cast<DWORD>(Sent.size());
    return Connected = In.Begun(ReadFile(Pipe.get(), Sent.data(), room, nullptr, &In.State));
  }

  // Something has come in: a PC, bytes of its, or its end.
  void Take_In(Waiting_Replies& replies) {
    const int got = Outcome(In);
    if (got > 0 && Connected)
      replies.Take_In(std::span(Sent.data(), static_cast<std::size_t>(got)), Clock::now());
    if (got >= 0 && Listen()) return;
    replies.Drop_All();
    Cancel(Out);
    DisconnectNamedPipe(Pipe.get());
    Await_Pc();
  }

  // Hands the PC all replies that are due. What the pipe has no room for stays under way.
  void Put_Out(Waiting_Replies& replies, Clock::time_point now) {
    Said = replies.Due(now);
    replies.Drop(Said.size());
    const auto count = static_cast<DWORD>(Said.size());
    if (count > 0) Out.Begun(WriteFile(Pipe.get(), Said.data(), count, nullptr, &Out.State));
  }

  Handle Pipe;
  Operation In, Out;
  bool Connected = false;  // There is a PC.
  std::array<std::uint8_t, 512> Sent;
  std::vector<std::uint8_t> Said;
};

Board_Terminal::Board_Terminal()
    : port(std::make_unique<Port>()),
      name(R"(\\.\pipe\tolvex-sim-)" + std::to_string(GetCurrentProcessId())) {
  constexpr DWORD kBuffer = 4096;
  port->Pipe = Owned(CreateNamedPipeA(
      name.c_str(), PIPE_ACCESS_DUPLEX | FILE_FLAG_OVERLAPPED | FILE_FLAG_FIRST_PIPE_INSTANCE,
      PIPE_TYPE_BYTE | PIPE_READMODE_BYTE | PIPE_WAIT | PIPE_REJECT_REMOTE_CLIENTS, 1, kBuffer, kBuffer, 0,
      nullptr));
  if (!port->Pipe) Throw_Last_Error("opening the pipe " + name);
  port->Await_Pc();
  StopAsked = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  if (!StopAsked || !SetConsoleCtrlHandler(On_Console_Event, TRUE))
    Throw_Last_Error("listening to the console");
}

Board_Terminal::~Board_Terminal() = default;

void Board_Terminal::Serve(Wire_End& end, const Port_Timing& timing, Typed_Lines& typed,
                           const std::function<void(const std::string& line)>& told) {
  Waiting_Replies replies(end, timing);
  while (true) {
    const auto now = Clock::now();
    if (port->Connected && !port->Out.Pending) port->Put_Out(replies, now);
    std::vector<HANDLE> events{StopAsked, port->In.Ended.get()};
    if (port->Out.Pending) events.push_back(port->Out.Ended.get());
    const auto keyboard = reinterpret_cast<HANDLE>(typed.Waitable());
    if (keyboard != INVALID_HANDLE_VALUE) events.push_back(keyboard);

    const auto rest = replies.Rest(now);
    const DWORD limit =
        rest ? static_cast<DWORD>(std::chrono::ceil<std::chrono::milliseconds>(*rest).count()) : INFINITE;
    const DWORD woken =
        WaitForMultipleObjects(static_cast<DWORD>(events.size()), events.data(), FALSE, limit);
    if (woken == WAIT_FAILED) Throw_Last_Error("waiting for the pipe");
    if (woken == WAIT_OBJECT_0) return;
    if (port->Out.Over()) port->Outcome(port->Out);
    if (port->In.Over()) port->Take_In(replies);
    if (keyboard == INVALID_HANDLE_VALUE || WaitForSingleObject(keyboard, 0) != WAIT_OBJECT_0) continue;
    for (const std::string& line : typed.Take()) told(line);
  }
}

}  // namespace board
