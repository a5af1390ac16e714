#include "editor/byte_texts.h"

#include "core/state/code_page_932.h"
#include "image/hex_text.h"

namespace wrenbit {
namespace {

std::string Character_Or_Dot(bool shown, std::uint8_t byte) {
  return shown ? Cp932_Character(byte) : std::string(kCp932Dot);
}

// Half-width katakana, and the hard blank before them.
bool Katakana_Or_Blank(std::uint8_t byte) { return byte >= 0xA0 && byte <= 0xDF; }

}  // namespace

std::string Cell_Text(std::uint8_t byte) { return "0x" + Hex_Text(byte, 2); }

// Blank, double quote and comma would be lost to the eye, or part the cells of a row where it is pasted
// elsewhere.
std::string Refill_Character(std::uint8_t byte) {
  const bool plain = byte > 0x20 && byte <= 0x7F && byte != '"' && byte != ',';
  return Character_Or_Dot(plain || Katakana_Or_Blank(byte), byte);
}

std::string Edit_Character(std::uint8_t byte) {
  return Character_Or_Dot((byte >= 0x20 && byte <= 0x7F) || Katakana_Or_Blank(byte), byte);
}

std::string Selection_Character(std::uint8_t byte) {
  return Character_Or_Dot(byte >= 0x20 && byte < 0x7F, byte);
}

}  // namespace wrenbit
