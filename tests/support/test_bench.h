// The bench on which the program's logic is tested without a screen or a port: a platform whose time moves
// only when told, settings in memory, and a serial port with a 9600-baud wire in that time, to any board.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "board/wire_end.h"
#include "core/state/platform.h"
#include "core/state/settings.h"
#include "core/state/state.h"
#include "link/com_ports.h"
#include "link/mscomm.h"
#include "shell/controls/frm_main.h"

namespace wrenbit {

using Bytes = std::vector<std::uint8_t>;
using Texts = std::vector<std::string>;

// Of the status bar.
inline const std::string& Panel(int number) { return frmMain.sbStatusBar.Panel(number); }

// The program's state as it is when the process starts: all of state.h zero or empty; every window unloaded,
// hidden, with its first texts. No event fires.
void Reset_State();

class Test_Bench : private Platform, private Settings_Store, private Serial_Backend {
 public:
  // Everything global is as at the start of the process, and the bench stands behind it. One at a time.
  Test_Bench();
  ~Test_Bench() override;

  // --- The port.
  board::Wire_End* Board = nullptr;        // What hangs on it; nothing answers when null.
  Port_Fault Refusal = Port_Fault::None;   // What the next open meets.
  std::string Right;                       // What is missing where it has no permission.
  Bytes Sent;                              // All bytes that went out.
  std::vector<Bytes> Commands;             // The same, a write each; those that were refused too.
  std::function<bool(std::size_t)> Takes;  // Whether the system takes the write of this number, from 1 on.
  std::size_t Partly = 0;                  // Bytes that go out of a write that is refused.
  std::size_t Received = 0;                // Bytes that the program took.
  std::size_t Waits = 0;                   // How often it rested for an event.
  double LongestGap = 0;                   // Seconds between two writes, or the last one and the close.
  std::size_t SilentSeconds = 0;           // How many gaps lasted a second.
  Texts Opened;                            // "COM1 RTS DTR" for each open.
  std::map<int, Serial_Device> Devices;    // By COM number.
  std::vector<int> Kept;                   // The numbers that were given to their devices.
  double ByteTime = board::kByteTime;      // Seconds a byte on the wire.
  bool Is_Open() const { return open; }
  using Serial_Backend::On_Lost;
  // A byte that lies in the receive buffer now.
  void Leave_In_Buffer(std::uint8_t byte) { arriving.push_front({now, byte}); }
  void Forget_Traffic();

  // --- The platform.
  double Now() const { return now; }
  void Pass(double seconds) { now += seconds; }
  double Seconds_Of(const std::function<void()>& run) {
    const double from = now;
    run();
    return now - from;
  }
  std::function<void()> On_Yield;             // Runs inside every yield.
  std::function<void()> On_Repaint = [] {};   // Inside every repaint.
  Texts Boxes;                                // Title, " | ", text of each message box.
  Message_Icon BoxIcon = Message_Icon::None;  // Of the last one.
  bool BoxAnswer = true;
  Texts Helps;             // The help files that were shown.
  std::string HelpAnswer;  // What showing one answers.
  bool Ended = false;

  std::map<std::string, std::string> Stored;  // The settings, by key.

 private:
  struct Arrival {
    double At;
    std::uint8_t Byte;
  };
  void DoEvents() override {
    if (On_Yield) On_Yield();
  }
  void Repaint() override { On_Repaint(); }
  void Await_Event(double seconds) override;
  double Timer() override { return now; }
  void Sleep(int milliseconds) override { now += milliseconds / 1000.0; }
  bool MsgBox(const std::string& text, Message_Icon icon, Message_Buttons, const std::string& title) override;
  void Open_Address(const std::string&) override {}
  std::string Show_Help(const std::string& path) override { return Helps.push_back(path), HelpAnswer; }
  void End() override { Ended = true; }

  std::string Get(const std::string&, const std::string& key, const std::string& otherwise) override {
    return Stored.contains(key) ? Stored[key] : otherwise;
  }
  void Save(const std::string&, const std::string& key, const std::string& value) override {
    Stored[key] = value;
  }

  Port_Fault Open(int number, bool rts, bool dtr) override;
  std::string Missing_Right() override { return Right; }
  std::optional<Serial_Device> Device(int number) override;
  void Keep_Number() override { Kept.push_back(MSComm1.CommPort); }
  void Close() override;
  bool Lost() override { return Board && Board->Gone(); }
  std::size_t Waiting() override;
  Bytes Take() override;
  void Drop() override {
    std::erase_if(arriving, [&](const Arrival& a) { return a.At <= now; });
  }
  bool Write(std::span<const std::uint8_t> bytes) override;

  void End_Gap();

  double now = 1000;
  double gap_from = 0;
  double out_free = 0;  // When the wire to the board is free again.
  double back_free = 0;
  std::deque<Arrival> arriving;
  bool open = false;
};

// A board that says what a test tells it to: to the n-th command the n-th answer.
class Scripted_Board : public board::Wire_End {
 public:
  // How many bytes make the commands that are answered, and the answers. Behind the last one it is silent.
  struct Reply {
    std::size_t After;
    Bytes Says;
    double Late = 0;
  };
  std::deque<Reply> Replies;

  board::Answer Receive(std::uint8_t byte) override;

 private:
  std::size_t received = 0;
};

}  // namespace wrenbit
