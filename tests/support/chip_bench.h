// The bench with the virtual board on the port and a chip in its socket.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "board/cell_store.h"
#include "board/programmer_board.h"
#include "core/state/state.h"
#include "shell/controls/frm_main.h"
#include "tests/support/test_bench.h"

namespace wrenbit {

class Chip_Bench : public Test_Bench {
 public:
  // The chip is selected as the device, with the board's own geometry, the whole chip as the block, and the
  // main window shown.
  Chip_Bench(const std::string& chip, const std::string& firmware, bool open_port = false);

  std::unique_ptr<board::Cell_Store> Cells;
  board::Programmer_Board Programmer;

  Bytes Chip_Contents() const { return {Cells->Cells().begin(), Cells->Cells().end()}; }
  void Fill_Chip(unsigned seed);
  void Fill_Image(unsigned seed);
};

// Makes a device of a catalogue row and selects it as the user does.
void Select_Device(int family, int mem_size, int page_size, int address_mode, int address_bits = 0);
void Select_Row(const Device_Row& row);

// A pattern in which neighbours, rows and pages all differ.
Bytes Pattern(std::size_t size, unsigned seed);

void Select_Address(std::int32_t address);

inline const std::string& Panel(int number) { return frmMain.sbStatusBar.Panel(number); }

}  // namespace wrenbit
