#include "chip_socket.h"

#include <utility>

namespace board {

void Chip_Socket::Insert(std::unique_ptr<Chip> chip) {
  if (Seated) Seated->Sense({}, Now);  // Its supply goes with it.
  Seated = std::move(chip);
  if (Seated) Seated->Sense(Current, Now);
  Settle();
}

void Chip_Socket::Stick(Line line, bool high) {
  Stuck[line] = high;
  Settle();
}

void Chip_Socket::Follow(const Drives& by_board, double now) {
  ByBoard = by_board;
  Now = now;
  Settle();
}

// A fault beats a driver, a low driver beats a high one, and a released line follows its pull-up, which hangs
// on the supply. The supply itself has no pull-up.
Levels Chip_Socket::Resolve() const {
  Levels levels;
  for (const Line line : kLines) {
    const Drive board = ByBoard[line];
    const Drive chip = Seated ? Seated->Drives_Line(line, Now) : Drive::kReleased;
    if (Stuck[line]) {
      levels[line] = *Stuck[line];
    } else if (board == Drive::kLow || chip == Drive::kLow) {
      levels[line] = false;
    } else if (board == Drive::kHigh || chip == Drive::kHigh) {
      levels[line] = true;
    } else {
      levels[line] = line != Line::kSupply && levels[Line::kSupply];
    }
  }
  return levels;
}

// A chip answers an edge by driving a line, so the levels are worked out until they stand still.
void Chip_Socket::Settle() {
  for (Levels next = Resolve(); next != Current; next = Resolve()) {
    Current = next;
    if (Seated) Seated->Sense(Current, Now);
  }
}

}  // namespace board
