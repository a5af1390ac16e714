#include "core/state/whole_file.h"

#include <windows.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <random>
#include <utility>

#include "core/state/wide_path.h"

namespace wrenbit {
namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr std::size_t kLargestFile = 256u << 20;

std::string System_Text(DWORD error) {
  wchar_t text[256];
  const DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                      error, 0, text, DWORD{std::size(text)}, nullptr);
  const std::string told = Utf8({text, length});
  return told.substr(0, told.find_last_not_of("\r\n") + 1) + " " + std::to_string(error);
}

std::string Reason(DWORD error) {
  switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_NOT_READY:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
      return "保存先のフォルダが見つかりません。";
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
      return "書き込みが許可されていないか、読み取り専用です。";
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case ERROR_FILE_TOO_LARGE:
      return "ディスクの空き容量が足りません。";
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
      return "ほかのプログラムがファイルを使用しています。";
    case ERROR_INVALID_NAME:
      return "ファイル名に使えない文字があります。";
    default:
      return "ファイルに書き込めません。(" + System_Text(error) + ")";
  }
}

class File {
 public:
  File(const std::wstring& path, DWORD access, DWORD creation)
      : handle(CreateFileW(path.c_str(), access, kShareAll, nullptr, creation, FILE_ATTRIBUTE_NORMAL,
                           nullptr)) {}
  File(const File&) = delete;
  File& operator=(const File&) = delete;
  ~File() { Close(); }

  explicit operator bool() const { return handle != INVALID_HANDLE_VALUE; }
  HANDLE operator*() const { return handle; }
  // False when what was written did not get through.
  bool Close() { return !*this || CloseHandle(std::exchange(handle, INVALID_HANDLE_VALUE)); }

 private:
  HANDLE handle;
};

// Looked at before it is opened: opening a pipe would take the place of the program that it waits for.
bool Regular(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return !path.starts_with(L"\\\\.\\") && attributes != INVALID_FILE_ATTRIBUTES &&
         !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

// Where a file that is there lies, behind all links.
std::wstring Final_Path(const File& file, const std::wstring& otherwise) {
  std::wstring path(GetFinalPathNameByHandleW(*file, nullptr, 0, FILE_NAME_NORMALIZED), 0);
  path.resize(
      GetFinalPathNameByHandleW(*file, path.data(), static_cast<DWORD>(path.size()), FILE_NAME_NORMALIZED));
  return path.empty() ? otherwise : path;
}

std::wstring Unguessable_Name_Beside(const std::wstring& path) {
  std::random_device random;
  return path.substr(0, path.rfind(L'\\') + 1) + L".wrenbit-" + std::to_wstring(random()) + L"-" +
         std::to_wstring(random());
}

bool Write(const File& file, std::string_view text) {
  while (!text.empty()) {
    DWORD written = 0;
    const auto piece = static_cast<DWORD>(std::min(text.size(), kLargestFile));
    if (!WriteFile(*file, text.data(), piece, &written, nullptr)) return false;
    text.remove_prefix(written);
  }
  return true;
}

// The flush keeps a loss of power from leaving the goal's new name on a file without its bytes.
bool Make(const std::wstring& path, std::string_view text, DWORD attributes) {
  File file(path, GENERIC_WRITE, CREATE_NEW);
  return file && Write(file, text) && FlushFileBuffers(*file) && file.Close() &&
         SetFileAttributesW(path.c_str(), attributes | FILE_ATTRIBUTE_ARCHIVE);
}

}  // namespace

bool File_Exists(const std::string& path) {
  const std::wstring wide = Long_Path(path);
  return Regular(wide) && File(wide, GENERIC_READ, OPEN_EXISTING);
}

std::optional<std::string> Read_Whole_File(const std::string& path) {
  const std::wstring wide = Long_Path(path);
  if (!Regular(wide)) return std::nullopt;
  const File file(wide, GENERIC_READ, OPEN_EXISTING);
  LARGE_INTEGER size;
  if (!file || !GetFileSizeEx(*file, &size) || size.QuadPart > static_cast<LONGLONG>(kLargestFile))
    return std::nullopt;
  std::string text(static_cast<std::size_t>(size.QuadPart), '\0');
  std::size_t got = 0;
  for (DWORD piece = 1; piece > 0 && got < text.size(); got += piece)
    if (!ReadFile(*file, text.data() + got, static_cast<DWORD>(text.size() - got), &piece, nullptr)) break;
  text.resize(got);
  return text;
}

std::optional<std::string> Write_Whole_File(const std::string& path, std::string_view text) {
  std::wstring goal = Long_Path(path);
  if (goal.empty()) return Reason(ERROR_PATH_NOT_FOUND);
  DWORD attributes = GetFileAttributesW(goal.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) {
    if (GetLastError() != ERROR_FILE_NOT_FOUND) return Reason(GetLastError());
    attributes = FILE_ATTRIBUTE_NORMAL;
  } else {
    if (attributes & FILE_ATTRIBUTE_DIRECTORY) return "同じ名前のフォルダがあります。";
    if (!Regular(goal)) return "通常のファイルではないので、書き込めません。";
    if (attributes & FILE_ATTRIBUTE_READONLY) return Reason(ERROR_ACCESS_DENIED);
    // Moving a file over it asks the folder only.
    const File old(goal, GENERIC_WRITE | DELETE, OPEN_EXISTING);
    if (!old) return Reason(GetLastError());
    goal = Final_Path(old, goal);
  }
  const std::wstring made = Unguessable_Name_Beside(goal);
  if (Make(made, text, attributes) &&
      MoveFileExW(made.c_str(), goal.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
    return std::nullopt;
  const DWORD error = GetLastError();
  DeleteFileW(made.c_str());
  return Reason(error);
}

}  // namespace wrenbit
