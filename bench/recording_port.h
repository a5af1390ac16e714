// The program's serial port with somebody who takes notes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "bench/conversation.h"
#include "link/com_ports.h"
#include "link/mscomm.h"
#include "shell/qt/seams/qt_serial.h"

namespace bench {

// The port of the program as long as the object lives; behind that the program has none.
class Recording_Port : public wrenbit::Serial_Backend {
 public:
  Recording_Port();
  Recording_Port(const Recording_Port&) = delete;
  Recording_Port& operator=(const Recording_Port&) = delete;
  ~Recording_Port() override;

  // What was said since the port was opened last.
  const Conversation& Said() const { return conversation; }

  wrenbit::Port_Fault Open(int number, bool rts, bool dtr) override;
  std::string Missing_Right() override { return port.Missing_Right(); }
  std::optional<wrenbit::Serial_Device> Device(int number) override { return port.Device(number); }
  void Keep_Number() override { port.Keep_Number(); }
  void Close() override { port.Close(); }
  bool Lost() override { return port.Lost(); }
  std::size_t Waiting() override;
  std::vector<std::uint8_t> Take() override;
  void Drop() override;
  bool Write(std::span<const std::uint8_t> bytes) override;

 private:
  void Count(std::size_t answered);

  wrenbit::Qt_Serial port;
  Conversation conversation;
  std::size_t waiting = 0;  // At the last look, as the program takes one before it drops bytes.
};

}  // namespace bench
