// The bench with the virtual board on the port and a chip in its socket.
#pragma once

#include <memory>

#include "board/cell_store.h"
#include "board/programmer_board.h"
#include "core/transfer_commands.h"
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

  // What a transfer has to give back and has not, in words; empty when it has given back all.
  std::string Still_Held() const;
};

// What is wrong with a board, made so when it is called.
using Board_Fault = std::function<void(Chip_Bench&)>;
Board_Fault Stuck(board::Line line, bool high);

struct Command {
  const char* Name;
  void (*Run)();
  bool Block, Writes;
};
inline constexpr Command kCommands[] = {{"block_read", Cmd_READ_all_Click, true, false},
                                        {"block_write", Cmd_WRITE_all_Click, true, true},
                                        {"byte_read", Cmd_READ_single_Click, false, false},
                                        {"byte_write", Cmd_WRITE_single_Click, false, true}};

// Makes a device of a catalogue row and selects it as the user does.
void Select_Device(int family, int mem_size, int page_size, int address_mode, int address_bits = 0);
void Select_Row(const Device_Row& row);
// The rows to select from; none is selected.
void Offer_Devices(const std::vector<Device_Row>& rows);

// A pattern in which neighbours, rows and pages all differ.
Bytes Pattern(std::size_t size, unsigned seed);

void Select_Address(std::int32_t address);

// What is printed of a case is its test's name, without the dots.
template <class Case>
std::string Case_Name(const testing::TestParamInfo<Case>& of) {
  std::string name = testing::PrintToString(of.param);
  std::erase(name, '.');
  return name;
}

}  // namespace wrenbit
