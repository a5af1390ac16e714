// How the socket's lines are wired to the ports:
//
//            bit 7    6       5    4    3    2    1    0
//   port A                                  SDA  SCL
//   port B         supply         SK   DI   DO
//   port C                             CS
//
// All other pins hang free.
#include "board/programmer_board.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>

namespace board {

namespace {

constexpr std::size_t kA = 0, kB = 1, kC = 2;

struct Wire {
  Line Name;
  std::size_t Port;
  std::uint8_t Mask;
};

constexpr Wire kWires[] = {
    {Line::Supply, kB, 0x40}, {Line::Scl, kA, 0x02}, {Line::Sda, kA, 0x04}, {Line::Cs, kC, 0x08},
    {Line::Sk, kB, 0x10},     {Line::Di, kB, 0x08},  {Line::Do, kB, 0x04},
};

std::uint8_t With(std::uint8_t byte, std::uint8_t mask, bool high) {
  return static_cast<std::uint8_t>(high ? byte | mask : byte & ~mask);
}

std::string Four_Characters(std::string_view text) {
  std::string four(text);
  four.resize(4, ' ');
  return four;
}

bool At_Least_5(std::string_view version) {
  const auto end = version.find_last_not_of(' ') + 1;
  double number = 0;
  const auto [stop, error] = std::from_chars(version.data(), version.data() + end, number);
  return error == std::errc() && stop == version.data() + end && std::isfinite(number) && number >= 5.0;
}

}  // namespace

// A command is its word and the operands behind it; the wire knows no frame beyond that.
const Programmer_Board::Command Programmer_Board::kCommands[] = {
    // word, operands, accelerator
    {"?", 0, false, &Programmer_Board::Identify},        {"mwa", 1, false, &Programmer_Board::Write_Latch},
    {"mwb", 1, false, &Programmer_Board::Write_Latch},   {"mwc", 1, false, &Programmer_Board::Write_Latch},
    {"mta", 1, false, &Programmer_Board::Set_Direction}, {"mtb", 1, false, &Programmer_Board::Set_Direction},
    {"mtc", 1, false, &Programmer_Board::Set_Direction}, {"mra", 0, false, &Programmer_Board::Read_Pins},
    {"mrb", 0, false, &Programmer_Board::Read_Pins},     {"mrc", 0, false, &Programmer_Board::Read_Pins},
    {"1", 0, true, &Programmer_Board::Send_Bit_1},       {"2", 0, true, &Programmer_Board::Send_Bit_0},
    {"3", 0, true, &Programmer_Board::Read_Bit},         {"9", 1, true, &Programmer_Board::Send_Byte_24},
    {"7", 0, true, &Programmer_Board::Read_Byte_24},     {"8", 0, true, &Programmer_Board::Read_Byte_93},
    {"0", 3, true, &Programmer_Board::Send_Bits_93},
};

const Programmer_Board::Bus Programmer_Board::kTwoWire{.Port = kA, .Data = 0x04, .Clock = 0x02};
const Programmer_Board::Bus Programmer_Board::kThreeWire{.Port = kB, .Data = 0x08, .Clock = 0x10};

Programmer_Board::Programmer_Board(std::string_view version_text)
    : has_accelerators(At_Least_5(Four_Characters(version_text))) {
  Identify_As("TOLVEX Ver." + Four_Characters(version_text) + "\r\n");
}

Answer Programmer_Board::Receive(std::uint8_t byte) {
  ++bytes_in;
  frame.push_back(static_cast<char>(byte));
  const Command* command = Match();
  if (!command) {  // What came before is no command. This byte may begin one.
    frame.erase(0, frame.size() - 1);
    command = Match();
  }
  if (!command) {
    frame.clear();
    return {};
  }
  if (frame.size() < command->Word.size() + command->Operands) return {};

  Reply reply = (this->*command->Run)();
  frame.clear();
  ++completed;
  bytes_out += reply.size();
  return {.Bytes = std::move(reply)};
}

// The command that the frame is, or the first one that it can still become; null when there is none.
const Programmer_Board::Command* Programmer_Board::Match() const {
  const auto found = std::ranges::find_if(kCommands, [this](const Command& command) {
    const auto length = std::min(frame.size(), command.Word.size());
    return (has_accelerators || !command.Accelerator) &&
           command.Word.substr(0, length) == frame.substr(0, length);
  });
  return found == std::end(kCommands) ? nullptr : found;
}

// A free pin floats. It reads high, so that a reader who forgets its mask is found out.
std::uint8_t Programmer_Board::Pins(char port) const {
  const Port& at = ports[Index(port)];
  std::uint8_t pins = at.Latch | at.Direction;
  for (const Wire& wire : kWires) {
    if (wire.Port == Index(port)) pins = With(pins, wire.Mask, contacts.Level(wire.Name));
  }
  return pins;
}

Programmer_Board::Reply Programmer_Board::Write_Latch() {
  Named_Port().Latch = Operand(3);
  Drive_Lines();
  return {};
}

Programmer_Board::Reply Programmer_Board::Set_Direction() {
  Named_Port().Direction = Operand(3);
  Drive_Lines();
  return {};
}

// A chip may have let go of a line meanwhile, with nothing driven anew.
Programmer_Board::Reply Programmer_Board::Read_Pins() {
  Drive_Lines();
  return {Pins(frame.at(2))};
}

Programmer_Board::Reply Programmer_Board::Send_Bit_1() {
  Clock_Out(kTwoWire, true);
  return {};
}

Programmer_Board::Reply Programmer_Board::Send_Bit_0() {
  Clock_Out(kTwoWire, false);
  return {};
}

Programmer_Board::Reply Programmer_Board::Read_Bit() { return {std::uint8_t{Clock_In_24()}}; }

// Answered with the byte itself, which says only that it is out.
Programmer_Board::Reply Programmer_Board::Send_Byte_24() {
  const std::uint8_t byte = Operand(1);
  for (int bit = 7; bit >= 0; --bit) Clock_Out(kTwoWire, byte >> bit & 1);
  return {byte};
}

Programmer_Board::Reply Programmer_Board::Read_Byte_24() {
  std::uint8_t byte = 0;
  for (int bit = 7; bit >= 0; --bit) byte = With(byte, static_cast<std::uint8_t>(1 << bit), Clock_In_24());
  return {byte};
}

Programmer_Board::Reply Programmer_Board::Read_Byte_93() {
  std::uint8_t byte = 0;
  for (int bit = 7; bit >= 0; --bit) byte = With(byte, static_cast<std::uint8_t>(1 << bit), Clock_In_93());
  return {byte};
}

// At most 16 bits of a 16-bit value. Answered with the count.
Programmer_Board::Reply Programmer_Board::Send_Bits_93() {
  const std::uint8_t count = Operand(1);
  const int value = Operand(2) << 8 | Operand(3);
  for (int bit = std::min<int>(count, 16) - 1; bit >= 0; --bit) Clock_Out(kThreeWire, value >> bit & 1);
  return {count};
}

void Programmer_Board::Drive_Bus(const Bus& bus, bool data, bool clock) {
  std::uint8_t& latch = ports[bus.Port].Latch;
  latch = With(With(latch, bus.Data, data), bus.Clock, clock);
  Drive_Lines();
}

void Programmer_Board::Clock_Out(const Bus& bus, bool bit) {
  Drive_Bus(bus, bit, false);
  Drive_Bus(bus, bit, true);
  Drive_Bus(bus, bit, false);
}

// Leaves the data line driven low again, since start and stop conditions work through the latch.
bool Programmer_Board::Clock_In_24() {
  std::uint8_t& direction = ports[kTwoWire.Port].Direction;
  Drive_Bus(kTwoWire, true, false);
  direction = With(direction, kTwoWire.Data, true);
  Drive_Lines();
  Drive_Bus(kTwoWire, false, true);
  const bool bit = contacts.Level(Line::Sda);
  Drive_Bus(kTwoWire, false, false);
  direction = With(direction, kTwoWire.Data, false);
  Drive_Lines();
  return bit;
}

bool Programmer_Board::Clock_In_93() {
  Drive_Bus(kThreeWire, false, true);
  const bool bit = contacts.Level(Line::Do);
  Drive_Bus(kThreeWire, false, false);
  return bit;
}

void Programmer_Board::Drive_Lines() {
  Drives drives;
  for (const Wire& wire : kWires) {
    const Port& port = ports[wire.Port];
    if (port.Direction & wire.Mask) continue;
    drives[wire.Name] = port.Latch & wire.Mask ? Drive::High : Drive::Low;
  }
  contacts.Follow(drives, Wire_Time());
}

}  // namespace board
