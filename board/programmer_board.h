// The TOLVEX programmer: the command interpreter of its microcontroller, the three ports, and the chip socket
// on them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "board/chip_socket.h"
#include "board/wire_end.h"

namespace board {

class Programmer_Board : public Wire_End {
 public:
  // Firmware of the version that `version_text` says, cut or padded to 4 characters. Below 5.0, which goes
  // for a text that is no number too, the one-digit commands are unknown.
  explicit Programmer_Board(std::string_view version_text);

  // Throws what the chip's cell store throws; the board is of no more use then.
  Answer Receive(std::uint8_t byte) override;

  // The whole answer to "?", as it stands, in place of the board's own.
  void Identify_As(std::string_view text) { identification.assign(text.begin(), text.end()); }

  void Insert(std::unique_ptr<Chip> chip) { contacts.Insert(std::move(chip)); }

  // The probes of whoever looks at the board from outside.
  Chip_Socket& Socket() { return contacts; }
  bool Supply() const { return contacts.Level(Line::Supply); }

  // `port` is 'a', 'b' or 'c', here and below. The level that the board drives on its outputs.
  std::uint8_t Latch(char port) const { return ports[Index(port)].Latch; }
  // One bit a pin: 1 = input, 0 = output.
  std::uint8_t Direction(char port) const { return ports[Index(port)].Direction; }
  // The level on every pin, whoever makes it.
  std::uint8_t Pins(char port) const;

  std::uint64_t Commands() const override { return completed; }
  std::uint64_t Bytes_In() const { return bytes_in; }
  std::uint64_t Bytes_Out() const { return bytes_out; }
  // Seconds that all bytes so far, in and out, take on the wire. The chip's clock.
  double Wire_Time() const { return static_cast<double>(bytes_in + bytes_out) * kByteTime; }

 private:
  using Reply = std::vector<std::uint8_t>;

  struct Port {
    std::uint8_t Latch = 0;
    std::uint8_t Direction = 0xFF;
  };
  struct Command {
    std::string_view Word;
    std::size_t Operands;
    bool Accelerator;
    Reply (Programmer_Board::*Run)();
  };
  struct Bus {
    std::size_t Port;
    std::uint8_t Data, Clock;  // Pins on which the board clocks a bit out.
  };

  static const Command kCommands[];
  static const Bus kTwoWire, kThreeWire;

  static std::size_t Index(char port) { return static_cast<std::size_t>(port - 'a'); }
  // `at` counts from the first byte of the command's word.
  std::uint8_t Operand(std::size_t at) const { return static_cast<std::uint8_t>(frame.at(at)); }
  Port& Named_Port() { return ports[Index(frame.at(2))]; }
  const Command* Match() const;

  Reply Identify() { return identification; }
  Reply Write_Latch();
  Reply Set_Direction();
  Reply Read_Pins();
  Reply Send_Bit_1();
  Reply Send_Bit_0();
  Reply Read_Bit();
  Reply Send_Byte_24();
  Reply Read_Byte_24();
  Reply Read_Byte_93();
  Reply Send_Bits_93();

  void Drive_Bus(const Bus& bus, bool data, bool clock);
  void Clock_Out(const Bus& bus, bool bit);
  bool Clock_In_24();
  bool Clock_In_93();
  void Drive_Lines();

  bool has_accelerators;
  Reply identification;
  std::array<Port, 3> ports;
  Chip_Socket contacts;
  std::string frame;  // The bytes of the command that is coming in.
  std::uint64_t completed = 0;
  std::uint64_t bytes_in = 0;
  std::uint64_t bytes_out = 0;
};

}  // namespace board
