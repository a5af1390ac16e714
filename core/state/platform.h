// The small seam to the platform: yield and repaint, clock and pause, message box, browser and help, the end.
#pragma once

#include <string>

namespace wrenbit {

enum class Message_Icon { None, Critical, Question, Information, Warning };
enum class Message_Buttons { Ok, OkCancel };

class Platform {
 public:
  virtual ~Platform() = default;
  // Delivers pending events, then comes back.
  virtual void DoEvents() = 0;
  // Lets what has changed so far show. Keys and clicks wait meanwhile; what assistive technology picks does
  // not.
  virtual void Repaint() = 0;
  // Delivers pending events; when there are none, rests until one comes, at most for so many seconds.
  // A byte on the serial port is an event.
  virtual void Await_Event(double seconds) = 0;
  // Seconds on a clock that never goes back.
  virtual double Timer() = 0;
  // Rests with no event delivered.
  virtual void Sleep(int milliseconds) = 0;
  // Modal. True for OK.
  virtual bool MsgBox(const std::string& text, Message_Icon icon, Message_Buttons buttons,
                      const std::string& title) = 0;
  // Hands a web address to the user's browser. A failure passes unseen.
  virtual void Open_Address(const std::string& address) = 0;
  // Shows the help file at its contents page, in a window of its own that may stay open. Empty, or the
  // description of the error for the user.
  virtual std::string Show_Help(const std::string& path) = 0;
  // Ends the program when the handler in hand has returned.
  virtual void End() = 0;
};

// The platform in use. Set before anything else runs; owned by whoever sets it.
inline Platform* ThePlatform = nullptr;

inline void DoEvents() { ThePlatform->DoEvents(); }
inline double Timer() { return ThePlatform->Timer(); }
inline void Sleep(int milliseconds) { ThePlatform->Sleep(milliseconds); }
inline bool MsgBox(const std::string& text, Message_Icon icon, Message_Buttons buttons,
                   const std::string& title) {
  return ThePlatform->MsgBox(text, icon, buttons, title);
}

}  // namespace wrenbit
