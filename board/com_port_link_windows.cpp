#include "board/com_port_link.h"

#include <windows.h>
#include <knownfolders.h>
#include <shlobj.h>

#include <array>
#include <filesystem>
#include <stdexcept>
#include <string_view>

#include "board/handle.h"
#include "board/wide_text.h"

namespace board {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kPipes = R"(\\.\pipe\tolvex-sim-)";

fs::path Ports_Folder() {
  wchar_t* local = nullptr;
  const HRESULT found = SHGetKnownFolderPath(FOLDERID_LocalAppData, KF_FLAG_CREATE, nullptr, &local);
  const fs::path folder = FAILED(found) ? fs::path() : fs::path(local) / "wrenbit" / "ports";
  CoTaskMemFree(local);
  if (folder.empty()) throw std::runtime_error("Windows does not say where the user's local data are");
  fs::create_directories(folder);
  return folder;
}

// For this program alone to write. Others may read meanwhile, if they bear with that, and none may replace
// it.
Handle Open(const fs::path& path, DWORD disposition, DWORD flags) {
  return Owned(CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE | DELETE,
                           FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr, disposition, flags, nullptr));
}

bool Names_Pipe(HANDLE file) {
  std::array<char, kPipes.size()> start;
  DWORD got = 0;
  return ReadFile(file, start.data(), static_cast<DWORD>(start.size()), &got, nullptr) &&
         std::string_view(start.data(), got) == kPipes;
}

// A board's file goes with the board, unless the whole system fell. It is removed by its handle, so that it
// can't be one that another board has made since.
void Remove_Left_Behind(const fs::path& path, const std::string& port) {
  const Handle file = Open(path, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL);
  const DWORD error = file ? ERROR_SUCCESS : GetLastError();
  if (error == ERROR_FILE_NOT_FOUND) return;
  const std::string name = Utf8(path.native());
  if (error == ERROR_SHARING_VIOLATION)
    throw std::runtime_error("another board is on " + port + " (" + name + ")");
  if (!file || !Names_Pipe(file.get()))
    throw std::runtime_error(name + " is there and was not made by a board; it is left alone");
  FILE_DISPOSITION_INFO remove{.DeleteFile = TRUE};
  if (!SetFileInformationByHandle(file.get(), FileDispositionInfo, &remove, sizeof remove))
    Throw_Last_Error(name);
}

// The file of a board that ends refuses all access as long as somebody reads it.
Handle Make(const fs::path& path, const std::string& port) {
  constexpr int kTries = 50;
  for (int tries = 1; tries < kTries; ++tries) {
    if (Handle file = Open(path, CREATE_NEW, FILE_FLAG_DELETE_ON_CLOSE)) return file;
    if (GetLastError() == ERROR_FILE_EXISTS)
      Remove_Left_Behind(path, port);
    else
      Sleep(10);
  }
  Throw_Last_Error(Utf8(path.native()));
}

}  // namespace

// A file with the pipe's name in it, which the system removes when the board lets go of it, or is killed.
struct Com_Port_Link::Claim {
  Handle File;
};

Com_Port_Link::Com_Port_Link(int number, const std::string& device) : claim(std::make_unique<Claim>()) {
  // No file there can be called COM3, nor COM3.txt.
  const std::string port = "COM" + std::to_string(number);
  const fs::path path = Ports_Folder() / ("port-" + port + ".txt");
  claim->File = Make(path, port);
  const std::string line = device + "\n";
  DWORD put = 0;
  if (!WriteFile(claim->File.get(), line.data(), static_cast<DWORD>(line.size()), &put, nullptr))
    Throw_Last_Error(Utf8(path.native()));
}

Com_Port_Link::~Com_Port_Link() = default;

}  // namespace board
