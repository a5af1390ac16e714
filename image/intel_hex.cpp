// A record, by characters counted from 0:
//
//    0      ":"
//    1      data bytes, two digits
//    3      address of the first one, four digits
//    7      type, two digits
//    9      data, two digits a byte
//   behind  checksum, two digits
#include "image/intel_hex.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "core/state/code_page_932.h"
#include "core/state/state.h"
#include "core/state/text_field_reader.h"
#include "image/hex_text.h"

namespace wrenbit {
namespace {

constexpr std::size_t kRecordBytes = 16;
constexpr std::size_t kBankBytes = 0x10000;  // What an address field reaches.
constexpr std::size_t kLongestLine = 11 + 2 * kRecordBytes + 2;
constexpr const char* kLineEnd = "\r\n";

enum Record_Type { Data_Record = 0x00, Extended_Segment = 0x02, Extended_Linear = 0x04 };

bool Ascii(char c) { return (c & 0x80) == 0; }

// One byte for each character, so that positions are indices; what isn't ASCII is no hex digit anyhow.
// `room` holds the line where it is not the item itself.
std::string_view One_Byte_A_Character(std::string_view item, std::string& room) {
  if (std::ranges::all_of(item, Ascii)) return item;
  room.clear();
  while (!item.empty()) {
    const bool ascii = Ascii(item[0]);
    room += ascii ? item[0] : '?';
    item.remove_prefix(ascii ? 1 : Cp932_Length(item));
  }
  return room;
}

// What is left of a number that runs past the end of the line.
std::uint32_t Number(std::string_view line, std::size_t position, std::size_t digits) {
  if (position >= line.size()) return 0;
  return static_cast<std::uint32_t>(Hex_ToLong(line.substr(position, digits)));
}

}  // namespace

void Hex_LineSum(std::string& line) {
  const std::string_view text = line;
  std::uint32_t sum = 0;
  for (std::size_t at = 1; at < text.size(); at += 2)
    sum += static_cast<std::uint32_t>(Hex_ToLong(text.substr(at, 2)));
  Append_Hex(line, ~sum + 1, 2);
}

std::string Intel_Hex_Text() {
  std::string text;
  text.reserve((ImageBuffer.size() / kRecordBytes + ImageBuffer.size() / kBankBytes + 1) * kLongestLine);
  std::string line;
  const auto finish = [&] {
    Hex_LineSum(line);
    text += line;
    text += kLineEnd;
  };
  for (std::size_t index = 0; index < ImageBuffer.size(); index += kRecordBytes) {
    const auto address = static_cast<std::uint32_t>(index);
    if (index > 0 && index % kBankBytes == 0) {
      line = ":02000004";
      Append_Hex(line, address >> 16, 4);
      finish();
    }
    line = ":10";
    Append_Hex(line, address, 4);
    line += "00";
    for (std::size_t k = 0; k < kRecordBytes; ++k) Append_Hex(line, ImageBuffer[index + k], 2);
    finish();
  }
  line = ":00000001";
  finish();
  return text;
}

void Intel_Hex_Load(std::string_view text) {
  const bool extended = ImageBuffer.size() > kBankBytes;
  std::uint32_t base = 0;
  Text_Field_Reader items(text, Quotes::Plain);
  std::string room;
  while (!items.At_End()) {
    const std::string_view line = One_Byte_A_Character(items.Next(), room);
    if (!line.starts_with(':')) continue;
    const std::uint32_t length = Number(line, 1, 2);
    const std::uint32_t address = Number(line, 3, 4);
    const std::uint32_t type = Number(line, 7, 2);
    if (extended && type == Extended_Segment) base = Number(line, 9, 4) << 4;
    if (extended && type == Extended_Linear) base = Number(line, 9, 4) << 16;
    if (type != Data_Record) continue;
    for (std::uint32_t k = 0; k < length; ++k) {
      const std::size_t index = base + address + k;
      if (index >= ImageBuffer.size()) return;
      ImageBuffer[index] = static_cast<std::uint8_t>(Number(line, 9 + 2 * k, 2));
    }
  }
}

}  // namespace wrenbit
