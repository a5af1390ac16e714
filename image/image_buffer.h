// The image of the chip on the PC: how it is made, and its checksum.
#pragma once

#include <string>

namespace wrenbit {

// ImageBuffer anew: 2^MemSize bytes of 0xFF. Empty when MemSize lies outside 4 to 23 (16 bytes to 8 MiB), as
// it does for a catalogue row that is short or wrong.
void Image_Create();

// False when the device has no usable size: there is nothing to read, write, load or save then.
bool Image_Usable();
// What panel 1 says of such a device, and of one whose address cannot reach all of its bytes.
inline constexpr const char* kWrongSize = "デバイスのメモリサイズが正しくありません。";

// "CheckSum:7F80", the low 16 bits of the sum of all bytes. Leaves the whole sum in ImageChecksum.
std::string CheckSum_Text();

}  // namespace wrenbit
