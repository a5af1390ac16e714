// The program tolvex-sim from outside: its terminal, its link, its ends.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <utility>

#include "descriptor.h"
#include "temporary_folder.h"

namespace {

namespace fs = std::filesystem;

constexpr int kPatience = 20000;  // Milliseconds before a test gives up.

bool Ready(int file, short event) {
  pollfd waiting{.fd = file, .events = event, .revents = 0};
  return poll(&waiting, 1, kPatience) == 1;
}

// Bytes until `count` of them are there, or until the end of a line if `count` is 0; fewer at the end of the
// file.
std::string Read(int file, std::size_t count) {
  std::string bytes;
  for (char byte; (count ? bytes.size() < count : !bytes.ends_with('\n')) && Ready(file, POLLIN);) {
    if (read(file, &byte, 1) != 1) break;
    bytes += byte;
  }
  return bytes;
}

class Simulator {
 public:
  Simulator(const fs::path& config, std::vector<std::string> arguments) {
    int ends[2];
    EXPECT_EQ(pipe2(ends, O_CLOEXEC), 0);
    Output = board::Descriptor(ends[0]);
    const board::Descriptor into(ends[1]);
    EXPECT_EQ(pipe2(ends, O_CLOEXEC), 0);
    const board::Descriptor keys(ends[0]);
    Keyboard = board::Descriptor(ends[1]);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, *keys, STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, *into, STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, *into, STDERR_FILENO);
    std::string variable = "XDG_CONFIG_HOME=" + config.string();
    char* environment[] = {variable.data(), nullptr};
    arguments.insert(arguments.begin(), "tolvex-sim");
    std::vector<char*> argv;
    for (auto& argument : arguments) argv.push_back(argument.data());
    argv.push_back(nullptr);
    EXPECT_EQ(posix_spawn(&Child, TOLVEX_SIM, &actions, nullptr, argv.data(), environment), 0);
    posix_spawn_file_actions_destroy(&actions);
  }
  ~Simulator() {
    if (Child > 0) End(SIGKILL);
  }
  Simulator(const Simulator&) = delete;
  Simulator& operator=(const Simulator&) = delete;

