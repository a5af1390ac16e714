// A two-wire EEPROM at the level of its pins.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>

#include "board/cell_store.h"
#include "board/chip_socket.h"
#include "board/two_wire_parts.h"

namespace board {

class Two_Wire_Chip : public Chip {
 public:
  // Both must outlive the chip.
  Two_Wire_Chip(const Two_Wire_Part& model, Cell_Store& store) : part(model), cells(store) {}

  void Sense(const Levels& levels, double now) override;
  Drive Drives_Line(Line line, double now) const override;

 private:
  enum class Phase : std::uint8_t { Standby, Receive, Acknowledge, Send, Answer };
  enum class Meaning : std::uint8_t { Control, Address, Data };

  void On_Start();
  void On_Stop();
  void On_Supply_Lost();
  void On_Clock(bool bit);

  bool Accept(std::uint8_t byte);
  void Count_On(std::size_t round);
  void Listen();
  void Send_Cell();
  void Stand_By();

  const Two_Wire_Part& part;
  Cell_Store& cells;

  bool powered = false;
  bool scl = false;
  bool sda = false;
  double clock = 0;             // Seconds of wire time.
  double busy_until = 0;        // End of the write cycle.
  std::optional<bool> sampled;  // The data line at the clock's rise; empty until the clock has risen.
  Phase phase = Phase::Standby;
  Meaning next = Meaning::Control;  // What the byte that comes in will be.
  bool pulls_sda = false;
  bool reading = false;    // The master's choice in the control byte.
  std::uint8_t shift = 0;  // The byte that goes over the bus, highest bit first.
  int bits = 0;            // Those of it that have passed.
  int address_bytes_left = 0;
  std::size_t word = 0;                       // The address as it comes in.
  std::size_t pointer = 0;                    // The chip's address counter.
  std::map<std::size_t, std::uint8_t> page;   // Bytes that wait for the write cycle, by address.
  std::map<std::size_t, std::uint8_t> cycle;  // Those that the write cycle in hand, or the last one, writes.
};

}  // namespace board
