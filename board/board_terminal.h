// The pseudo terminal behind which a board stands, as a serial port would.
#pragma once

#include <functional>
#include <string>

#include "board/descriptor.h"
#include "board/typed_lines.h"
#include "board/wire_end.h"
#include "board/wire_schedule.h"

namespace board {

class Board_Terminal {
 public:
  // Opens a terminal in raw mode. From here on SIGINT, SIGTERM and SIGHUP do nothing but end Serve, so one
  // process has one terminal. Throws std::system_error.
  Board_Terminal();

  // The device that the PC opens, as often as it likes.
  const std::string& Device() const { return name; }

  // Carries bytes between the PC and `end` until a signal asks for the stop, and hands each line that is
  // typed meanwhile to `told`. A PC that doesn't read loses the replies that the terminal can't hold. Throws
  // std::system_error, and what `end` and `told` throw.
  void Serve(Wire_End& end, const Port_Timing& timing, Typed_Lines& typed,
             const std::function<void(const std::string& line)>& told);

 private:
  // A claim to the port for one program alone (TIOCEXCL) ends when the last holder closes the port. Here that
  // is never, since the slave is held open, and a PC program that was killed would shut out all that follow.
  void Unclaim();

  Descriptor master;
  Descriptor slave;     // Held open, or the master would see a hang-up each time the PC closes the port.
  Descriptor closings;  // Readable when the PC has closed the port; none where the system gives no watch.
  std::string name;
};

}  // namespace board
