// The serial control, and the seam behind it through which a real port or a board in the same process is
// reached. The line is always 9600 baud, no parity, 8 data bits, 1 stop bit, no flow control.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "link/com_ports.h"

namespace wrenbit {

enum class Port_Fault {
  None,
  No_Such_Port,   // Nothing carries that number, or the number is none.
  No_Permission,  // The user may not open the device.
  Rights_Coming,  // The same for now: the system is still setting up who may.
  In_Use,         // Another program holds it.
  Gone,           // It was there and has been unplugged.
  Refused,        // Any other refusal of the system.
};

// What opens, moves bytes and notices the end of a port. One port at a time.
class Serial_Backend {
 public:
  virtual ~Serial_Backend() = default;
  // Opens COM1 to COM20 by its number, with both lines set and nothing in the receive buffer. On a fault
  // nothing is left open.
  virtual Port_Fault Open(int number, bool rts, bool dtr) = 0;
  // What would let the user open the device that the last Open was not permitted to, a few words in Japanese;
  // empty when nothing is known to.
  virtual std::string Missing_Right() = 0;
  // The device that COMn would open now, its Path empty while it is away; nothing when the number has none.
  // Opens nothing.
  virtual std::optional<Serial_Device> Device(int number) = 0;
  // The number of the last Open belongs to the device that it met from now on, whether or not that opened.
  // Does nothing where the numbers are the system's own.
  virtual void Keep_Number() = 0;
  virtual void Close() = 0;
  // True once the open port has gone away; it then gives no byte any more and takes none.
  virtual bool Lost() = 0;
  // Bytes that have arrived and are not yet taken.
  virtual std::size_t Waiting() = 0;
  // What Waiting told of at its last call, at least: need not ask the system once more.
  virtual std::vector<std::uint8_t> Take() = 0;
  virtual void Drop() = 0;
  // Goes out at once and in one piece. False when the port is lost or the system refuses, which may take a
  // tenth of a second: a part of these bytes may have gone out then, and the rest never does.
  virtual bool Write(std::span<const std::uint8_t> bytes) = 0;

  // Called once, from the event loop, when the open port has gone away.
  std::function<void()> On_Lost;
};

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
  std::function<void()> Gone;
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
