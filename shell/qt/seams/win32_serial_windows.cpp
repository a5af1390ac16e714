// A COM port of Windows, or the named pipe of a virtual board.
#include <windows.h>

#include <QMetaObject>
#include <QObject>
#include <string>
#include <utility>

#include "core/state/wide_path.h"
#include "link/com_numbers.h"
#include "link/mscomm.h"
#include "shell/qt/seams/serial_port.h"

namespace wrenbit {
namespace {

constexpr DWORD kPatience = 100;    // Milliseconds that a write may take beyond the time of its bytes,
constexpr DWORD kByteSlowness = 2;  // which have a little more than 1 ms each on the wire.

// Milliseconds, asked for while a port is open; by itself the system wakes a program every 16. Windows 11
// grants it to windows that are seen.
constexpr UINT kResolution = 1;

Port_Fault Fault_Of(DWORD error) {
  switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
      return Port_Fault::No_Such_Port;
    case ERROR_ACCESS_DENIED:  // What drivers say of a port that is open already.
    case ERROR_SHARING_VIOLATION:
    case ERROR_PIPE_BUSY:
      return Port_Fault::In_Use;
    case ERROR_DEVICE_NOT_CONNECTED:
    case ERROR_BAD_COMMAND:
    case ERROR_DEVICE_REMOVED:
      return Port_Fault::Gone;
    default:
      return Port_Fault::Refused;
  }
}

// A virtual board that was just let go of takes a moment to listen again.
HANDLE Open_Device(const std::wstring& path) {
  while (true) {
    const HANDLE device =
        CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                    FILE_FLAG_OVERLAPPED | SECURITY_SQOS_PRESENT | SECURITY_ANONYMOUS, nullptr);
    if (device != INVALID_HANDLE_VALUE || GetLastError() != ERROR_PIPE_BUSY) return device;
    if (WaitNamedPipeW(path.c_str(), kPatience)) continue;
    SetLastError(ERROR_PIPE_BUSY);
    return device;
  }
}

// 9600 baud, 8N1, no flow control; reads wait for their byte.
bool Set_Up(HANDLE port, bool rts, bool dtr) {
  DCB line{};
  line.DCBlength = sizeof line;
  if (!GetCommState(port, &line)) return false;
  line.BaudRate = CBR_9600;
  line.ByteSize = 8;
  line.Parity = NOPARITY;
  line.StopBits = ONESTOPBIT;
  line.fBinary = TRUE;
  line.fParity = line.fErrorChar = line.fNull = line.fAbortOnError = FALSE;
  line.fOutxCtsFlow = line.fOutxDsrFlow = line.fDsrSensitivity = line.fOutX = line.fInX = FALSE;
  line.fRtsControl = rts ? RTS_CONTROL_ENABLE : RTS_CONTROL_DISABLE;
  line.fDtrControl = dtr ? DTR_CONTROL_ENABLE : DTR_CONTROL_DISABLE;
  COMMTIMEOUTS none{};
  return SetCommState(port, &line) && SetCommTimeouts(port, &none) && SetCommMask(port, 0) &&
         PurgeComm(port, PURGE_RXCLEAR | PURGE_TXCLEAR | PURGE_RXABORT | PURGE_TXABORT);
}

class Win32_Serial : public Serial_Backend {
 public:
  explicit Win32_Serial(const std::filesystem::path& config_folder) : numbers(config_folder) {}
  ~Win32_Serial() override {
    Close();
    CloseHandle(written);
  }

  Port_Fault Open(int number, bool rts, bool dtr) override;
  std::string Missing_Right() override { return {}; }
  std::optional<Serial_Device> Device(int number) override { return numbers.Device(number); }
  void Keep_Number() override {}
  void Close() override;
  bool Lost() override;
  std::size_t Waiting() override;
  std::vector<std::uint8_t> Take() override { return std::exchange(received, {}); }
  void Drop() override;
  bool Write(std::span<const std::uint8_t> bytes) override;

 private:
  bool Is_Open() const { return port != INVALID_HANDLE_VALUE; }
  void Ask_For_A_Byte();
  static void CALLBACK Arrived(DWORD error, DWORD count, OVERLAPPED* read);
  void Lose();
  void Release();

  const Com_Numbers numbers;
  HANDLE port = INVALID_HANDLE_VALUE;
  const HANDLE written = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  OVERLAPPED reading{};
  bool asked = false;     // A byte is asked for,
  std::uint8_t next = 0;  // and arrives here.
  std::vector<std::uint8_t> received;
  bool lost = false;
  QObject loop;  // Carries what is to be done from the event loop, and ends its wait.
};

