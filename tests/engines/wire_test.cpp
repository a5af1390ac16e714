// What the transfers put on the wire, command for command: each as its word, with its operands in hexadecimal
// digits.
#include <string_view>
#include <tuple>

#include "image/hex_text.h"
#include "tests/support/chip_bench.h"

namespace wrenbit {
namespace {

std::string Sent(Chip_Bench& bench, void (*transfer)()) {
  bench.Forget_Traffic();
  transfer();
  std::string text;
  for (const Bytes& command : bench.Commands) {
    const std::size_t word = command.front() == 'm' ? 3 : 1;
    for (std::size_t at = 0; at < command.size(); ++at)
      text += at < word ? std::string(1, static_cast<char>(command[at])) : Hex_Text(command[at], 2);
    text += ' ';
  }
  return text;
}

std::string Times(int count, const std::string& text) {
  std::string all;
  for (; count > 0; --count) all += text;
  return all;
}

const std::string kOff = "mwa00 mwb00 mwc80 mtaFF mtbFF mtc7F mra mrb mrc ";

// Two wires. A byte goes with its acknowledge.
const std::string kC24On = "? ? mwa06 mwb40 mwc80 mtaF8 mtbA3 mtc77 mra mrb mrc ";
const std::string kStart = "mwa06 mra mwa02 mra mwa00 mra ", kStop = "mwa02 mra mwa06 mra ";

std::string Byte(int value) { return "9" + Hex_Text(static_cast<std::uint32_t>(value), 2) + " 3 "; }

struct By_Bits {
  std::string One = "1 ", Zero = "2 ", In = "3 ";
  std::string Byte(int value) const {
    std::string text;
    for (int bit = 7; bit >= 0; --bit) text += value >> bit & 1 ? One : Zero;
    return text + In;
  }
};
const By_Bits kFrom5;
const By_Bits kBelow5{
    .One = "mwa04 mwa06 mwa04 ", .Zero = "mwa00 mwa02 mwa00 ", .In = "mwa04 mtaFD mwa02 mra mwa00 mtaF9 "};

// Three wires.
const std::string kC93On = "? ? mwa00 mwb40 mwc80 mtaF9 mtbA7 mtc77 mra mrb mrc ";
const std::string kReadByte = Times(8, "mwb50 mrb mwb40 ");

std::string Selected(const std::string& frame) { return "mwc88 " + frame + "mwc80 "; }
// One character a bit; blanks are for the reader.
std::string Bits(std::string_view bits) {
  std::string text;
  for (const char bit : bits)
    if (bit != ' ') text += bit == '1' ? "mwb48 mwb58 mwb48 " : "mwb40 mwb50 mwb40 ";
  return text;
}

TEST(C24_Wire, ABlockWriteIsOneTransactionAPage) {
  Chip_Bench bench("24C64", "5.00");
  bench.Fill_Image(1);
  frmMain.CmbSize.Set_ListIndex(2);  // 64 bytes
  std::string wire = kC24On;
  for (const int page : {0, 32}) {
    wire += kStart + Byte(0xA0) + Byte(0) + Byte(page);
    for (int i = page; i < page + 32; ++i) wire += Byte(ImageBuffer[static_cast<std::size_t>(i)]);
    wire += kStop;
  }
  EXPECT_EQ(Sent(bench, Cmd_WRITE_all_Click), wire + kOff);
}

TEST(C24_Wire, ABlockReadIsOneSequentialTransaction) {
  for (const auto& [chip, size_index, address, read_control] : {std::tuple{"24C16", 7, Byte(0), 0xAF},
                                                                {"24C16", 4, Byte(0), 0xA1},
                                                                {"24C64", 4, Byte(0) + Byte(0), 0xA1}}) {
    Chip_Bench bench(chip, "5.00");
    frmMain.CmbSize.Set_ListIndex(size_index);
    EXPECT_EQ(Sent(bench, Cmd_READ_all_Click),
              kC24On + kStart + Byte(0xA0) + address + kStart + kFrom5.Byte(read_control) +
                  Times((16 << size_index) - 1, "7 2 ") + "7 1 " + kStop + kOff)
        << chip << " " << size_index;
  }
}

TEST(C24_Wire, ByteTransfersGoBitByBitInBothAddressForms) {
  const std::tuple<const char*, std::int32_t, std::vector<int>, int> cases[] = {
      {"24C16", 0x5A7, {0xAA, 0xA7}, 0xAB}, {"24C1024", 0x1C5A7, {0xA2, 0xC5, 0xA7}, 0xA3}};
  for (const auto& [firmware, bits] : {std::pair{"4.90", kBelow5}, {"5.00", kFrom5}})
    for (const auto& [chip, address, header, read_control] : cases) {
      SCOPED_TRACE(std::string(firmware) + " " + chip);
      Chip_Bench bench(chip, firmware);
      Select_Address(address);
      ImageBuffer[static_cast<std::size_t>(address)] = 0x5C;
      std::string start = kC24On + kStart;
      for (const int byte : header) start += bits.Byte(byte);
      EXPECT_EQ(Sent(bench, Cmd_WRITE_single_Click), start + bits.Byte(0x5C) + kStop + kOff);
      EXPECT_EQ(Sent(bench, Cmd_READ_single_Click),
                start + kStart + bits.Byte(read_control) + Times(8, bits.In) + bits.One + kStop + kOff);
    }
}

TEST(C93_Wire, FromVersion5OnABlockIsAFrameOfFieldsForEachByte) {
  Chip_Bench bench("AT93C46", "5.00");
  bench.Fill_Image(1);
  frmMain.CmbSize.Set_ListIndex(0);
  std::string write = kC93On + Selected(Bits("1 00 11 00000")), read = kC93On;
  for (std::uint8_t i = 0; i < 16; ++i) {
    const std::string address = "00700" + Hex_Text(i, 2);
    write += Selected("0030005 " + address + " 00800" + Hex_Text(ImageBuffer[i], 2) + " ");
    read += Selected("0030006 " + address + " 8 ");
  }
  EXPECT_EQ(Sent(bench, Cmd_WRITE_all_Click), write + kOff);
  EXPECT_EQ(Sent(bench, Cmd_READ_all_Click), read + kOff);
}

TEST(C93_Wire, ByteTransfersGoBitByBitAtEveryVersion) {
  for (const char* firmware : {"4.90", "5.00"})
    for (const auto& [chip, at, enable, field] : {std::tuple{"AT93C46", 0x5AU, "1 00 11 00000", "1011010"},
                                                  {"AT93C66", 0x1A5U, "1 00 11 0000000", "110100101"}}) {
      SCOPED_TRACE(std::string(firmware) + " " + chip);
      Chip_Bench bench(chip, firmware);
      Select_Address(static_cast<std::int32_t>(at));
      ImageBuffer[at] = 0x5C;
      bench.On_Yield = [address = at] { ImageBuffer[address] = 0; };  // Too late to matter.
      EXPECT_EQ(
          Sent(bench, Cmd_WRITE_single_Click),
          kC93On + Selected(Bits(enable)) + Selected(Bits("101") + Bits(field) + Bits("01011100")) + kOff);
      EXPECT_EQ(Sent(bench, Cmd_READ_single_Click),
                kC93On + Selected(Bits("110") + Bits(field) + kReadByte) + kOff);
    }
}

}  // namespace
}  // namespace wrenbit
