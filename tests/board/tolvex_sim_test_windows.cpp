// The program tolvex-sim on Windows from outside: its pipe, its file among the user's ports, its ends.
#include <windows.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "board/handle.h"
#include "tests/support/temporary_folder.h"

namespace {

namespace fs = std::filesystem;

// To the end of the line, or of all. Without what marks the line's end in a text of Windows.
std::string Line(HANDLE file) {
  std::string bytes;
  DWORD got = 0;
  for (char byte; !bytes.ends_with('\n') && ReadFile(file, &byte, 1, &got, nullptr) && got == 1;)
    bytes += byte;
  if (bytes.ends_with("\r\n")) bytes.erase(bytes.size() - 2, 1);
  return bytes;
}

board::Handle Open(const fs::path& path, DWORD access) {
  constexpr DWORD kBearingAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  return board::Owned(CreateFileW(path.c_str(), access, kBearingAll, nullptr, OPEN_EXISTING, 0, nullptr));
}

// The folder of ports is the user's own, so the number is one that is hardly in use.
const fs::path Link = fs::path(std::getenv("LOCALAPPDATA")) / "wrenbit" / "ports" / "port-COM20.txt";

std::string Device() {
  const std::string line = Line(Open(Link, GENERIC_READ).get());
  return line.substr(0, line.find('\n'));
}

// A board on COM20 with a 24C02.
class Simulator {
 public:
  Simulator() {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    HANDLE ends[4];
    for (HANDLE* two : {ends, ends + 2}) EXPECT_TRUE(CreatePipe(two, two + 1, &inherited, 0));
    const auto its_input = board::Owned(ends[0]), its_output = board::Owned(ends[3]);
    typed = board::Owned(ends[1]);
    said = board::Owned(ends[2]);
    for (HANDLE own : {ends[1], ends[2]}) SetHandleInformation(own, HANDLE_FLAG_INHERIT, 0);
    STARTUPINFOA start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = ends[0];
    start.hStdOutput = start.hStdError = ends[3];
    PROCESS_INFORMATION made{};
    char line[] = "tolvex-sim --com 20 --chip 24C02";
    EXPECT_TRUE(CreateProcessA(TOLVEX_SIM, line, nullptr, nullptr, TRUE, CREATE_NO_WINDOW, nullptr, nullptr,
                               &start, &made));
    CloseHandle(made.hThread);
    process = board::Owned(made.hProcess);
    number = made.dwProcessId;
  }
  ~Simulator() { Kill(); }

  std::string Says() { return Line(said.get()); }
  void Type(const std::string& keys) {
    DWORD put = 0;
    EXPECT_TRUE(WriteFile(typed.get(), keys.data(), static_cast<DWORD>(keys.size()), &put, nullptr));
  }
  void End_Typing() { typed.reset(); }
  // Types Ctrl-C at the board's console, which it has for itself.
  void Interrupt() {
    FreeConsole();
    const bool typed_there = AttachConsole(number) &&
                             SetConsoleCtrlHandler([](DWORD) { return TRUE; }, TRUE) &&
                             GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0);
    EXPECT_TRUE(typed_there);
    if (!typed_there) Kill();
  }
  void Kill() {
    TerminateProcess(process.get(), 9);
    Wait();
  }
  DWORD Wait() {
    DWORD code = 0;
    WaitForSingleObject(process.get(), 20'000);
    GetExitCodeProcess(process.get(), &code);
    return code;
  }

 private:
  board::Handle typed, said, process;
  DWORD number = 0;
};

void Expect_Answer() {
  const std::string device = Device();
  EXPECT_TRUE(WaitNamedPipeA(device.c_str(), 20'000)) << "the board takes the next PC";
  const board::Handle port = Open(device, GENERIC_READ | GENERIC_WRITE);
  DWORD put = 0;
  EXPECT_TRUE(WriteFile(port.get(), "?", 1, &put, nullptr));
  EXPECT_EQ(Line(port.get()), "TOLVEX Ver.5.00\n");
}

TEST(Tolvex_Sim, Answers_Each_Time_The_Pipe_Is_Opened_And_Cleans_Up_At_Ctrl_C) {
  Simulator simulator;
  const std::string ready = simulator.Says();
  EXPECT_EQ(ready, "tolvex-sim: 24C02 (256 bytes, erased, kept nowhere) on COM20 = " + Device() +
                       ", firmware 5.00\n");
  for (int i = 0; i < 3; ++i) Expect_Answer();
  simulator.Interrupt();
  EXPECT_EQ(simulator.Says(), "tolvex-sim: 3 commands, 3 bytes out to the board, 51 bytes back\n");
  EXPECT_EQ(simulator.Wait(), 0u);
  EXPECT_FALSE(fs::exists(Link));
}

TEST(Tolvex_Sim, Has_The_Port_Alone_And_Leaves_No_File_When_It_Is_Killed) {
  fs::create_directories(Link.parent_path());
  Put_Content(Link, "\\\\.\\pipe\\tolvex-sim-0\n");  // As it is found when the power has failed.
  Simulator simulator;
  ASSERT_NE(simulator.Says().find("on COM20"), std::string::npos);
  Simulator refused;
  EXPECT_NE(refused.Says().find("another board is on COM20"), std::string::npos);
  EXPECT_EQ(refused.Wait(), 1u);
  Expect_Answer();
  simulator.Kill();
  EXPECT_FALSE(fs::exists(Link));

  Put_Content(Link, "a file");
  EXPECT_NE(Simulator().Says().find("left alone"), std::string::npos);
  EXPECT_EQ(Content(Link), "a file");
  fs::remove(Link);
}

TEST(Tolvex_Sim, Swaps_The_Chip_At_A_Typed_Line_And_Goes_On_Behind_The_Last) {
  const Temporary_Folder folder;
  const std::string image = folder / "\xC3\xA4 chip.bin";
  Simulator simulator;
  simulator.Says();
  simulator.Type("at93c46 \"" + image + "\" \r\n24C64");
  EXPECT_EQ(simulator.Says(), "tolvex-sim: AT93C46 (128 bytes, kept in " + image + ") in the socket\n");
  EXPECT_EQ(Content(fs::path(folder.Path()) / L"\u00E4 chip.bin"), std::string(128, '\xFF'));
  simulator.End_Typing();
  EXPECT_EQ(simulator.Says(), "tolvex-sim: 24C64 (8192 bytes, erased, kept nowhere) in the socket\n");
  Expect_Answer();
}

}  // namespace
