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
#include "three_wire_chip.h"

#include <utility>

namespace board {

void Three_Wire_Chip::Sense(const Levels& levels, double now) {
  const bool powered_before = std::exchange(Powered, levels[Line::kSupply]);
  const bool cs_before = std::exchange(Cs, levels[Line::kCs]);
  const bool sk_before = std::exchange(Sk, levels[Line::kSk]);
  const bool di_before = std::exchange(Di, levels[Line::kDi]);
  Now = now;
  if (!Powered) {
    if (powered_before) On_Supply_Lost();
    return;
  }
  if (!powered_before) return;  // Levels that came with the supply are no edges.

  if (!cs_before && Cs) State = Phase::kStart;
  // Data that change with the clock's edge have not been set up for it.
  if (Cs && !sk_before && Sk) On_Clock(di_before);
  if (cs_before && !Cs) On_Deselect();
}

// DO is let go unless the chip is selected and has something to say.
Drive Three_Wire_Chip::Drives_Line(Line line, double now) const {
  if (line != Line::kDo || !Powered || !Cs) return Drive::kReleased;
  if (ShowsStatus) return now < BusyUntil ? Drive::kLow : Drive::kHigh;
  if (State != Phase::kSend) return Drive::kReleased;
  return Out ? Drive::kHigh : Drive::kLow;
}

void Three_Wire_Chip::On_Clock(bool bit) {
  switch (State) {
    case Phase::kDeaf:  // Nothing counts until CS falls.
      break;

    case Phase::kStart:  // Zeros may come before the start bit. A clock in the write cycle spoils the frame.
      if (Now < BusyUntil) {
        State = Phase::kDeaf;
      } else if (bit) {
        ShowsStatus = false;
        State = Phase::kOpcode;
      }
      break;

    case Phase::kOpcode:
      if (!Field_Complete(bit, 2)) break;
      Opcode = std::exchange(Field, 0);
      State = Phase::kAddress;
      break;

    case Phase::kAddress:
      if (Field_Complete(bit, Part.AddressBits)) Begin_Instruction();
      break;

    case Phase::kData:
      if (Field_Complete(bit, 8)) State = Phase::kWhole;
      break;

    case Phase::kWhole:  // One bit too many: this is no frame.
      State = Phase::kDeaf;
      break;

    case Phase::kSend:  // Highest bit first, cell after cell for as long as the clock runs.
      Out = (Cells.Cells()[Address] << Bits & 0x80) != 0;
      if (++Bits < 8) break;
      Bits = 0;
      Address = (Address + 1) % Part.Bytes;
      break;
  }
}

// Opcode and address decide what follows: data out, data in, or nothing.
void Three_Wire_Chip::Begin_Instruction() {
  Code = Decode();
  Address = std::exchange(Field, 0) % Part.Bytes;
  Out = false;  // The 0 before the first cell.
  State = Code == Instruction::kRead                                  ? Phase::kSend
          : Code == Instruction::kWrite || Code == Instruction::kWral ? Phase::kData
                                                                      : Phase::kWhole;
}

void Three_Wire_Chip::On_Deselect() {
  if (State == Phase::kWhole) Execute();
  State = Phase::kDeaf;
  Field = 0;
  Bits = 0;
}

// A write cycle that is cut short leaves its cells erased, neither old nor new.
void Three_Wire_Chip::On_Supply_Lost() {
  if (Now < BusyUntil)
    for (std::size_t i = 0; i < CycleCount; ++i) Cells.Write(CycleFrom + i, 0xFF);
  State = Phase::kDeaf;
  Field = 0;
  Bits = 0;
  BusyUntil = 0;
  ShowsStatus = false;
  WriteEnabled = false;
}

bool Three_Wire_Chip::Field_Complete(bool bit, int length) {
  Field = Field << 1 | (bit ? 1U : 0U);
  if (++Bits < length) return false;
  Bits = 0;
  return true;
}

// Opcode 00 has four instructions, told apart by the two highest address bits.
Three_Wire_Chip::Instruction Three_Wire_Chip::Decode() const {
  static constexpr Instruction kByOpcode[] = {Instruction::kEwds, Instruction::kWrite, Instruction::kRead,
                                              Instruction::kErase};
  static constexpr Instruction kByAddress[] = {Instruction::kEwds, Instruction::kWral, Instruction::kEral,
                                               Instruction::kEwen};
  return Opcode == 0 ? kByAddress[Field >> (Part.AddressBits - 2) & 3] : kByOpcode[Opcode];
}

void Three_Wire_Chip::Execute() {
  switch (Code) {
    case Instruction::kRead:
      break;
    case Instruction::kEwen:
      WriteEnabled = true;
      break;
    case Instruction::kEwds:
      WriteEnabled = false;
      break;
    case Instruction::kWrite:
      Program(Address, 1, static_cast<std::uint8_t>(Field));
      break;
    case Instruction::kErase:
      Program(Address, 1, 0xFF);
      break;
    case Instruction::kWral:
      Program(0, Part.Bytes, static_cast<std::uint8_t>(Field));
      break;
    case Instruction::kEral:
      Program(0, Part.Bytes, 0xFF);
      break;
  }
}

void Three_Wire_Chip::Program(std::size_t from, std::size_t count, std::uint8_t value) {
  if (!WriteEnabled) return;
  for (std::size_t i = 0; i < count; ++i) Cells.Write(from + i, value);
  CycleFrom = from;
  CycleCount = count;
  BusyUntil = Now + Part.WriteCycle;
  ShowsStatus = true;
}

}  // namespace board
