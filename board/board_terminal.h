// The serial port behind which a board stands: one that is none, but a pseudo terminal or a named pipe.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "board/typed_lines.h"
#include "board/wire_end.h"
#include "board/wire_schedule.h"

namespace board {

class Board_Terminal {
 public:
  // Opens a pseudo terminal in raw mode, or a named pipe for one PC at a time and none from afar. From here
  // on what asks the process to stop (SIGINT, SIGTERM and SIGHUP, or the console's events) does nothing but
  // end Serve, so one process has one terminal. Throws std::runtime_error.
  Board_Terminal();
  ~Board_Terminal();

  // The device that the PC opens, as often as it likes.
  const std::string& Device() const { return name; }

  // Carries bytes between the PC and `end` until the stop is asked for, and hands each line that is typed
  // meanwhile to `told`. A PC that doesn't read loses the replies that the system can't hold. Throws
  // std::runtime_error, and what `end` and `told` throw.
  void Serve(Wire_End& end, const Port_Timing& timing, Typed_Lines& typed,
             const std::function<void(const std::string& line)>& told);

 private:
  struct Port;

  std::unique_ptr<Port> port;
  std::string name;
};

}  // namespace board
