#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <pty.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

#include <QAbstractEventDispatcher>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>
#include <ctime>
#include <string>

#include "platform.h"
#include "qt_serial.h"

namespace wrenbit {
namespace {

using Bytes = std::vector<std::uint8_t>;

// A pseudo terminal whose near end is COM7.
class SerialPort : public testing::Test {
 protected:
  SerialPort() { Plug(); }
  ~SerialPort() override { Unplug(); }

  void Plug() {
    char name[128];
    int near_end = -1;
    ASSERT_EQ(openpty(&far_end, &near_end, name, nullptr, nullptr), 0);
    close(near_end);
    device = name;
    std::filesystem::remove(folder / "COM7");
    std::filesystem::create_symlink(device, folder / "COM7");
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

  const QTemporaryDir temporary;
  const std::filesystem::path folder{temporary.path().toStdString()};
  std::string device;
  int far_end = -1;
  Qt_Serial port{folder};
  QEventLoop loop;
};

double Seconds(clockid_t clock) {
  timespec now{};
  clock_gettime(clock, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

TEST_F(SerialPort, EveryWriteGoesOutAtOnceAndInOnePiece) {
  ASSERT_EQ(port.Open(7, true, false), Port_Fault::None);
  for (const Bytes& bytes : {Bytes{'m', 'w', 0x00, 0xFF}, Bytes{0x0D, 0x0A, 0x11, 0x13, 0x03}}) {
    EXPECT_TRUE(port.Write(bytes));
    EXPECT_EQ(One_Read(), bytes);
  }
}

TEST_F(SerialPort, AWriteThatTheSystemDoesNotTakeIsToldAndNotTriedOverAndOver) {
  ASSERT_EQ(port.Open(7, true, false), Port_Fault::None);
  const Bytes much(100000, 'x');
  EXPECT_FALSE(port.Write(much)) << "nobody reads at the far end";
  const double used = Seconds(CLOCK_PROCESS_CPUTIME_ID);
  ThePlatform->Await_Event(0.05);
  EXPECT_LT(Seconds(CLOCK_PROCESS_CPUTIME_ID) - used, 0.03);

  while (!One_Read(200).empty()) continue;  // The kernel hands a full buffer on in pieces.
  EXPECT_TRUE(port.Write(Bytes{'?'}));
  EXPECT_EQ(One_Read(), Bytes{'?'}) << "nothing of what was refused comes later";
  port.Close();
  EXPECT_FALSE(port.Write(Bytes{'?'}));
}

TEST_F(SerialPort, BytesThatTheKernelHoldsAreSeenWithoutTheEventLoop) {
  ASSERT_EQ(port.Open(7, true, false), Port_Fault::None);
  const Bytes bytes{0x00, 0x0D, 0x0A, 0x11, 0x13, 0x7F, 0xFF};
  Arrive(bytes);
  EXPECT_EQ(port.Waiting(), bytes.size());
  EXPECT_EQ(port.Take(), bytes);
  EXPECT_EQ(port.Waiting(), 0u);
}

TEST_F(SerialPort, DropAndOpenLeaveNothingFromBefore) {
  ASSERT_EQ(port.Open(7, true, false), Port_Fault::None);
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

TEST_F(SerialPort, AReplyEndsTheWaitForAnEvent) {
  ASSERT_EQ(port.Open(7, true, false), Port_Fault::None);
  QTimer::singleShot(0, [this] { Arrive({'?'}); });
  const double start = Seconds(CLOCK_MONOTONIC);
  while (port.Waiting() == 0 && Seconds(CLOCK_MONOTONIC) < start + 30) ThePlatform->Await_Event(60);
  EXPECT_EQ(port.Take(), Bytes{'?'});
}

TEST_F(SerialPort, AnUnpluggedPortIsNoticedAtOnceLeavesTheProcessorIdleAndMayComeBack) {
  for (const bool in_a_wait : {false, true}) {
    SCOPED_TRACE(in_a_wait);
    ASSERT_EQ(port.Open(7, true, false), Port_Fault::None);
    EXPECT_FALSE(port.Lost());
    Arrive({1, 2, 3});
    if (in_a_wait) {
      QTimer::singleShot(0, [this] { Unplug(); });
      const double start = Seconds(CLOCK_MONOTONIC);
      for (int turn = 0; turn < 10 && far_end >= 0; ++turn) ThePlatform->Await_Event(60);
      EXPECT_LT(Seconds(CLOCK_MONOTONIC) - start, 30);
    } else {
      Unplug();
    }
    EXPECT_TRUE(port.Lost());
    EXPECT_EQ(port.Waiting(), 0u);
    EXPECT_FALSE(port.Write(Bytes{1}));

    const double used = Seconds(CLOCK_PROCESS_CPUTIME_ID);
    double rested = 0;
    for (int turn = 0; turn < 3; ++turn) {
      const double start = Seconds(CLOCK_MONOTONIC);
      ThePlatform->Await_Event(0.05);
      rested = std::max(rested, Seconds(CLOCK_MONOTONIC) - start);
    }
    EXPECT_LT(Seconds(CLOCK_PROCESS_CPUTIME_ID) - used, 0.03);
    EXPECT_GT(rested, 0.04);  // The closed port wakes nobody any more.

    Plug();
    EXPECT_EQ(port.Open(7, true, false), Port_Fault::None);
    Unplug();
    EXPECT_TRUE(port.Lost());
    Plug();
    EXPECT_EQ(port.Open(7, true, false), Port_Fault::None);
    ThePlatform->DoEvents();  // What is left of the lost port must not close the new one.
    EXPECT_FALSE(port.Lost());
    Arrive({9});
    EXPECT_EQ(port.Waiting(), 1u);
    EXPECT_EQ(port.Take(), Bytes{9});
  }
}

TEST_F(SerialPort, AnIdlePortThatIsUnpluggedIsClosedByTheEventLoopAlone) {
  ASSERT_EQ(port.Open(7, true, false), Port_Fault::None);
  Unplug();
  int turns = 0;
  QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, &loop,
                   [&turns] { ++turns; });
  QTimer::singleShot(50, &loop, [this] { loop.quit(); });
  loop.exec();
  EXPECT_LT(turns, 20);  // A port left open turns the loop many thousand times.
}

TEST_F(SerialPort, FaultsAreToldApart) {
  EXPECT_EQ(port.Open(0, true, false), Port_Fault::No_Such_Port);
  EXPECT_EQ(port.Open(21, true, false), Port_Fault::No_Such_Port);
  EXPECT_EQ(port.Open(20, true, false), Port_Fault::No_Such_Port);

  std::filesystem::create_symlink("/dev/null", folder / "COM8");
  EXPECT_EQ(port.Open(8, true, false), Port_Fault::Refused);

  Qt_Serial other(folder);
  ASSERT_EQ(other.Open(7, true, false), Port_Fault::None);
  EXPECT_EQ(port.Open(7, true, false), Port_Fault::In_Use);
  other.Close();
  EXPECT_EQ(port.Open(7, true, false), Port_Fault::None);
  port.Close();

  if (geteuid() == 0) return;  // To root every device is permitted.
  ASSERT_EQ(chmod(device.c_str(), 0), 0);
  EXPECT_EQ(port.Open(7, true, false), Port_Fault::No_Permission);
}

}  // namespace
}  // namespace wrenbit
