#include "board/chip_socket.h"

#include <utility>

namespace board {

void Chip_Socket::Insert(std::unique_ptr<Chip> chip) {
  if (seated) seated->Sense({}, clock);  // Its supply goes with it.
  seated = std::move(chip);
  if (seated) seated->Sense(current, clock);
  Settle();
}

void Chip_Socket::Stick(Line line, bool high) {
  stuck[line] = high;
  Settle();
}

void Chip_Socket::Follow(const Drives& board, double now) {
  by_board = board;
  clock = now;
  Settle();
}

// A fault beats a driver, a low driver beats a high one, and a released line follows its pull-up, which hangs
// on the supply. The supply itself has no pull-up.
Levels Chip_Socket::Resolve() const {
  Levels levels;
  for (const Line line : kLines) {
    const Drive board = by_board[line];
    const Drive chip = seated ? seated->Drives_Line(line, clock) : Drive::Released;
    if (stuck[line]) {
      levels[line] = *stuck[line];
    } else if (board == Drive::Low || chip == Drive::Low) {
      levels[line] = false;
    } else if (board == Drive::High || chip == Drive::High) {
      levels[line] = true;
    } else {
      levels[line] = line != Line::Supply && levels[Line::Supply];
    }
  }
  return levels;
}

// A chip answers an edge by driving a line, so the levels are worked out until they stand still.
void Chip_Socket::Settle() {
  for (Levels next = Resolve(); next != current; next = Resolve()) {
    current = next;
    if (seated) seated->Sense(current, clock);
  }
}

}  // namespace board
