// The seam behind the serial control, through which a real port or a board in the same process is reached.
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
  // tenth of a second, or twice the time of a full buffer: a part of these bytes may have gone out then, and
  // the rest never does.
  virtual bool Write(std::span<const std::uint8_t> bytes) = 0;

  // Called once, from the event loop, when the open port has gone away.
  std::function<void()> On_Lost;
};

}  // namespace wrenbit
