#include "board/two_wire_chip.h"

#include <utility>

namespace board {

void Two_Wire_Chip::Sense(const Levels& levels, double now) {
  const bool scl_before = std::exchange(scl, levels[Line::Scl]);
  const bool sda_before = std::exchange(sda, levels[Line::Sda]);
  const bool powered_before = std::exchange(powered, levels[Line::Supply]);
  clock = now;
  if (!powered) return On_Supply_Lost();
  if (!powered_before) return;  // Levels that came with the supply are no edges.

  if (scl_before && scl) {
    if (sda_before && !sda) On_Start();
    if (!sda_before && sda) On_Stop();
  } else if (scl) {
    sampled = sda;
  } else if (sampled) {
    On_Clock(*std::exchange(sampled, std::nullopt));
  }
}

Drive Two_Wire_Chip::Drives_Line(Line line, double /*now*/) const {
  return line == Line::Sda && pulls_sda ? Drive::Low : Drive::Released;
}

// Also in the midst of a frame, whose data are then forgotten. A chip in its write cycle is deaf.
void Two_Wire_Chip::On_Start() {
  Stand_By();
  if (clock < busy_until) return;
  next = Meaning::Control;
  Listen();
}

// Starts the write cycle if whole bytes of data came in, and nothing behind them. The stop's own clock has
// risen but not fallen, so it counts as no bit.
void Two_Wire_Chip::On_Stop() {
  if (phase == Phase::Receive && bits == 0 && !page.empty()) {
    for (const auto& [address, byte] : page) cells.Write(address, byte);
    cycle = std::exchange(page, {});
    busy_until = clock + part.WriteCycle;
  }
  Stand_By();
}

// A write cycle that is cut short leaves its cells erased, neither old nor new.
void Two_Wire_Chip::On_Supply_Lost() {
  if (clock < busy_until)
    for (const auto& [address, byte] : cycle) cells.Write(address, 0xFF);
  Stand_By();
  busy_until = 0;
  pointer = 0;
}

// A whole clock pulse is over and `bit` was on the data line; the chip changes the line only here, with the
// clock low.
void Two_Wire_Chip::On_Clock(bool bit) {
  switch (phase) {
    case Phase::Standby:  // The chip is not spoken to; only a start condition wakes it.
      break;

    case Phase::Receive:  // Eight bits come in. A byte that is welcome gets the data line pulled low.
      shift = static_cast<std::uint8_t>(shift << 1 | (bit ? 1 : 0));
      if (++bits < 8) break;
      pulls_sda = Accept(shift);
      phase = pulls_sda ? Phase::Acknowledge : Phase::Standby;
      break;

    case Phase::Acknowledge:  // The master has seen the acknowledge; the line is free for the next byte.
      pulls_sda = false;
      reading ? Send_Cell() : Listen();
      break;

    case Phase::Send:  // Eight bits go out. Behind the last one the line is the master's.
      shift = static_cast<std::uint8_t>(shift << 1);
      if (++bits < 8) {
        pulls_sda = (shift & 0x80) == 0;
        break;
      }
      pulls_sda = false;
      Count_On(part.ReadRun);
      phase = Phase::Answer;
      break;

    case Phase::Answer:  // The master's word on the byte: low asks for the next one, high ends the read.
      bit ? Stand_By() : Send_Cell();
      break;
  }
}

bool Two_Wire_Chip::Accept(std::uint8_t byte) {
  switch (next) {
    case Meaning::Control:  // 1010, then what the part makes of three bits, then R/W. A read goes by the
                            // counter alone.
      if ((byte & (0xF0 | part.ControlZero)) != 0xA0) return false;
      reading = (byte & 1) != 0;
      word = static_cast<std::size_t>(byte & part.ControlAddress) >> 1;
      address_bytes_left = part.AddressBytes;
      next = Meaning::Address;
      break;

    case Meaning::Address:  // Bits above the chip's size are don't-care.
      word = word << 8 | byte;
      if (--address_bytes_left > 0) break;
      pointer = word % part.Bytes;
      next = Meaning::Data;
      break;

    case Meaning::Data:  // The counter runs round in its page; in a page of one byte it stands.
      page[pointer] = byte;
      Count_On(part.Page);
      break;
  }
  return true;
}

void Two_Wire_Chip::Count_On(std::size_t round) { pointer = pointer / round * round + (pointer + 1) % round; }

void Two_Wire_Chip::Listen() {
  bits = 0;
  phase = Phase::Receive;
}

void Two_Wire_Chip::Send_Cell() {
  shift = cells.Cells()[pointer];
  bits = 0;
  pulls_sda = (shift & 0x80) == 0;
  phase = Phase::Send;
}

void Two_Wire_Chip::Stand_By() {
  phase = Phase::Standby;
  pulls_sda = false;
  sampled.reset();
  page.clear();
}

}  // namespace board
