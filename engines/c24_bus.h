// The two-wire bus of a 24Cxx chip, clocked by the PC through the board's ports; docs/wire-protocol.md has
// the pins of the socket, and what a bus action costs.
//
// From firmware 5.0 on a bit is one command of the board; below, it is a sequence of port commands. Start,
// stop and power are port commands at every version, and read back what they drove.
//
// What reads back or reads in puts a text of its own into panel 1 when it fails, but for a bit that is one
// command of the board. No operation stops the transfer around it: that looks at LinkError at places of its
// own.
#pragma once

#include <cstdint>

namespace wrenbit {

// Supply and lines up, or down with all lines released. The first read-back that is not as driven, or that
// finds LinkError set, ends the reading back; all is driven before. Neither sets LinkError for a mismatch.
void C24_Power_on();
void C24_Power_off();

// A step that reads back wrongly, or finds LinkError set, sets LinkError and ends the operation where it
// stands. A good start leaves both lines low, a good stop both high. Also the repeated start.
void C24_StartBit();
void C24_StopBit();

void C24_Bit1();
void C24_Bit0();

// True when the chip pulled SDA down. Otherwise LinkError is 1. A time-out gives True too, with LinkError 1.
bool C24_ACK();

// One bit from the chip, 1 or 0.
std::int32_t C24_DATA();

}  // namespace wrenbit
