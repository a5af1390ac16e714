// A PC for tests: speaks the board's commands and drives both buses with them, on either route.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "two_wire_parts.h"
#include "wire_end.h"

using Bytes = std::vector<std::uint8_t>;

enum class Route { kPorts, kAccelerators };

class Test_Pc {
 public:
  explicit Test_Pc(board::Wire_End& end, Route route = Route::kAccelerators) : End(end), Way(route) {}

  // All that the board says to a command.
  Bytes Say(std::string_view word, const Bytes& operands = {}) {
    Bytes said;
    auto send = [&](std::uint8_t byte) {
      const auto answer = End.Receive(byte);
      said.insert(said.end(), answer.Bytes.begin(), answer.Bytes.end());
    };
    for (const char letter : word) send(static_cast<std::uint8_t>(letter));
    for (const std::uint8_t operand : operands) send(operand);
    return said;
  }

  int Pins(const char* port, int mask) {
    const Bytes said = Say(std::string("mr") + port);
    return said.size() == 1 ? said[0] & mask : -1;
  }

  // SDA is worth 4, SCL 2. Tells whether the lines follow.
  bool Lines(std::uint8_t level) {
    Say("mwa", {level});
    return Pins("a", 6) == level;
  }

  bool Power_On() {
    Set_Ports(6, 0x40, 0xF8, 0xA3, 0x77);
    return Pins("a", 6) == 6 && Pins("b", 0x5C) == 0x40 && Pins("c", 0x88) == 0x80;
  }
  bool Power_Off() {
    Set_Ports(0, 0, 0xFF, 0xFF, 0x7F);
    return Pins("a", 6) == 0 && Pins("b", 0x5C) == 0 && Pins("c", 0x88) == 0x80;
  }

  void Power_On_93() { Set_Ports(0, 0x40, 0xF9, 0xA7, 0x77); }
  void Select(bool chip) { Say("mwc", {static_cast<std::uint8_t>(chip ? 0x88 : 0x80)}); }

  static std::string Binary(std::size_t value, int digits) {
    std::string text;
    for (int bit = digits - 1; bit >= 0; --bit) text += value >> bit & 1 ? '1' : '0';
    return text;
  }

  // A character a bit.
  void Send_93(const std::string& bits) {
    for (const char bit : bits) {
      const bool high = bit == '1';
      if (Way == Route::kAccelerators) {
        Say("0", {1, 0, high});
        continue;
      }
      for (const int clock : {0x40, 0x50, 0x40}) Say("mwb", {static_cast<std::uint8_t>(clock | high << 3)});
    }
  }

  std::uint8_t Read_93() {
    if (Way == Route::kAccelerators) return Say("8").at(0);
    int byte = 0;
    for (int bit = 0; bit < 8; ++bit) {
      Say("mwb", {0x50});
      byte = byte << 1 | Pins("b", 4) >> 2;
      Say("mwb", {0x40});
    }
    return static_cast<std::uint8_t>(byte);
  }

  bool Start() { return Lines(6) && Lines(2) && Lines(0); }
  bool Stop() { return Lines(2) && Lines(6); }

  void Send_Bit(bool bit) {
    if (Way == Route::kAccelerators) {
      Say(bit ? "1" : "2");
    } else {
      const std::uint8_t data = bit ? 4 : 0;
      Say("mwa", {data});
      Say("mwa", {static_cast<std::uint8_t>(data | 2)});
      Say("mwa", {data});
    }
  }

  bool Read_Bit() {
    if (Way == Route::kAccelerators) return Say("3") == Bytes{1};
    Say("mwa", {4});
    Say("mta", {0xFD});
    Say("mwa", {2});
    const bool bit = Pins("a", 4) != 0;
    Say("mwa", {0});
    Say("mta", {0xF9});
    return bit;
  }

  // Tells whether the chip acknowledged.
  bool Send(int byte) {
    if (Way == Route::kAccelerators) {
      Say("9", {static_cast<std::uint8_t>(byte)});
    } else {
      for (int bit = 7; bit >= 0; --bit) Send_Bit(byte >> bit & 1);
    }
    return !Read_Bit();
  }

  std::uint8_t Read(bool last) {
    int byte = 0;
    if (Way == Route::kAccelerators) {
      byte = Say("7").at(0);
    } else {
      for (int bit = 0; bit < 8; ++bit) byte = byte << 1 | (Read_Bit() ? 1 : 0);
    }
    Send_Bit(last);
    return static_cast<std::uint8_t>(byte);
  }

  // Start condition, control byte and address bytes. From 4 KiB on, parts take two address bytes.
  bool Address(const board::Two_Wire_Part& part, std::size_t address) {
    const bool two = part.Bytes >= 4096;
    const int at = static_cast<int>(address);
    return Start() && Send(0xA0 | at >> (two ? 16 : 8) << 1) && (!two || Send(at >> 8 & 0xFF)) &&
           Send(at & 0xFF);
  }

  // One write frame, of any length.
  bool Write(const board::Two_Wire_Part& part, std::size_t address, const Bytes& bytes) {
    bool good = Address(part, address);
    for (const std::uint8_t byte : bytes) good = Send(byte) && good;
    return Stop() && good;
  }

  // From where the chip's counter stands. Empty when the chip doesn't answer.
  Bytes Read_On(std::size_t count, int control = 0xA1) {
    Bytes bytes;
    if (!Start() || !Send(control)) return bytes;
    while (bytes.size() < count) bytes.push_back(Read(bytes.size() + 1 == count));
    return Stop() ? bytes : Bytes{};
  }

  Bytes Read_From(const board::Two_Wire_Part& part, std::size_t address, std::size_t count) {
    return Address(part, address) ? Read_On(count) : Bytes{};
  }

 private:
  void Set_Ports(std::uint8_t a, std::uint8_t b, std::uint8_t dir_a, std::uint8_t dir_b, std::uint8_t dir_c) {
    Say("mwa", {a});
    Say("mwb", {b});
    Say("mwc", {0x80});
    Say("mta", {dir_a});
    Say("mtb", {dir_b});
    Say("mtc", {dir_c});
  }

  board::Wire_End& End;
  Route Way;
};
