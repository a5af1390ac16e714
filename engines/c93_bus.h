// The three-wire bus of a 93Cxx chip, clocked by the PC through the board's ports; docs/wire-protocol.md has
// the pins of the socket, and what a bus action costs.
//
// All operations are port commands at every firmware version; from 5.0 on the block transfers send whole
// fields in their place. A failure is a text in panel 1 and nothing more: none sets LinkError, which only a
// missing reply does, and the bus has no acknowledge.
#pragma once

#include <cstdint>

namespace wrenbit {

// Supply and lines up, or down with all lines released. The first read-back that is not as driven, or that
// finds LinkError set, ends the reading back; all is driven before. DO is the chip's while the supply is on.
void C93_Power_on();
void C93_Power_off();

void C93_CS_High();
void C93_CS_Low();

// DI set while SK is low, then one pulse of SK, which ends low. Nothing is read back.
void C93_Bit1();
void C93_Bit0();

// One bit from the chip, 1 or 0, sampled with SK high and DI low. When supply, SK or DI are not as driven, or
// LinkError is set, the bit is 0 and SK stays high.
std::int32_t C93_DATA();

}  // namespace wrenbit
