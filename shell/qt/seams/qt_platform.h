// The platform's seams on Qt. Must go before the application object, for it owns a window.
#pragma once

#include <QElapsedTimer>
#include <memory>
#include <string>

#include "core/state/platform.h"
#include "shell/qt/seams/help_window.h"

namespace wrenbit {

class Qt_Platform : public Platform {
 public:
  Qt_Platform() { clock.start(); }
  void DoEvents() override;
  void Repaint() override;
  void Await_Event(double seconds) override;
  double Timer() override;
  void Sleep(int milliseconds) override;
  bool MsgBox(const std::string& text, Message_Icon icon, Message_Buttons buttons,
              const std::string& title) override;
  void Open_Address(const std::string& address) override;
  std::string Show_Help(const std::string& path) override;
  void End() override;

  // Told to end, perhaps before any event loop was there to be ended.
  bool Ended() const { return ended; }

 private:
  QElapsedTimer clock;
  bool ended = false;
  std::unique_ptr<Help_Window> help;  // Made when it is first asked for.
};

}  // namespace wrenbit