Port_Fault Win32_Serial::Open(int number, bool rts, bool dtr) {
  Close();
  const std::optional<Serial_Device> device = numbers.Device(number);
  if (!device) return Port_Fault::No_Such_Port;
  // Without the prefix no number above 9 is a port.
  const std::string path = device->Path.starts_with("\\\\") ? device->Path : "\\\\.\\" + device->Path;
  port = Open_Device(Wide(path));
  if (!Is_Open()) return Fault_Of(GetLastError());
  // A pipe has neither a pace nor lines.
  if (GetFileType(port) != FILE_TYPE_PIPE && !Set_Up(port, rts, dtr)) {
    const Port_Fault fault = Fault_Of(GetLastError());
    CloseHandle(std::exchange(port, INVALID_HANDLE_VALUE));
    // It was there for us alone when it was opened.
    return fault == Port_Fault::In_Use ? Port_Fault::Gone : fault;
  }
  timeBeginPeriod(kResolution);
  SetThreadExecutionState(ES_CONTINUOUS | ES_SYSTEM_REQUIRED);  // A long transfer is no idleness.
  Ask_For_A_Byte();
  return Port_Fault::None;
}

void Win32_Serial::Close() {
  Release();
  received.clear();
  lost = false;
}

void Win32_Serial::Release() {
  if (!Is_Open()) return;
  const HANDLE closing = std::exchange(port, INVALID_HANDLE_VALUE);
  CancelIoEx(closing, &reading);
  while (asked) SleepEx(INFINITE, TRUE);  // Till then the driver may write to `next`.
  CloseHandle(closing);
  SetThreadExecutionState(ES_CONTINUOUS);
  timeEndPeriod(kResolution);
}

// The calls of Arrived that are due. The event loop makes them too, since its wait is alertable.
void Deliver() {
  while (SleepEx(0, TRUE) == WAIT_IO_COMPLETION) continue;
}

// One byte is asked for at a time: a read of more would wait for the last of them. The driver keeps what
// nobody has asked for yet.
void Win32_Serial::Ask_For_A_Byte() {
  reading = {};
  reading.hEvent = this;  // Free for the caller's use in a read of this kind.
  asked = ReadFileEx(port, &next, 1, &reading, Arrived);
  if (!asked) Lose();
}

// A read fails at once when its device goes: access denied, a bad command, a broken pipe, as the driver has
// it.
void CALLBACK Win32_Serial::Arrived(DWORD error, DWORD count, OVERLAPPED* read) {
  auto& serial = *static_cast<Win32_Serial*>(read->hEvent);
  serial.asked = false;
  if (!serial.Is_Open()) return;
  if (error != ERROR_SUCCESS) return serial.Lose();
  if (count > 0) serial.received.push_back(serial.next);
  QMetaObject::invokeMethod(
      &serial.loop, [] {}, Qt::QueuedConnection);
  serial.Ask_For_A_Byte();
}

void Win32_Serial::Lose() {
  lost = true;
  received.clear();
  // Not here, where the port may be in the midst of its own work.
  QMetaObject::invokeMethod(
      &loop,
      [this] {
        if (!lost || !Is_Open()) return;
        Release();
        if (On_Lost) On_Lost();
      },
      Qt::QueuedConnection);
}

bool Win32_Serial::Lost() {
  Deliver();
  return lost;
}

std::size_t Win32_Serial::Waiting() {
  Deliver();
  return received.size();
}

void Win32_Serial::Drop() {
  Deliver();
  received.clear();
}

bool Win32_Serial::Write(std::span<const std::uint8_t> bytes) {
  if (Lost() || !Is_Open()) return false;
  OVERLAPPED writing{};
  writing.hEvent = written;
  const auto size = static_cast<DWORD>(bytes.size());
  if (!WriteFile(port, bytes.data(), size, nullptr, &writing) && GetLastError() != ERROR_IO_PENDING)
    return false;
  // An adapter takes these bytes when it has room, behind all that it still holds.
  const DWORD limit = kPatience + kByteSlowness * (DWORD{MSComm::kOutBufferSize} + size);
  DWORD count = 0;
  if (!GetOverlappedResultEx(port, &writing, &count, limit, FALSE)) {
    CancelIoEx(port, &writing);
    GetOverlappedResult(port, &writing, &count, TRUE);
  }
  return count == size;
}

}  // namespace

std::unique_ptr<Serial_Backend> Make_Serial_Port(const std::filesystem::path& config_folder) {
  return std::make_unique<Win32_Serial>(config_folder);
}

}  // namespace wrenbit
