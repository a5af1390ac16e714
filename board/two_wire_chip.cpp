#include "two_wire_chip.h"

#include <utility>

namespace board {

void Two_Wire_Chip::Sense(const Levels& levels, double now) {
  const bool scl_before = std::exchange(Scl, levels[Line::kScl]);
  const bool sda_before = std::exchange(Sda, levels[Line::kSda]);
  const bool powered_before = std::exchange(Powered, levels[Line::kSupply]);
  Now = now;
  if (!Powered) return On_Supply_Lost();
  if (!powered_before) return;  // Levels that came with the supply are no edges.

  if (scl_before && Scl) {
    if (sda_before && !Sda) On_Start();
    if (!sda_before && Sda) On_Stop();
  } else if (Scl) {
    Sampled = Sda;
  } else if (Sampled) {
    On_Clock(*std::exchange(Sampled, std::nullopt));
  }
}

Drive Two_Wire_Chip::Drives_Line(Line line, double /*now*/) const {
  return line == Line::kSda && PullsSda ? Drive::kLow : Drive::kReleased;
}

// Also in the midst of a frame, whose data are then forgotten. A chip in its write cycle is deaf.
void Two_Wire_Chip::On_Start() {
  Stand_By();
  if (Now < BusyUntil) return;
  Next = Meaning::kControl;
  Listen();
}

// Starts the write cycle if whole bytes of data came in, and nothing behind them. The stop's own clock has
// risen but not fallen, so it counts as no bit.
void Two_Wire_Chip::On_Stop() {
  if (State == Phase::kReceive && Bits == 0 && !Page.empty()) {
    for (const auto& [address, byte] : Page) Cells.Write(address, byte);
    Cycle = std::exchange(Page, {});
    BusyUntil = Now + Part.WriteCycle;
  }
  Stand_By();
}

// A write cycle that is cut short leaves its cells erased, neither old nor new.
void Two_Wire_Chip::On_Supply_Lost() {
  if (Now < BusyUntil)
    for (const auto& [address, byte] : Cycle) Cells.Write(address, 0xFF);
  Stand_By();
  BusyUntil = 0;
  Pointer = 0;
}

// A whole clock pulse is over and `bit` was on the data line; the chip changes the line only here, with the
// clock low.
void Two_Wire_Chip::On_Clock(bool bit) {
  switch (State) {
    case Phase::kStandby:  // The chip is not spoken to; only a start condition wakes it.
      break;

    case Phase::kReceive:  // Eight bits come in. A byte that is welcome gets the data line pulled low.
      Shift = static_cast<std::uint8_t>(Shift << 1 | (bit ? 1 : 0));
      if (++Bits < 8) break;
      PullsSda = Accept(Shift);
      State = PullsSda ? Phase::kAcknowledge : Phase::kStandby;
      break;

    case Phase::kAcknowledge:  // The master has seen the acknowledge; the line is free for the next byte.
      PullsSda = false;
      Reading ? Send_Cell() : Listen();
      break;

    case Phase::kSend:  // Eight bits go out. Behind the last one the line is the master's.
      Shift = static_cast<std::uint8_t>(Shift << 1);
      if (++Bits < 8) {
        PullsSda = (Shift & 0x80) == 0;
        break;
      }
      PullsSda = false;
      Count_On(Part.ReadRun);
      State = Phase::kAnswer;
      break;

    case Phase::kAnswer:  // The master's word on the byte: low asks for the next one, high ends the read.
      bit ? Stand_By() : Send_Cell();
      break;
  }
}

bool Two_Wire_Chip::Accept(std::uint8_t byte) {
  switch (Next) {
    case Meaning::kControl:  // 1010, then what the part makes of three bits, then R/W. A read goes by the
                             // counter alone.
      if ((byte & (0xF0 | Part.ControlZero)) != 0xA0) return false;
      Reading = (byte & 1) != 0;
      Word = static_cast<std::size_t>(byte & Part.ControlAddress) >> 1;
      AddressBytesLeft = Part.AddressBytes;
      Next = Meaning::kAddress;
      break;

    case Meaning::kAddress:  // Bits above the chip's size are don't-care.
      Word = Word << 8 | byte;
      if (--AddressBytesLeft > 0) break;
      Pointer = Word % Part.Bytes;
      Next = Meaning::kData;
      break;

    case Meaning::kData:  // The counter runs round in its page; in a page of one byte it stands.
      Page[Pointer] = byte;
      Count_On(Part.Page);
      break;
  }
  return true;
}

void Two_Wire_Chip::Count_On(std::size_t round) { Pointer = Pointer / round * round + (Pointer + 1) % round; }

void Two_Wire_Chip::Listen() {
  Bits = 0;
  State = Phase::kReceive;
}

void Two_Wire_Chip::Send_Cell() {
  Shift = Cells.Cells()[Pointer];
  Bits = 0;
  PullsSda = (Shift & 0x80) == 0;
  State = Phase::kSend;
}

void Two_Wire_Chip::Stand_By() {
  State = Phase::kStandby;
  PullsSda = false;
  Sampled.reset();
  Page.clear();
}

}  // namespace board
