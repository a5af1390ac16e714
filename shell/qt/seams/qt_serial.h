// A serial port by way of Qt.
#pragma once

#include <QSerialPort>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "link/com_numbers.h"
#include "link/com_ports.h"
#include "link/serial_backend.h"

namespace wrenbit {

// Lives while the application object does.
class Qt_Serial : public Serial_Backend {
 public:
  // The user's configuration folder, which tells whose the numbers are.
  explicit Qt_Serial(const std::filesystem::path& config_folder);

  Port_Fault Open(int number, bool rts, bool dtr) override;
  std::string Missing_Right() override;
  std::optional<Serial_Device> Device(int number) override;
  void Keep_Number() override;
  void Close() override;
  bool Lost() override;
  std::size_t Waiting() override;
  std::vector<std::uint8_t> Take() override;
  void Drop() override;
  bool Write(std::span<const std::uint8_t> bytes) override;

 private:
  const Com_Numbers numbers;
  QSerialPort port;
  // At the last open, whether or not it opened.
  int met_as = 0;
  std::optional<Serial_Device> met;
  bool lost = false;
};

}  // namespace wrenbit
