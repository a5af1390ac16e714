// A virtual board in a process of its own, on COM1, as long as the object lives.
#pragma once

#include <QProcess>
#include <QStringList>
#include <cstdint>
#include <string>

namespace bench {

// What passed between PC and board.
struct Traffic {
  std::uint64_t Commands = 0;
  std::uint64_t Out = 0;   // Bytes to the board.
  std::uint64_t Back = 0;  // Bytes from it.
  // Seconds that the wire needs for it at 9600 baud, 8N1. An answer is awaited before the next command goes
  // out, so the two directions add up.
  double Wire_Time() const { return static_cast<double>(Out + Back) * 10 / 9600; }
  bool operator==(const Traffic&) const = default;
};

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

}  // namespace bench
