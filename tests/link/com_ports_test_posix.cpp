// Which device stands behind a COM number.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <vector>

#include "com_ports.h"
#include "temporary_folder.h"

namespace wrenbit {
namespace {

TEST(Com_Ports, UsbAdaptersComeFirstInTheOrderOfTheirNumbersAndTheSystemTellsWhoMadeThem) {
  const Temporary_Folder temporary;
  const std::filesystem::path system = temporary.Path();
  const auto put = [&](const std::string& file, const std::string& line) {
    std::filesystem::create_directories((system / file).parent_path());
    Put_Content(system / file, line + "\n");
  };
  const auto add = [&](const std::string& tty, const std::string& hardware) {
    std::filesystem::create_directories(system / "class/tty" / tty);
    if (hardware.empty()) return;
    std::filesystem::create_directories(system / "devices" / hardware);
    std::filesystem::create_symlink(system / "devices" / hardware, system / "class/tty" / tty / "device");
  };
  put("devices/usb1/1-1/idVendor", "0403");
  put("devices/usb1/1-1/manufacturer", "Maker");
  put("devices/usb1/1-1/product", "UART bridge");
  put("devices/usb1/manufacturer", "Root hub");
  put("devices/usb1/1-2/idVendor", "2341");
  add("ttyUSB10", "usb1/1-1/1-1:1.0/ttyUSB10");
  add("ttyACM2", "usb1/1-2/1-2:1.0");
  add("ttyUSB2", "usb1/1-2/1-2:1.1");
  add("ttyS0", "pnp0/serial0");
  add("ttyS1", "pnp0/serial1");
  put("class/tty/ttyS0/type", "4");
  put("class/tty/ttyS0/rx_trig_bytes", "8");
  put("class/tty/ttyS1/type", "0");  // No chip behind it.
  add("tty1", "");
  std::string told;
  for (const Serial_Device& device : In_Com_Order(Serial_Devices_Present(system)))
    told += device.Path + (device.Usb ? " USB " : " ") + device.Maker + ":" + device.Product + " " +
            std::to_string(device.Receive_Trigger) + "\n";
  EXPECT_EQ(
      told,
      "/dev/ttyUSB2 USB : 0\n/dev/ttyACM2 USB : 0\n/dev/ttyUSB10 USB Maker:UART bridge 0\n/dev/ttyS0 : 8\n");
}

TEST(Com_Ports, ALinkDecidesUnlessAKilledBoardLeftItBehind) {
  const Temporary_Folder temporary;
  const std::filesystem::path folder = temporary.Path();
  const std::vector<Serial_Device> present{
      {"/dev/ttyUSB0", true, "Maker", "Product"}, {"/dev/ttyS0"}, {"/dev/ttyS1"}};
  const auto path_of_com = [&](int number) {
    return Device_Of_Com(number, folder, present).value_or(Serial_Device{.Path = "none"}).Path;
  };
  std::filesystem::create_symlink("/dev/null", folder / "COM1");
  std::filesystem::create_symlink("/dev/no-such-device", folder / "COM2");
  std::filesystem::create_symlink("/etc/passwd", folder / "COM3");
  EXPECT_EQ(path_of_com(1), "/dev/null");
  EXPECT_EQ(path_of_com(2), "none");
  EXPECT_EQ(path_of_com(3), "none");
  std::filesystem::remove(folder / "COM3");
  EXPECT_EQ(path_of_com(3), "/dev/ttyS1");
  EXPECT_EQ(Device_Of_Com(1, folder / "none", present)->Product, "Product");
  for (const int outside : {-1, 0, 21}) EXPECT_EQ(path_of_com(outside), "none");

  const std::filesystem::path lock = folder / "COM1.lock";
  Put_Content(lock, "");
  EXPECT_EQ(path_of_com(1), "/dev/ttyUSB0");
  const int board = open(lock.c_str(), O_RDWR);
  ASSERT_EQ(flock(board, LOCK_EX), 0);
  EXPECT_EQ(path_of_com(1), "/dev/null") << "the board lives";
  close(board);
}

}  // namespace
}  // namespace wrenbit
