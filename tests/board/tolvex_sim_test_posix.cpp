// The program tolvex-sim from outside: its terminal, its link, its ends.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "board/descriptor.h"
#include "tests/support/temporary_folder.h"

namespace {

namespace fs = std::filesystem;

// To the end of the line, or of all.
std::string Line(int file) {
  std::string bytes;
  for (char byte; !bytes.ends_with('\n') && read(file, &byte, 1) == 1;) bytes += byte;
  return bytes;
}

// A board on COM3 with a 24C02. One that hangs dies after a while, and whoever waits for it goes on.
class Simulator {
 public:
  explicit Simulator(const std::string& config) {
    int ends[2];
    EXPECT_EQ(socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends), 0);
    const board::Descriptor its_end(ends[1]);
    terminal = board::Descriptor(ends[0]);
    child = fork();
    if (child != 0) return;
    for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) dup2(*its_end, standard);
    setenv("XDG_CONFIG_HOME", config.c_str(), 1);
    alarm(20);
    execl(TOLVEX_SIM, "tolvex-sim", "--com", "3", "--chip", "24C02", nullptr);
    _exit(127);
  }
  ~Simulator() {
    if (child > 0) End(SIGKILL);
  }

  std::string Says() { return Line(*terminal); }
  void Type(const std::string& keys) {
    EXPECT_EQ(write(*terminal, keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
  }
  void End_Typing() { shutdown(*terminal, SHUT_WR); }

  // The exit code, or minus the signal that it died of.
  int Wait() {
    for (std::string line = Says(); !line.empty(); line = Says()) Farewell += line;
    int status = 0;
    waitpid(std::exchange(child, 0), &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
  }
  int End(int with) {
    kill(child, with);
    return Wait();
  }

  std::string Farewell;  // What it said until its end.

 private:
  pid_t child = 0;
  board::Descriptor terminal;
};

class Tolvex_Sim : public testing::Test {
 protected:
  Tolvex_Sim() { fs::create_directories(ports); }

  void Expect_Answer() const {
    const board::Descriptor port(open(link.c_str(), O_RDWR | O_NOCTTY));
    EXPECT_EQ(write(*port, "?", 1), 1);
    EXPECT_EQ(Line(*port), "TOLVEX Ver.5.00\r\n");
  }
  void Expect_Refusal(const std::string& why) const {
    Simulator refused(config.Path());
    EXPECT_EQ(refused.Wait(), 1);
    EXPECT_NE(refused.Farewell.find(why), std::string::npos) << refused.Farewell;
  }

  const Temporary_Folder config;
  const fs::path ports = config / "wrenbit/ports";
  const fs::path link = ports / "COM3";
  const fs::path lock = ports / "COM3.lock";
};

TEST_F(Tolvex_Sim, Answers_Each_Time_The_Port_Is_Opened_And_Cleans_Up_At_A_Signal) {
  for (const int with : {SIGINT, SIGTERM, SIGHUP}) {
    Simulator simulator(config.Path());
    const std::string ready = simulator.Says();
    EXPECT_EQ(ready, "tolvex-sim: 24C02 (256 bytes, erased, kept nowhere) on COM3 = " +
                         fs::read_symlink(link).string() + ", firmware 5.00\n");
    for (int i = 0; i < 3; ++i) Expect_Answer();
    EXPECT_EQ(simulator.End(with), 0);
    EXPECT_EQ(simulator.Farewell, "tolvex-sim: 3 commands, 3 bytes out to the board, 51 bytes back\n");
    EXPECT_TRUE(fs::is_empty(ports));
  }
}

TEST_F(Tolvex_Sim, Takes_Over_The_Link_Of_A_Killed_Board_And_Not_That_Of_A_Living_One) {
  {
    Simulator killed(config.Path());
    killed.Says();
    EXPECT_EQ(killed.End(SIGKILL), -SIGKILL);
  }
  ASSERT_TRUE(fs::is_symlink(link) && fs::exists(lock));
  fs::remove(link);
  fs::create_symlink("/dev/pts/nobody", link);
  Simulator next(config.Path());
  ASSERT_NE(next.Says().find("on COM3"), std::string::npos);
  Expect_Refusal("another board is on COM3");
  Expect_Answer();
}

TEST_F(Tolvex_Sim, Leaves_A_Link_Alone_That_No_Board_Made) {
  const std::pair<const char*, bool> cases[] = {
      {"/dev/null", false}, {"/dev/pts/7", false}, {"/dev/ttyUSB0", true}};
  for (const auto& [target, locked] : cases) {
    fs::create_symlink(target, link);
    if (locked) Put_Content(lock, "");
    Expect_Refusal("left alone");
    EXPECT_EQ(fs::read_symlink(link), target);
    EXPECT_EQ(fs::exists(lock), locked);
    fs::remove(link);
  }
  Put_Content(link, "a file");
  Expect_Refusal("left alone");
  EXPECT_EQ(Content(link), "a file");
}

TEST_F(Tolvex_Sim, Swaps_The_Chip_At_A_Typed_Line_And_Keeps_It_When_The_Line_Is_Wrong) {
  const std::string image = config / "a chip.bin";
  const std::string small = config / "short.bin";
  Put_Content(small, "short");
  Simulator simulator(config.Path());
  simulator.Says();
  const std::string chip = "AT93C46 (128 bytes, kept in " + image + ") in the socket";
  const std::pair<std::string, std::vector<std::string>> lines[] = {
      {"at93c46  \"" + image + "\" \r\n", {chip}},
      {"24C99\n", {"no chip has the name 24C99", chip}},
      {"24C02 " + small + "\n", {"image " + small + ": holds 5 bytes, the chip 256", chip}},
      {"none " + image + "\n", {"an empty socket has no image", chip}},
      {"24C02 " + std::string(100000, 'x') + "\n\n",
       {"image " + std::string(4090, 'x') + ": File name too long", chip, chip}},
      {"NONE\n", {"no chip in the socket"}},
  };
  for (const auto& [typed, answers] : lines) {
    simulator.Type(typed);
    for (const std::string& says : answers) EXPECT_EQ(simulator.Says(), "tolvex-sim: " + says + "\n");
  }
  EXPECT_EQ(Content(image), std::string(128, '\xFF'));
  simulator.Type("24C64");
  simulator.End_Typing();
  EXPECT_EQ(simulator.Says(), "tolvex-sim: 24C64 (8192 bytes, erased, kept nowhere) in the socket\n");
  Expect_Answer();
  EXPECT_EQ(simulator.End(SIGTERM), 0);
}

}  // namespace
