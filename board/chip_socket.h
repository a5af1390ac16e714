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
enum class Line : std::uint8_t { Supply, Scl, Sda, Cs, Sk, Di, Do };
inline constexpr Line kLines[] = {Line::Supply, Line::Scl, Line::Sda, Line::Cs, Line::Sk, Line::Di, Line::Do};

enum class Drive : std::uint8_t { Released, Low, High };

template <class T>
class Per_Line {
 public:
  T& operator[](Line line) { return values[static_cast<std::size_t>(line)]; }
  const T& operator[](Line line) const { return values[static_cast<std::size_t>(line)]; }
  bool operator==(const Per_Line&) const = default;

 private:
  std::array<T, std::size(kLines)> values{};
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

  // A stuck pin: the line keeps one level, whoever drives it.
  void Stick(Line line, bool high);

  // What the board does to the lines from `now` on, in seconds of wire time.
  void Follow(const Drives& board, double now);

  bool Level(Line line) const { return current[line]; }

 private:
  Levels Resolve() const;
  void Settle();

  std::unique_ptr<Chip> seated;
  Drives by_board;
  Per_Line<std::optional<bool>> stuck;
  Levels current;
  double clock = 0;
};

}  // namespace board
