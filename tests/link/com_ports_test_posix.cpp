// Which device stands behind a COM number.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

#include "com_ports.h"
#include "temporary_folder.h"

namespace wrenbit {
namespace {

TEST(Com_Ports, UsbAdaptersComeFirstInTheOrderOfTheirNumbers) {
  const auto ordered = In_Com_Order({{"/dev/ttyS1", false},
                                     {"/dev/ttyUSB10", true},
                                     {"/dev/ttyACM2", true},
                                     {"/dev/ttyS0", false},
                                     {"/dev/ttyUSB2", true}});
  std::vector<std::string> paths;
  for (const Serial_Device& device : ordered) paths.push_back(device.Path);
  EXPECT_EQ(paths, (std::vector<std::string>{"/dev/ttyUSB2", "/dev/ttyACM2", "/dev/ttyUSB10", "/dev/ttyS0",
                                             "/dev/ttyS1"}));
}

struct Links : testing::Test {
  const Temporary_Folder temporary;
  const std::filesystem::path folder = temporary.Path();
  const std::vector<Serial_Device> one_adapter{{"/dev/ttyUSB0", true}};

  void SetUp() override {
    std::filesystem::create_symlink("/dev/null", folder / "COM1");
    std::filesystem::create_symlink("/dev/no-such-device", folder / "COM2");
    std::filesystem::create_symlink("/etc/passwd", folder / "COM3");
  }
};

TEST_F(Links, ALinkToADeviceWinsAndAnyOtherCountsAsAbsent) {
  EXPECT_EQ(Device_Of_Com(1, folder, one_adapter), "/dev/null");
  EXPECT_EQ(Device_Of_Com(2, folder, one_adapter), std::nullopt);
  EXPECT_EQ(Device_Of_Com(3, folder, one_adapter), std::nullopt);
  EXPECT_EQ(Device_Of_Com(1, folder / "none", one_adapter), "/dev/ttyUSB0");
  for (const int outside : {-1, 0, 21}) EXPECT_EQ(Device_Of_Com(outside, folder, one_adapter), std::nullopt);
}

TEST_F(Links, ALinkLeftBehindByAKilledBoardCountsAsAbsent) {
  const std::filesystem::path lock = folder / "COM1.lock";
  Put_Content(lock, "");
  EXPECT_EQ(Device_Of_Com(1, folder, one_adapter), "/dev/ttyUSB0");

  const int board = open(lock.c_str(), O_RDWR);
  ASSERT_EQ(flock(board, LOCK_EX), 0);
  EXPECT_EQ(Device_Of_Com(1, folder, one_adapter), "/dev/null") << "the board lives";
  close(board);
}

}  // namespace
}  // namespace wrenbit
