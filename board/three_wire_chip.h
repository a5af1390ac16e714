// A three-wire EEPROM at the level of its pins, in its 8-bit organisation.
#pragma once

#include <cstddef>
#include <cstdint>

#include "board/cell_store.h"
#include "board/chip_socket.h"
#include "board/three_wire_parts.h"

namespace board {

class Three_Wire_Chip : public Chip {
 public:
  // Both must outlive the chip.
  Three_Wire_Chip(const Three_Wire_Part& model, Cell_Store& store) : part(model), cells(store) {}

  void Sense(const Levels& levels, double now) override;
  Drive Drives_Line(Line line, double now) const override;

 private:
  enum class Phase : std::uint8_t { Deaf, Start, Opcode, Address, Data, Whole, Send };
  enum class Instruction : std::uint8_t { Read, Write, Erase, Ewen, Ewds, Eral, Wral };

  void On_Clock(bool bit);
  void On_Deselect();
  void On_Supply_Lost();
  void Begin_Instruction();

  bool Field_Complete(bool bit, int length);
  Instruction Decode() const;
  void Execute();
  void Program(std::size_t from, std::size_t count, std::uint8_t value);

  const Three_Wire_Part& part;
  Cell_Store& cells;

  bool powered = false;
  bool cs = false;
  bool sk = false;
  bool di = false;
  double clock = 0;  // Seconds of wire time.

  Phase phase = Phase::Deaf;
  unsigned field = 0;  // The opcode, address or data that comes in, highest bit first.
  int bits = 0;        // Those of the field, or of the cell that goes out, that have passed.
  unsigned opcode = 0;
  Instruction instruction = Instruction::Read;  // The one in hand.
  std::size_t address = 0;
  bool out = false;  // The level on DO while a cell goes out.

  bool write_enabled = false;  // Lost with the supply.
  bool shows_status = false;   // DO tells busy or ready, from a write on to the next start bit.
  double busy_until = 0;       // End of the write cycle.
  std::size_t cycle_from = 0, cycle_count = 0;  // The cells that it writes.
};

}  // namespace board
