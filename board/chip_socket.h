// The chip socket: its lines, the chip that may sit in it, and the level that a line takes when board, chip,
// pull-up and fault all have their say.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <optional>

namespace board {

// Named after the chips' pins: SCL and SDA are the two-wire bus; CS, SK, DI and DO the three-wire one.
enum class Line : std::uint8_t { kSupply, kScl, kSda, kCs, kSk, kDi, kDo };
inline constexpr Line kLines[] = {Line::kSupply, Line::kScl, Line::kSda, Line::kCs,
                                  Line::kSk,     Line::kDi,  Line::kDo};

enum class Drive : std::uint8_t { kReleased, kLow, kHigh };

template <class T>
class Per_Line {
 public:
  T& operator[](Line line) { return Values[static_cast<std::size_t>(line)]; }
  const T& operator[](Line line) const { return Values[static_cast<std::size_t>(line)]; }
  bool operator==(const Per_Line&) const = default;

 private:
  std::array<T, std::size(kLines)> Values{};
};

using Levels = Per_Line<bool>;
using Drives = Per_Line<Drive>;

class Chip {
 public:
  virtual ~Chip() = default;

  // The lines as they are from `now` on, in seconds of wire time. Called at every change, those of the chip's
  // own making included. Without supply the chip forgets all but its cells. Throws what its store throws.
  virtual void Sense(const Levels& levels, double now) = 0;

  // What the chip does to a line at `now`, no earlier than the last change. Nothing, while it has no supply.
  virtual Drive Drives_Line(Line line, double now) const = 0;
};

class Chip_Socket {
 public:
  // Replaces the chip in the socket, also with the supply on.
  void Insert(std::unique_ptr<Chip> chip);

  // A fault of the line: it keeps one level, whoever drives it.
  void Stick(Line line, bool high);

  // What the board does to the lines from `now` on, in seconds of wire time.
  void Follow(const Drives& by_board, double now);

  bool Level(Line line) const { return Current[line]; }

 private:
  Levels Resolve() const;
  void Settle();

  std::unique_ptr<Chip> Seated;
  Drives ByBoard;
  Per_Line<std::optional<bool>> Stuck;
  Levels Current;
  double Now = 0;
};

}  // namespace board
