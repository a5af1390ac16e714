// The platform's seams on Qt.
#pragma once

#include <QElapsedTimer>

#include "platform.h"

namespace wrenbit {

class Qt_Platform : public Platform {
 public:
  Qt_Platform() { clock.start(); }
  void DoEvents() override;
  void Await_Event(double seconds) override;
  double Timer() override;
  void Sleep(int milliseconds) override;
  bool MsgBox(const std::string& text, Message_Icon icon, Message_Buttons buttons,
              const std::string& title) override;
  void Open_Address(const std::string& address) override;
  void End() override;

  // Told to end, perhaps before any event loop was there to be ended.
  bool Ended() const { return ended; }

 private:
  QElapsedTimer clock;
  bool ended = false;
};

}  // namespace wrenbit
