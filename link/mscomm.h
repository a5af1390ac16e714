// The serial control. The line is always 9600 baud, no parity, 8 data bits, 1 stop bit, no flow control.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "link/com_ports.h"
#include "link/serial_backend.h"

namespace wrenbit {

class MSComm {
 public:
  static constexpr std::size_t kOutBufferSize = 512;  // Bytes.
  // Seconds: start bit, eight data bits, stop bit.
  static constexpr double kByteTime = 10.0 / 9600;

  // The backend outlives its use here.
  void Attach(Serial_Backend* port);

  int CommPort = 1;
  // Take effect at the next open.
  bool RTSEnable = true;
  bool DTREnable = false;

  bool PortOpen() const { return open; }
  // Rests up to half a second, with events delivered, where the rights to the device are still coming; never
  // gives Rights_Coming. An event that opens or closes the port meanwhile has the last word.
  Port_Fault Open();
  std::string Missing_Right() const { return backend ? backend->Missing_Right() : ""; }
  void Close();
  bool Lost() { return open && backend->Lost(); }
  // Fires once, from the event loop, when the open port has gone away.
  std::function<void()> On_Lost;
  std::optional<Serial_Device> Device(int number) const;
  // CommPort belongs to the device that the last open met from now on.
  void Keep_Number();

  // On a closed port there is nothing to read, and nothing goes out.
  std::size_t InBufferCount() { return open ? backend->Waiting() : 0; }
  void Clear_InBuffer();
  // Bytes that came without being asked for, since Forget_Unasked: those that Clear_InBuffer threw away, and
  // those that came with a reply and were counted here.
  std::size_t Unasked() const { return unasked; }
  void Count_Unasked(std::size_t bytes) { unasked += bytes; }
  void Forget_Unasked() { unasked = 0; }
  std::vector<std::uint8_t> Input();
  // In one piece. False when it did not go out, or not whole: a stream with a hole would mean something else
  // to the chip, so all that follows is held back and refused too, until Resume or the next open.
  bool Output(std::span<const std::uint8_t> bytes);
  bool Refused() const { return refused; }
  void Resume() { refused = false; }

  // Rests, with events delivered, until `bytes` more would run at most 512 bytes ahead of the wire. A system
  // takes thousands of bytes at once, and a read behind them would wait for its answer longer than its
  // second; 512 bytes take half of it. Returns at once on a port that is closed or lost.
  void Await_Room(std::size_t bytes);
  // The same, until it has carried all.
  void Await_Idle_Wire() { Await_Room(kOutBufferSize); }

  // A query and its answer, so many bytes in all, took so long on the open port. Where that is far less than
  // 9600 baud takes, there is no such wire (a virtual board), and Await_Room goes by what was seen until the
  // next open.
  void Learn_Pace(std::size_t bytes, double seconds);

 private:
  Serial_Backend* backend = nullptr;
  bool open = false;
  unsigned turns = 0;  // Opens and closes so far.
  std::size_t unasked = 0;
  bool refused = false;
  double byte_time = kByteTime;  // As seen on the open port; seconds.
  double wire_free = 0;          // When the wire has carried all that was sent, on the clock of Timer.
};

inline MSComm MSComm1;

}  // namespace wrenbit
