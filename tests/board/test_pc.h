// A PC for tests: speaks the board's commands.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "board/wire_end.h"

using Bytes = std::vector<std::uint8_t>;

class Test_Pc {
 public:
  explicit Test_Pc(board::Wire_End& board) : end(board) {}

  // All that the board says to a command.
  Bytes Say(std::string_view word, const Bytes& operands = {}) {
    Bytes said, bytes(word.begin(), word.end());
    bytes.insert(bytes.end(), operands.begin(), operands.end());
    for (const std::uint8_t byte : bytes) {
      const auto answer = end.Receive(byte);
      said.insert(said.end(), answer.Bytes.begin(), answer.Bytes.end());
    }
    return said;
  }
  // Lets the chip's clock go on: 1.04 ms for each byte, which is no command.
  void Idle(int bytes) { Say(std::string(static_cast<std::size_t>(bytes), 'x')); }

  int Pins(const char* port, int mask) {
    const Bytes said = Say(std::string("mr") + port);
    return said.size() == 1 ? said[0] & mask : -1;
  }

  // SDA is worth 4, SCL 2. Tells whether the lines follow.
  bool Lines(std::uint8_t level) {
    Say("mwa", {level});
    return Pins("a", 6) == level;
  }

  void Set_Ports(std::uint8_t a, std::uint8_t b, std::uint8_t dir_a, std::uint8_t dir_b, std::uint8_t dir_c) {
    Say("mwa", {a});
    Say("mwb", {b});
    Say("mwc", {0x80});
    Say("mta", {dir_a});
    Say("mtb", {dir_b});
    Say("mtc", {dir_c});
  }

  bool Power_Off() {
    Set_Ports(0, 0, 0xFF, 0xFF, 0x7F);
    return Pins("a", 6) == 0 && Pins("b", 0x5C) == 0 && Pins("c", 0x88) == 0x80;
  }

 private:
  board::Wire_End& end;
};
