// A record, by characters counted from 0:
//
//    0      ":"
//    1      data bytes, two digits
//    3      address of the first one, four digits
//    7      type, two digits
//    9      data, two digits a byte
//   behind  checksum, two digits
#include "intel_hex.h"

#include "code_page_932.h"
#include "hex_text.h"
#include "state.h"
#include "text_field_reader.h"

namespace wrenbit {
namespace {

constexpr std::size_t kRecordBytes = 16;
constexpr std::size_t kBankBytes = 0x10000;  // What an address field reaches.
constexpr const char* kLineEnd = "\r\n";

enum Record_Type { kData = 0x00, kExtendedSegment = 0x02, kExtendedLinear = 0x04 };

// One byte for each character, so that positions are indices; what isn't ASCII is no hex digit anyhow.
std::string One_Byte_A_Character(std::string_view item) {
  std::string line;
  line.reserve(item.size());
  while (!item.empty()) {
    const bool ascii = (item[0] & 0x80) == 0;
    line += ascii ? item[0] : '?';
    item.remove_prefix(ascii ? 1 : Cp932_Length(item));
  }
  return line;
}

// What is left of a number that runs past the end of the line.
std::uint32_t Number(std::string_view line, std::size_t position, std::size_t digits) {
  if (position >= line.size()) return 0;
  return static_cast<std::uint32_t>(Hex_ToLong(line.substr(position, digits)));
}

}  // namespace

std::string Intel_Hex_Text() {
  std::string text;
  const auto append = [&](std::string line) {
    Hex_LineSum(line);
    text += line + kLineEnd;
  };
  for (std::size_t index = 0; index < ImageBuffer.size(); index += kRecordBytes) {
    const auto address = static_cast<std::uint32_t>(index);
    if (index > 0 && index % kBankBytes == 0) append(":02000004" + Hex_Text(address >> 16, 4));
    std::string line = ":10" + Hex_Text(address, 4) + "00";
    for (std::size_t k = 0; k < kRecordBytes; ++k) line += Hex_Text(ImageBuffer[index + k], 2);
    append(std::move(line));
  }
  append(":00000001");
  return text;
}

void Intel_Hex_Load(std::string_view text) {
  const bool extended = ImageBuffer.size() > kBankBytes;
  std::uint32_t base = 0;
  Text_Field_Reader items(text, Quotes::Plain);
  while (!items.At_End()) {
    const std::string line = One_Byte_A_Character(items.Next());
    if (!line.starts_with(':')) continue;
    const std::uint32_t length = Number(line, 1, 2);
    const std::uint32_t address = Number(line, 3, 4);
    const std::uint32_t type = Number(line, 7, 2);
    if (extended && type == kExtendedSegment) base = Number(line, 9, 4) << 4;
    if (extended && type == kExtendedLinear) base = Number(line, 9, 4) << 16;
    if (type != kData) continue;
    for (std::uint32_t k = 0; k < length; ++k) {
      const std::size_t index = base + address + k;
      if (index >= ImageBuffer.size()) return;
      ImageBuffer[index] = static_cast<std::uint8_t>(Number(line, 9 + 2 * k, 2));
    }
  }
}

}  // namespace wrenbit
