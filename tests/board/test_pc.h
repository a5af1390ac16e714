// A PC for tests: speaks the board's commands.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "board/programmer_board.h"

using Bytes = std::vector<std::uint8_t>;

struct Test_Pc {
  explicit Test_Pc(std::string_view firmware = "5.00") : Board(firmware) {}

  // All that the board says to a command.
  Bytes Say(std::string_view word, const Bytes& operands = {}) {
    Bytes said, bytes(word.begin(), word.end());
    bytes.insert(bytes.end(), operands.begin(), operands.end());
    for (const std::uint8_t byte : bytes) {
      const auto answer = SpokenTo->Receive(byte);
      said.insert(said.end(), answer.Bytes.begin(), answer.Bytes.end());
    }
    return said;
  }

  board::Programmer_Board Board;
  board::Wire_End* SpokenTo = &Board;
};
