// Which devices there are, and which stands behind a COM number.
#include "link/com_ports.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

#include <filesystem>
#include <map>
#include <sstream>
#include <string>

#include "link/com_numbers.h"
#include "tests/support/temporary_folder.h"

namespace wrenbit {
namespace {

namespace fs = std::filesystem;

// A made-up /sys, and a configuration folder beside it.
class Com_Ports : public testing::Test {
 protected:
  const Temporary_Folder temporary;
  const fs::path system = temporary / "sys", config = temporary / "config";
  const Com_Numbers numbers{config, system};

  Com_Ports() { fs::create_directories(config / "ports"); }
  void Put(const std::string& folder, const std::map<std::string, std::string>& lines) {
    fs::create_directories(system / folder);
    for (const auto& [file, line] : lines) Put_Content(system / folder / file, line + "\n");
  }
  void Add(const std::string& tty, const std::string& hardware) {
    fs::create_directories(system / "class/tty" / tty);
    fs::create_directories(system / "devices" / hardware);
    fs::create_symlink(system / "devices" / hardware, system / "class/tty" / tty / "device");
  }
  // Of COM1 on; "-" where there is none.
  std::string Paths(int count) const {
    std::string paths;
    for (int number = 1; number <= count; ++number)
      paths += numbers.Device(number).value_or(Serial_Device{.Path = "-"}).Path + " ";
    return paths;
  }
};

TEST_F(Com_Ports, UsbAdaptersComeFirstInTheOrderOfTheirNumbersAndTheSystemTellsWhatTheyAre) {
  Put("devices/pci0/usb1/1-1/1-1.4", {{"idVendor", "0403"},
                                      {"idProduct", "6001"},
                                      {"serial", "A5\t0"},
                                      {"manufacturer", "Maker"},
                                      {"product", "UART bridge"}});
  Put("devices/pci0/usb1/1-2", {{"idVendor", "2341"}});
  Put("devices/pci0/usb1/1-2/1-2:1.1/ttyUSB2", {{"port_number", "3"}});
  Add("ttyUSB10", "pci0/usb1/1-1/1-1.4/1-1.4:1.0/ttyUSB10");
  Add("ttyACM2", "pci0/usb1/1-2/1-2:1.0");
  Add("ttyUSB2", "pci0/usb1/1-2/1-2:1.1/ttyUSB2");
  Add("ttyS0", "pnp0/serial0");
  Add("ttyS1", "pnp0/serial1");
  Put("class/tty/ttyS0", {{"type", "4"}, {"rx_trig_bytes", "8"}});
  Put("class/tty/ttyS1", {{"type", "0"}});  // No chip behind it.
  Put("class/tty/tty1", {{"dev", "4:1"}});
  std::string told;
  for (const Serial_Device& d : In_Com_Order(Serial_Devices_Present(system)))
    told += d.Path + (d.Usb ? " USB " : " ") + d.Maker + ":" + d.Product + " " +
            std::to_string(d.ReceiveTrigger) + " " + d.Kind + " " + d.Serial + " " +
            fs::path(d.Place).filename().string() + "\n";
  EXPECT_EQ(told,
            "/dev/ttyUSB2 USB : 0 2341::1.1.3  usb-2:1.1.3\n"
            "/dev/ttyACM2 USB : 0 2341::1.0  usb-2:1.0\n"
            "/dev/ttyUSB10 USB Maker:UART bridge 0 0403:6001:1.0 A5 0 usb-1.4:1.0\n"
            "/dev/ttyS0 : 8   ttyS0\n");
}

TEST_F(Com_Ports, ALinkDecidesUnlessAKilledBoardLeftItBehind) {
  for (const char* tty : {"ttyS0", "ttyS1", "zero"}) Add(tty, tty);
  fs::create_symlink("/dev/zero", config / "ports/COM1");
  fs::create_symlink("/dev/no-such-device", config / "ports/COM2");
  fs::create_symlink("/etc/passwd", config / "ports/COM3");
  EXPECT_EQ(Paths(3), "/dev/zero - - ");
  fs::remove(config / "ports/COM3");
  EXPECT_EQ(Paths(5), "/dev/zero - /dev/ttyS0 /dev/ttyS1 - ") << "what has a link takes no other number";
  for (const int outside : {-1, 0, 21}) EXPECT_FALSE(numbers.Device(outside));
  numbers.Give(1, *numbers.Device(1));
  EXPECT_FALSE(fs::exists(config / "com-numbers"));

  const fs::path lock = config / "ports/COM1.lock";
  Put_Content(lock, "");
  EXPECT_EQ(Paths(1), "/dev/ttyS0 ");
  numbers.Give(1, *numbers.Device(1));
  const int board = open(lock.c_str(), O_RDWR);
  ASSERT_EQ(flock(board, LOCK_EX), 0);
  EXPECT_EQ(Paths(3), "/dev/zero - /dev/ttyS0 ") << "the board lives, and has the number of another";
  close(board);
}

// + plugs an adapter in, as ttyUSB of that digit, into that socket; - pulls that ttyUSB, = is a good
// handshake. C has no serial number, S and T share one. COM1 to COM3 show their adapters, with - before those
// away.
TEST_F(Com_Ports, ANumberStaysWithTheBoardThatAnsweredInWhateverOrderTheyArePulledAndReplugged) {
  const std::map<char, const char*> serials{
      {'A', "A5"}, {'B', "B5"}, {'C', ""}, {'S', "0001"}, {'T', "0001"}};
  for (const auto& [steps, shown] : std::map<std::string, std::string>{
           {"+A01 =1 +B12 -0", "-AB-"},
           {"+A01 =1 +B12 =2 -0 -1 +B01 +A13", "AB-"},
           {"+A11 =1 +B02", "AB-"},
           {"+A01 +B12 =2 -0 +C03", "CB-"},
           {"+C01 =1 -0 +C02", "-CC-"},
           {"+C01 =1 -0 +A02 +C11", "CA-"},
           {"+S01 +T12 =1 =2 -0 -1 +T02 +S11", "ST-"},
           {"+S01 =1 +T12 =2 -0 -1 +T03", "-S-TT"},
           {"+S01 +T12 =1 -1 =1 -0 +T12", "-ST-"},
       }) {
    fs::remove_all(system);
    fs::remove(config / "com-numbers");
    std::istringstream words(steps);
    for (std::string step; words >> step;) {
      const int number = step[1] - '0';
      if (step[0] == '=') numbers.Give(number, numbers.Device(number).value());
      if (step[0] == '-') fs::remove_all(system / "class/tty/ttyUSB" += step.substr(1));
      if (step[0] != '+') continue;
      const std::string usb = "usb1/1-" + step.substr(3);
      Put("devices/" + usb, {{"idVendor", "0403"}, {"product", {step[1]}}, {"serial", serials.at(step[1])}});
      Add("ttyUSB" + step.substr(2, 1), usb + "/1-" + step.substr(3) + ":1.0");
    }
    std::string seen;
    for (int number = 1; number <= 3; ++number) {
      const Serial_Device device = numbers.Device(number).value_or(Serial_Device{});
      seen += (device.Path.empty() ? "-" : "") + device.Product;
    }
    EXPECT_EQ(seen, shown) << steps;
  }
}

TEST_F(Com_Ports, ADamagedLineKeepsItsNumberAndANewDeviceGetsNoneOfTwentyOwnedOnes) {
  Add("ttyS0", "pnp0/serial0");
  std::string text = "COM\nCOM1 place   ttyS0\nCOM2\tluck\t\t\tttyS0\nCOM0\tplace\t\t\tttyS0\n";
  for (int number = 3; number <= 20; ++number)
    text += "COM" + std::to_string(number) + "\tplace\t\t\tttyS9\n";
  Put_Content(config / "com-numbers", text);
  EXPECT_EQ(Paths(20), std::string(20, ' '));
}

}  // namespace
}  // namespace wrenbit
