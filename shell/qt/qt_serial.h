// The serial port of the real program.
#pragma once

#include <QSerialPort>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "com_ports.h"
#include "mscomm.h"

namespace wrenbit {

// Lives while the application object does.
class Qt_Serial : public Serial_Backend {
 public:
  // The folder in which a link COMn names the device of that port.
  explicit Qt_Serial(std::filesystem::path ports_folder);

  Port_Fault Open(int number, bool rts, bool dtr) override;
  std::string Missing_Right() override;
  std::optional<Serial_Device> Device(int number) override;
  void Close() override;
  bool Lost() override;
  std::size_t Waiting() override;
  std::vector<std::uint8_t> Take() override;
  void Drop() override;
  bool Write(std::span<const std::uint8_t> bytes) override;

 private:
  std::filesystem::path folder;
  QSerialPort port;
  std::optional<Serial_Device> met;  // At the last open, whether or not it opened.
  bool lost = false;
};

}  // namespace wrenbit