  std::string Line() { return Read(*Output, 0); }
  void Type(const std::string& keys) {
    EXPECT_EQ(write(*Keyboard, keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
  }
  void End_Typing() { Keyboard = board::Descriptor(); }

  // The exit code, or minus the signal that it died of. A program that doesn't end is killed.
  int Wait() {
    for (std::string line = Line(); !line.empty(); line = Line()) Farewell += line;
    if (!Ready(*Output, POLLIN)) kill(Child, SIGKILL);
    int status = 0;
    waitpid(std::exchange(Child, 0), &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
  }
  int End(int with) {
    kill(Child, with);
    return Wait();
  }

  std::string Farewell;  // What it said until its end.

 private:
  pid_t Child = 0;
  board::Descriptor Output, Keyboard;
};

class Tolvex_Sim : public testing::Test {
 protected:
  Tolvex_Sim() { fs::create_directories(Ports); }

  std::string Ask() const {
    const board::Descriptor port(open(Link.c_str(), O_RDWR | O_NOCTTY));
    EXPECT_EQ(write(*port, "?", 1), 1);
    return Read(*port, 17);
  }

  const Temporary_Folder Config;
  const fs::path Ports = Config / "wrenbit/ports";
  const fs::path Link = Ports / "COM3";
  const fs::path Lock = Ports / "COM3.lock";
  const std::vector<std::string> Plain{"--com", "3", "--chip", "24C02"};
  const std::string Identity = "TOLVEX Ver.5.00\r\n";
};

TEST_F(Tolvex_Sim, Answers_Each_Time_The_Port_Is_Opened_And_Cleans_Up_At_A_Signal) {
  for (const int with : {SIGINT, SIGTERM, SIGHUP}) {
    Simulator simulator(Config / "", Plain);
    const std::string ready = simulator.Line();
    EXPECT_EQ(ready, "tolvex-sim: 24C02 (256 bytes, erased, kept nowhere) on COM3 = " +
                         fs::read_symlink(Link).string() + ", firmware 5.00\n");
    for (int i = 0; i < 3; ++i) EXPECT_EQ(Ask(), Identity);
    EXPECT_EQ(simulator.End(with), 0);
    EXPECT_EQ(simulator.Farewell, "tolvex-sim: 3 commands, 3 bytes out to the board, 51 bytes back\n");
    EXPECT_TRUE(fs::is_empty(Ports));
  }
}

TEST_F(Tolvex_Sim, Takes_Over_The_Link_Of_A_Killed_Board) {
  {
    Simulator killed(Config / "", Plain);
    killed.Line();
    EXPECT_EQ(killed.End(SIGKILL), -SIGKILL);
  }
  ASSERT_TRUE(fs::is_symlink(Link) && fs::exists(Lock));
  fs::remove(Link);
  fs::create_symlink("/dev/pts/nobody", Link);
  Simulator next(Config / "", Plain);
  ASSERT_NE(next.Line().find("on COM3"), std::string::npos);
  EXPECT_EQ(Ask(), Identity);
}

TEST_F(Tolvex_Sim, Is_Refused_A_Port_On_Which_Another_Board_Lives) {
  Simulator first(Config / "", Plain);
  first.Line();
  Simulator second(Config / "", Plain);
  EXPECT_EQ(second.Wait(), 1);
  EXPECT_NE(second.Farewell.find("another board is on COM3"), std::string::npos);
  EXPECT_EQ(Ask(), Identity);
}

TEST_F(Tolvex_Sim, Leaves_A_Link_Alone_That_No_Board_Made) {
  struct {
    const char* Target;
    bool Locked;
  } const cases[] = {{"/dev/null", false}, {"/dev/pts/7", false}, {"/dev/ttyUSB0", true}};
  for (const auto& foreign : cases) {
    fs::create_symlink(foreign.Target, Link);
    if (foreign.Locked) Put_Content(Lock, "");
    Simulator refused(Config / "", Plain);
    EXPECT_EQ(refused.Wait(), 1);
    EXPECT_NE(refused.Farewell.find("left alone"), std::string::npos);
    EXPECT_EQ(fs::read_symlink(Link), foreign.Target);
    EXPECT_EQ(fs::exists(Lock), foreign.Locked);
    fs::remove(Link);
  }
  Put_Content(Link, "a file");
  EXPECT_EQ(Simulator(Config / "", Plain).Wait(), 1);
  EXPECT_EQ(Content(Link), "a file");
}

TEST_F(Tolvex_Sim, Outlives_A_Port_That_Sends_And_Never_Reads) {
  Simulator simulator(Config / "", Plain);
  simulator.Line();
  const board::Descriptor port(open(Link.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK));
  const std::string queries(1000, '?');  // 17 bytes back for each, far more than a terminal holds.
  for (std::size_t sent = 0; sent < 20000;) {
    ASSERT_TRUE(Ready(*port, POLLOUT));
    const ssize_t taken = write(*port, queries.data(), queries.size());
    if (taken > 0) sent += static_cast<std::size_t>(taken);
  }
  EXPECT_EQ(simulator.End(SIGTERM), 0);
}

TEST_F(Tolvex_Sim, Swaps_The_Chip_At_A_Typed_Line_And_Keeps_It_When_The_Line_Is_Wrong) {
  const std::string image = Config / "a chip.bin";
  Put_Content(Config / "short.bin", "short");
  Simulator simulator(Config / "", Plain);
  simulator.Line();
  const std::string chip = "AT93C46 (128 bytes, kept in " + image + ") in the socket";
  const std::string small = Config / "short.bin";
  const struct {
    std::string Typed;
    std::vector<std::string> Says;
  } lines[] = {
      {"at93c46  \"" + image + "\" \r\n", {chip}},
      {"24C99\n", {"no chip has the name 24C99", chip}},
      {"24C02 " + small + "\n", {"image " + small + ": holds 5 bytes, the chip 256", chip}},
      {"none " + image + "\n", {"an empty socket has no image", chip}},
      {"24C02 " + std::string(100000, 'x') + "\n\n",
       {"image " + std::string(4090, 'x') + ": File name too long", chip, chip}},
      {"NONE\n", {"no chip in the socket"}},
  };
  for (const auto& line : lines) {
    simulator.Type(line.Typed);
    for (const std::string& says : line.Says) EXPECT_EQ(simulator.Line(), "tolvex-sim: " + says + "\n");
  }
  EXPECT_EQ(Content(image), std::string(128, '\xFF'));
  simulator.Type("24C64");
  simulator.End_Typing();
  EXPECT_EQ(simulator.Line(), "tolvex-sim: 24C64 (8192 bytes, erased, kept nowhere) in the socket\n");
  EXPECT_EQ(Ask(), Identity);
  EXPECT_EQ(simulator.End(SIGTERM), 0);
}

}  // namespace
