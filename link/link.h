// The sixteen operations that reach the programmer board, each a command of docs/wire-protocol.md.
//
// The accelerators exist from firmware 5.0 on. On a closed port each operation fails. Each first drops what
// lies in the receive buffer. A reply is awaited for one second; without one LinkError becomes 1 and the
// result is 0. A command that the system would not take sets it too, and what follows is held back until the
// next power sequence. No operation clears LinkError or refuses to run because of it, and none retries. Where
// the wire is far behind, an operation yields until it has caught up, before all else.
#pragma once

#include <cstdint>

namespace wrenbit {

// 24Cxx accelerators.
void Link_SendBit1();
void Link_SendBit0();
std::int32_t Link_ReadBit();  // 1 or 0.
void Link_SendByte24(std::uint8_t data);
std::uint8_t Link_ReadByte24();

// 93Cxx accelerators.
std::uint8_t Link_ReadByte93();
// The low `count` bits of high x 256 + low, highest first.
void Link_SendBits93(std::uint8_t count, std::uint8_t high, std::uint8_t low);

// Output latches. Each yields once before it sends.
void Link_WritePortA(std::uint8_t value);
void Link_WritePortB(std::uint8_t value);
void Link_WritePortC(std::uint8_t value);

// Direction registers: a 1 makes the pin an input.
void Link_SetDirA(std::uint8_t value);
void Link_SetDirB(std::uint8_t value);
void Link_SetDirC(std::uint8_t value);

// Pin levels. More than one waiting byte fails like a time-out, and the bytes stay in the buffer.
std::uint8_t Link_ReadPortA();
std::uint8_t Link_ReadPortB();
std::uint8_t Link_ReadPortC();

}  // namespace wrenbit
