// An instruction stands between the rise and the fall of CS. Its bits are taken at the rising edge of SK,
// highest first, n = the part's address bits:
//
//   instruction   start  opcode  n address bits   8 data bits
//   READ            1      10    the address      go out on DO, behind a 0; then those of the next cells
//   WRITE           1      01    the address      come in
//   ERASE           1      11    the address
//   EWEN            1      00    1 1 and any
//   ERAL            1      00    1 0 and any
//   WRAL            1      00    0 1 and any      come in
//   EWDS            1      00    0 0 and any
//
// All but READ happen at the fall of CS. Sources: Atmel's data sheets of AT93C46, AT93C66 and AT93C86. Where
// they are silent the model is strict: a frame with a bit too many does nothing, nor does one that begins in
// the write cycle.
#include "board/three_wire_chip.h"

#include <utility>

namespace board {

void Three_Wire_Chip::Sense(const Levels& levels, double now) {
  const bool powered_before = std::exchange(powered, levels[Line::Supply]);
  const bool cs_before = std::exchange(cs, levels[Line::Cs]);
  const bool sk_before = std::exchange(sk, levels[Line::Sk]);
  const bool di_before = std::exchange(di, levels[Line::Di]);
  clock = now;
  if (!powered) {
    if (powered_before) On_Supply_Lost();
    return;
  }
  if (!powered_before) return;  // Levels that came with the supply are no edges.

  if (!cs_before && cs) phase = Phase::Start;
  // Data that change with the clock's edge have not been set up for it.
  if (cs && !sk_before && sk) On_Clock(di_before);
  if (cs_before && !cs) On_Deselect();
}

// DO is let go unless the chip is selected and has something to say.
Drive Three_Wire_Chip::Drives_Line(Line line, double now) const {
  if (line != Line::Do || !powered || !cs) return Drive::Released;
  if (shows_status) return now < busy_until ? Drive::Low : Drive::High;
  if (phase != Phase::Send) return Drive::Released;
  return out ? Drive::High : Drive::Low;
}

void Three_Wire_Chip::On_Clock(bool bit) {
  switch (phase) {
    case Phase::Deaf:  // Nothing counts until CS falls.
      break;

    case Phase::Start:  // Zeros may come before the start bit. A clock in the write cycle spoils the frame.
      if (clock < busy_until) {
        phase = Phase::Deaf;
      } else if (bit) {
        shows_status = false;
        phase = Phase::Opcode;
      }
      break;

    case Phase::Opcode:
      if (!Field_Complete(bit, 2)) break;
      opcode = std::exchange(field, 0);
      phase = Phase::Address;
      break;

    case Phase::Address:
      if (Field_Complete(bit, part.AddressBits)) Begin_Instruction();
      break;

    case Phase::Data:
      if (Field_Complete(bit, 8)) phase = Phase::Whole;
      break;

    case Phase::Whole:  // One bit too many: this is no frame.
      phase = Phase::Deaf;
      break;

    case Phase::Send:  // Highest bit first, cell after cell for as long as the clock runs.
      out = (cells.Cells()[address] << bits & 0x80) != 0;
      if (++bits < 8) break;
      bits = 0;
      address = (address + 1) % part.Bytes;
      break;
  }
}

// Opcode and address decide what follows: data out, data in, or nothing.
void Three_Wire_Chip::Begin_Instruction() {
  instruction = Decode();
  address = std::exchange(field, 0) % part.Bytes;
  out = false;  // The 0 before the first cell.
  phase = instruction == Instruction::Read                                        ? Phase::Send
          : instruction == Instruction::Write || instruction == Instruction::Wral ? Phase::Data
                                                                                  : Phase::Whole;
}

void Three_Wire_Chip::On_Deselect() {
  if (phase == Phase::Whole) Execute();
  phase = Phase::Deaf;
  field = 0;
  bits = 0;
}

// A write cycle that is cut short leaves its cells erased, neither old nor new.
void Three_Wire_Chip::On_Supply_Lost() {
  if (clock < busy_until)
    for (std::size_t i = 0; i < cycle_count; ++i) cells.Write(cycle_from + i, 0xFF);
  phase = Phase::Deaf;
  field = 0;
  bits = 0;
  busy_until = 0;
  shows_status = false;
  write_enabled = false;
}

bool Three_Wire_Chip::Field_Complete(bool bit, int length) {
  field = field << 1 | (bit ? 1U : 0U);
  if (++bits < length) return false;
  bits = 0;
  return true;
}

// Opcode 00 has four instructions, told apart by the two highest address bits.
Three_Wire_Chip::Instruction Three_Wire_Chip::Decode() const {
  static constexpr Instruction kByOpcode[] = {Instruction::Ewds, Instruction::Write, Instruction::Read,
                                              Instruction::Erase};
  static constexpr Instruction kByAddress[] = {Instruction::Ewds, Instruction::Wral, Instruction::Eral,
                                               Instruction::Ewen};
  return opcode == 0 ? kByAddress[field >> (part.AddressBits - 2) & 3] : kByOpcode[opcode];
}

void Three_Wire_Chip::Execute() {
  switch (instruction) {
    case Instruction::Read:
      break;
    case Instruction::Ewen:
      write_enabled = true;
      break;
    case Instruction::Ewds:
      write_enabled = false;
      break;
    case Instruction::Write:
      Program(address, 1, static_cast<std::uint8_t>(field));
      break;
    case Instruction::Erase:
      Program(address, 1, 0xFF);
      break;
    case Instruction::Wral:
      Program(0, part.Bytes, static_cast<std::uint8_t>(field));
      break;
    case Instruction::Eral:
      Program(0, part.Bytes, 0xFF);
      break;
  }
}

void Three_Wire_Chip::Program(std::size_t from, std::size_t count, std::uint8_t value) {
  if (!write_enabled) return;
  for (std::size_t i = 0; i < count; ++i) cells.Write(from + i, value);
  cycle_from = from;
  cycle_count = count;
  busy_until = clock + part.WriteCycle;
  shows_status = true;
}

}  // namespace board
