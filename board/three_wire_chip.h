// A three-wire EEPROM at the level of its pins, in its 8-bit organisation.
#pragma once

#include <cstddef>
#include <cstdint>

#include "cell_store.h"
#include "chip_socket.h"
#include "three_wire_parts.h"

namespace board {

class Three_Wire_Chip : public Chip {
 public:
  // Both must outlive the chip.
  Three_Wire_Chip(const Three_Wire_Part& part, Cell_Store& cells) : Part(part), Cells(cells) {}

  void Sense(const Levels& levels, double now) override;
  Drive Drives_Line(Line line, double now) const override;

 private:
  enum class Phase : std::uint8_t { kDeaf, kStart, kOpcode, kAddress, kData, kWhole, kSend };
  enum class Instruction : std::uint8_t { kRead, kWrite, kErase, kEwen, kEwds, kEral, kWral };

  void On_Clock(bool bit);
  void On_Deselect();
  void On_Supply_Lost();
  void Begin_Instruction();

  bool Field_Complete(bool bit, int length);
  Instruction Decode() const;
  void Execute();
  void Program(std::size_t from, std::size_t count, std::uint8_t value);

  const Three_Wire_Part& Part;
  Cell_Store& Cells;

  bool Powered = false;
  bool Cs = false;
  bool Sk = false;
  bool Di = false;
  double Now = 0;  // Seconds of wire time.

  Phase State = Phase::kDeaf;
  unsigned Field = 0;  // The opcode, address or data that comes in, highest bit first.
  int Bits = 0;        // Those of the field, or of the cell that goes out, that have passed.
  unsigned Opcode = 0;
  Instruction Code = Instruction::kRead;  // The one in hand.
  std::size_t Address = 0;
  bool Out = false;  // The level on DO while a cell goes out.

  bool WriteEnabled = false;  // Lost with the supply.
  bool ShowsStatus = false;   // DO tells busy or ready, from a write on to the next start bit.
  double BusyUntil = 0;       // End of the write cycle.
  std::size_t CycleFrom = 0, CycleCount = 0;  // The cells that it writes.
};

}  // namespace board
