// What the 24Cxx transfers share: the control byte and the address in both forms, a byte out, the look
// at the acknowledge, and the refusal of a device that cannot be addressed.
//
//   AddressMode     control byte              address bytes
//   1               1 0 1 0 A10 A9 A8 R/W     A7..A0
//   anything else   1 0 1 0 0 0 A16 R/W       A15..A8, A7..A0
#pragma once

#include <cstdint>

namespace wrenbit {

enum class Direction : std::uint8_t { Write = 0, Read = 1 };

bool C24_One_Address_Byte();

// For an address within the device.
std::uint8_t C24_Control_Byte(std::int32_t address, Direction direction);

// Eight bits, highest first, bit by bit at every firmware version. The acknowledge is not part of either.
void C24_Byte_Out_By_Bits(std::uint8_t byte);
std::uint8_t C24_Byte_In_By_Bits();

// Start, control byte and address bytes of a write, each byte sent by `send`, which also looks at its
// acknowledge.
void C24_Start_Write(std::int32_t address, void (*send)(std::uint8_t byte));

// C24_ACK, with its text in panel 1 when the chip did not acknowledge. Does not stop the transfer.
void ACK_Check();

// A power of two. Frames of any other length run across the ends of the chip's pages, and what is behind such
// an end overwrites the page's start.
bool C24_Page_Usable(std::int32_t bytes);

// Refuses a device with more bytes than its address form can reach. True when it did.
bool C24_Refused();

}  // namespace wrenbit
