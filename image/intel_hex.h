// The image as Intel HEX. The writer is strict; the reader takes what it can and checks almost nothing.
//
// An address field has 16 bits. An image over 64 KiB carries the upper ones in extended linear address
// records (type 04), one before each further 64 KiB. Up to 64 KiB nothing is extended, in neither direction.
#pragma once

#include <string>
#include <string_view>

namespace wrenbit {

// Appends the checksum of a record, which makes the sum of all its bytes 0 modulo 256. The line holds the
// start character and the record up to and including its data.
void Hex_LineSum(std::string& line);

// The file: all of the image, whose size is a multiple of 16, in records of sixteen bytes, ascending, then
// the end record. Lines end in CR LF.
std::string Intel_Hex_Text();

// Stores the data records of a file into the image, in the order of the file; bytes that it doesn't mention
// stay. Checksums are not read, missing or bad digits count as zero, and the end record ends nothing.
// Positions count characters of code page 932. The first byte outside the image ends the load; what was
// stored before it stays. For an image over 64 KiB extended linear (04) and extended segment (02) address
// records move the data behind them, and a record may run on across a multiple of 64 KiB. For a smaller one
// they are skipped.
void Intel_Hex_Load(std::string_view text);

}  // namespace wrenbit
