// A virtual board in a process of its own, and two ways to talk to it: the program's port, and the least that
// any program can do.
#pragma once

#include <QProcess>
#include <QStringList>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "link/mscomm.h"
#include "shell/qt/seams/qt_serial.h"

namespace bench {

// What passed between PC and board.
struct Traffic {
  std::uint64_t Commands = 0;
  std::uint64_t Out = 0;   // Bytes to the board.
  std::uint64_t Back = 0;  // Bytes from it.
  // Seconds that the wire needs for it. An answer is awaited before the next command goes
  // out, so the two directions add up.
  double Wire_Time() const { return static_cast<double>(Out + Back) * wrenbit::MSComm::kByteTime; }
  bool operator==(const Traffic&) const = default;
};

// On COM1 as long as the object lives.
class Board_Process {
 public:
  // Throws std::runtime_error when the board does not come up.
  explicit Board_Process(const QStringList& arguments);
  Board_Process(const Board_Process&) = delete;
  Board_Process& operator=(const Board_Process&) = delete;
  ~Board_Process();

  // The terminal behind which it stands.
  const std::string& Device() const { return device; }
  // It answers nothing any more, and stays.
  void Freeze();
  // Ends it. What has passed since it came up. Throws std::runtime_error when it died before.
  Traffic End();

 private:
  void Stop();

  QProcess process;
  std::string device;
};

// What was said to a port and how much was answered.
struct Turn {
  std::vector<std::uint8_t> Said;  // In one write.
  std::size_t Answered = 0;        // Bytes that were taken, or thrown away, before the next turn.
};
using Conversation = std::vector<Turn>;

// The program's serial port, taking notes, as long as the object lives; behind that the program has none.
class Recording_Port : public wrenbit::Qt_Serial {
 public:
  Recording_Port();
  Recording_Port(const Recording_Port&) = delete;
  Recording_Port& operator=(const Recording_Port&) = delete;
  ~Recording_Port() override;

  // What was said since the port was opened last.
  const Conversation& Said() const { return conversation; }

  wrenbit::Port_Fault Open(int number, bool rts, bool dtr) override;
  std::size_t Waiting() override;
  std::vector<std::uint8_t> Take() override;
  void Drop() override;
  bool Write(std::span<const std::uint8_t> bytes) override;

 private:
  void Count(std::size_t answered);

  Conversation conversation;
  std::size_t waiting = 0;  // At the last look, as the program takes one before it drops bytes.
};

// Seconds to hold a conversation once more by write(2), poll(2) and read(2), and nothing else. Throws
// std::runtime_error when the other side falls silent.
double Bare_Talk(const std::string& device, const Conversation& conversation);

}  // namespace bench
