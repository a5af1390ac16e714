#include "shell/qt/seams/qt_serial.h"

#include <grp.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <pty.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDeadlineTimer>
#include <QTimer>
#include <algorithm>
#include <cstdint>
#include <ctime>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "core/state/platform.h"
#include "link/mscomm.h"
#include "shell/qt/seams/serial_handle.h"
#include "tests/support/plain_user_posix.h"
#include "tests/support/temporary_folder.h"

namespace wrenbit {
namespace {

using Bytes = std::vector<std::uint8_t>;

// A pseudo terminal whose near end is COM7, which is open.
class Serial_Port : public testing::Test {
 protected:
  Serial_Port() {
    Plug();
    EXPECT_EQ(port.Open(7, true, false), Port_Fault::None);
  }
  void TearDown() override { Unplug(); }

  void Plug() {
    char name[128];
    int near_end = -1;
    ASSERT_EQ(openpty(&far_end, &near_end, name, nullptr, nullptr), 0);
    close(near_end);
    device = name;
    std::filesystem::create_directory(folder / "ports");
    std::filesystem::remove(folder / "ports/COM7");
    std::filesystem::create_symlink(device, folder / "ports/COM7");
  }
  void Unplug() {
    if (far_end >= 0) close(far_end);
    far_end = -1;
  }
  void Arrive(const Bytes& bytes) {
    ASSERT_EQ(write(far_end, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
  }
  // What one read at the far end gives.
  Bytes One_Read(int wait_ms = 0) {
    pollfd ready{.fd = far_end, .events = POLLIN, .revents = 0};
    if (poll(&ready, 1, wait_ms) != 1) return {};
    Bytes bytes(4096);
    bytes.resize(static_cast<std::size_t>(std::max<ssize_t>(read(far_end, bytes.data(), bytes.size()), 0)));
    return bytes;
  }
  static void Await(const std::function<bool()>& happened) {
    const QDeadlineTimer limit(30'000);
    while (!happened() && !limit.hasExpired()) ThePlatform->Await_Event(60);
    EXPECT_FALSE(limit.hasExpired());
  }

  const Temporary_Folder folder;
  std::string device;
  int far_end = -1;
  Qt_Serial port{folder.Path()};
};

// What a process that rests uses of the processor in a while.
constexpr std::clock_t kAtRest = CLOCKS_PER_SEC * 3 / 100;

TEST_F(Serial_Port, EveryByteGoesBothWaysAtOnceAndInOnePieceWithoutTheEventLoop) {
  const Bytes bytes{'m', 'w', 0x00, 0xFF, 0x0D, 0x0A, 0x11, 0x13, 0x7F, 0x03};
  EXPECT_TRUE(port.Write(bytes));
  EXPECT_EQ(One_Read(), bytes);
  Arrive(bytes);
  EXPECT_EQ(port.Waiting(), bytes.size());
  EXPECT_EQ(port.Take(), bytes);
  EXPECT_EQ(port.Waiting(), 0u);
}

TEST_F(Serial_Port, AWriteThatTheSystemDoesNotTakeIsToldAndNotTriedOverAndOver) {
  EXPECT_FALSE(port.Write(Bytes(100000, 'x'))) << "nobody reads at the far end";
  const std::clock_t before = std::clock();
  ThePlatform->Await_Event(0.05);
  EXPECT_LT(std::clock() - before, kAtRest);

  while (!One_Read(200).empty()) continue;  // The kernel hands a full buffer on in pieces.
  EXPECT_TRUE(port.Write(Bytes{'?'}));
  EXPECT_EQ(One_Read(), Bytes{'?'}) << "nothing of what was refused comes later";
  port.Close();
  EXPECT_FALSE(port.Write(Bytes{'?'}));
}

TEST_F(Serial_Port, DropAndOpenLeaveNothingFromBefore) {
  for (const bool seen_by_qt : {false, true}) {
    Arrive({1, 2, 3});
    EXPECT_EQ(seen_by_qt ? port.Waiting() : 3u, 3u);
    port.Drop();
    EXPECT_EQ(port.Waiting(), 0u) << seen_by_qt;
  }
  Arrive({4, 5});
  ASSERT_EQ(port.Open(7, true, false), Port_Fault::None);
  EXPECT_EQ(port.Waiting(), 0u);
}

TEST_F(Serial_Port, AReplyEndsTheWaitForAnEvent) {
  QTimer::singleShot(0, [this] { Arrive({'?'}); });
  Await([this] { return port.Waiting() > 0; });
  EXPECT_EQ(port.Take(), Bytes{'?'});
}

TEST_F(Serial_Port, AnUnpluggedPortIsNoticedAtOnceLeavesTheProcessorIdleAndMayComeBack) {
  int told = 0;
  port.On_Lost = [&] { ++told; };
  for (const bool asked : {true, false}) {
    SCOPED_TRACE(asked);
    told = 0;
    Arrive({1, 2, 3});
    if (asked) {
      Unplug();
      EXPECT_TRUE(port.Lost());
      EXPECT_EQ(port.Waiting(), 0u);
    } else {  // The event loop alone notices and closes it.
      QTimer::singleShot(0, [this] { Unplug(); });
      Await([this] { return far_end < 0; });
    }
    const std::clock_t before = std::clock();
    const double start = ThePlatform->Timer();
    for (int turn = 0; turn < 10; ++turn) ThePlatform->Await_Event(0.02);
    EXPECT_LT(std::clock() - before, kAtRest);
    EXPECT_GT(ThePlatform->Timer() - start, 0.04);  // The closed port wakes nobody any more.
    EXPECT_TRUE(port.Lost());
    EXPECT_EQ(told, 1);
    EXPECT_FALSE(port.Write(Bytes{1}));

    Plug();
    EXPECT_EQ(port.Open(7, true, false), Port_Fault::None);
    Unplug();
    EXPECT_TRUE(port.Lost());
    Plug();
    EXPECT_EQ(port.Open(7, true, false), Port_Fault::None);
    ThePlatform->DoEvents();  // What is left of the lost port must not close the new one.
    EXPECT_FALSE(port.Lost());
    EXPECT_EQ(told, 1);
    Arrive({9});
    EXPECT_EQ(port.Waiting(), 1u);
  }
}

TEST_F(Serial_Port, FaultsAreToldApart) {
  for (const int absent : {0, 20, 21}) EXPECT_EQ(port.Open(absent, true, false), Port_Fault::No_Such_Port);
  std::filesystem::create_symlink("/dev/null", folder / "ports/COM8");
  EXPECT_EQ(port.Open(8, true, false), Port_Fault::Refused);

  ASSERT_EQ(port.Open(7, true, false), Port_Fault::None);
  Qt_Serial other(folder.Path());
  EXPECT_EQ(other.Open(7, true, false), Port_Fault::In_Use);
  port.Close();
  EXPECT_EQ(other.Open(7, true, false), Port_Fault::None);
  other.Close();

  if (geteuid() == 0) return;  // To root every device is permitted.
  ASSERT_EQ(chmod(device.c_str(), 0), 0);
  EXPECT_EQ(port.Open(7, true, false), Port_Fault::No_Permission);
}

TEST(Serial_Rights, TellWhichGroupToJoinUnlessTheUserIsInIt) {
  if (geteuid() != 0) return;  // Nobody else gives files away.
  const Temporary_Folder folder;
  const std::string node = folder / "node";
  Put_Content(node, "");
  ASSERT_EQ(chmod(node.c_str(), 0660) + setegid(getgrnam("users")->gr_gid), 0);
  for (const auto& [group, text] : std::map<std::string, std::string>{{"dialout", "dialoutに加入"},
                                                                      {"nogroup", "再ログインが必要"},
                                                                      {"users", ""},
                                                                      {"root", "rootのみ使用可"}}) {
    ASSERT_EQ(chown(node.c_str(), 0, getgrnam(group.c_str())->gr_gid), 0);
    const Plain_User nobody;  // Whose group in the database is nogroup.
    EXPECT_EQ(Missing_Right(node), text);
    EXPECT_EQ(Rights_May_Come(node), group == "root");
  }
  ASSERT_EQ(setegid(0), 0);
}

}  // namespace
}  // namespace wrenbit
