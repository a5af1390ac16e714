// What the transfers put on the wire, byte for byte.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "core/transfer_commands.h"
#include "tests/support/chip_bench.h"
#include "tests/support/same_bytes.h"

namespace wrenbit {
namespace {

// A transfer as it should go out, in the words of the buses.
class Expected {
 public:
  explicit Expected(int family, const std::string& firmware = "5.00") : bits_are_commands(firmware >= "5") {
    Raw({'?', '?'});
    family == 2 ? Power(6, 0x40, 0xF8, 0xA3, 0x77) : Power(0, 0x40, 0xF9, 0xA7, 0x77);
  }
  Bytes Off() { return Power(0, 0, 0xFF, 0xFF, 0x7F).bytes; }
  Expected& Raw(const Bytes& more) {
    bytes.insert(bytes.end(), more.begin(), more.end());
    return *this;
  }

  // Two wires. A byte goes with its acknowledge.
  Expected& Start() {
    return Raw(
        {'m', 'w', 'a', 6, 'm', 'r', 'a', 'm', 'w', 'a', 2, 'm', 'r', 'a', 'm', 'w', 'a', 0, 'm', 'r', 'a'});
  }
  Expected& Stop() { return Raw({'m', 'w', 'a', 2, 'm', 'r', 'a', 'm', 'w', 'a', 6, 'm', 'r', 'a'}); }
  Expected& Byte(int value) { return Raw({'9', static_cast<std::uint8_t>(value), '3'}); }
  Expected& Byte_By_Bits(int value) {
    for (int bit = 7; bit >= 0; --bit) Bit(value >> bit & 1);
    return Bit_In();
  }
  Expected& Bit(bool one) {
    if (bits_are_commands) return Raw({one ? std::uint8_t{'1'} : std::uint8_t{'2'}});
    return one ? Raw({'m', 'w', 'a', 4, 'm', 'w', 'a', 6, 'm', 'w', 'a', 4})
               : Raw({'m', 'w', 'a', 0, 'm', 'w', 'a', 2, 'm', 'w', 'a', 0});
  }
  Expected& Bit_In() {
    if (bits_are_commands) return Raw({'3'});
    return Raw({'m', 'w', 'a', 4,   'm', 't', 'a', 0xFD, 'm', 'w', 'a', 2,
                'm', 'r', 'a', 'm', 'w', 'a', 0,   'm',  't', 'a', 0xF9});
  }

  // Three wires. One character a bit; blanks are for the reader.
  Expected& Select() { return Raw({'m', 'w', 'c', 0x88}); }
  Expected& Deselect() { return Raw({'m', 'w', 'c', 0x80}); }
  Expected& Bits(std::string_view bits) {
    for (const char bit : bits) {
      if (bit == ' ') continue;
      const std::uint8_t di = bit == '1' ? 0x48 : 0x40;
      const auto high = static_cast<std::uint8_t>(di | 0x10);
      Raw({'m', 'w', 'b', di, 'm', 'w', 'b', high, 'm', 'w', 'b', di});
    }
    return *this;
  }
  Expected& Read_Bits() {
    for (int bit = 0; bit < 8; ++bit) Raw({'m', 'w', 'b', 0x50, 'm', 'r', 'b', 'm', 'w', 'b', 0x40});
    return *this;
  }

 private:
  Expected& Power(std::uint8_t out_a, std::uint8_t out_b, std::uint8_t dir_a, std::uint8_t dir_b,
                  std::uint8_t dir_c) {
    return Raw({'m',  'w',   'a', out_a, 'm',   'w', 'b', out_b, 'm',   'w', 'c',
                0x80, 'm',   't', 'a',   dir_a, 'm', 't', 'b',   dir_b, 'm', 't',
                'c',  dir_c, 'm', 'r',   'a',   'm', 'r', 'b',   'm',   'r', 'c'});
  }
  bool bits_are_commands;
  Bytes bytes;
};

// The bytes of a transfer, and nothing of those before.
Bytes Sent(Chip_Bench& bench, void (*transfer)()) {
  bench.Forget_Traffic();
  transfer();
  return bench.Sent;
}

TEST(C24_Wire, ABlockWriteIsOneTransactionAPage) {
  Chip_Bench bench("24C64", "5.00");
  bench.Fill_Image(1);
  frmMain.CmbSize.Set_ListIndex(2);  // 64 bytes
  Expected wire(2);
  for (const int page : {0, 32}) {
    wire.Start().Byte(0xA0).Byte(0).Byte(page);
    for (int i = page; i < page + 32; ++i) wire.Byte(ImageBuffer[static_cast<std::size_t>(i)]);
    wire.Stop();
  }
  EXPECT_TRUE(Same_Bytes(Sent(bench, Cmd_WRITE_all_Click), wire.Off()));
}

TEST(C24_Wire, ABlockReadIsOneSequentialTransaction) {
  for (const auto& [chip, size_index, read_control] :
       {std::tuple{"24C16", 7, 0xAF}, {"24C16", 4, 0xA1}, {"24C64", 4, 0xA1}}) {
    SCOPED_TRACE(std::string(chip) + " " + std::to_string(size_index));
    Chip_Bench bench(chip, "5.00");
    frmMain.CmbSize.Set_ListIndex(size_index);
    Expected wire(2);
    wire.Start().Byte(0xA0).Byte(0);
    if (AddressMode == 2) wire.Byte(0);
    wire.Start().Byte_By_Bits(read_control);
    for (int rest = 16 << size_index; rest > 0; --rest) wire.Raw({'7'}).Bit(rest == 1);
    EXPECT_TRUE(Same_Bytes(Sent(bench, Cmd_READ_all_Click), wire.Stop().Off()));
  }
}

TEST(C24_Wire, ByteTransfersGoBitByBitInBothAddressForms) {
  const std::tuple<const char*, std::int32_t, std::vector<int>, int> cases[] = {
      {"24C16", 0x5A7, {0xAA, 0xA7}, 0xAB}, {"24C1024", 0x1C5A7, {0xA2, 0xC5, 0xA7}, 0xA3}};
  for (const char* firmware : {"4.90", "5.00"})
    for (const auto& [chip, address, header, read_control] : cases) {
      SCOPED_TRACE(std::string(firmware) + " " + chip);
      Chip_Bench bench(chip, firmware);
      Select_Address(address);
      ImageBuffer[static_cast<std::size_t>(address)] = 0x5C;
      Expected write(2, firmware);
      write.Start();
      for (const int byte : header) write.Byte_By_Bits(byte);
      Expected read = write;
      write.Byte_By_Bits(0x5C).Stop();
      read.Start().Byte_By_Bits(read_control);
      for (int bit = 0; bit < 8; ++bit) read.Bit_In();
      EXPECT_TRUE(Same_Bytes(Sent(bench, Cmd_WRITE_single_Click), write.Off()));
      EXPECT_TRUE(Same_Bytes(Sent(bench, Cmd_READ_single_Click), read.Bit(true).Stop().Off()));
    }
}

TEST(C93_Wire, FromVersion5OnABlockIsAFrameOfFieldsForEachByte) {
  Chip_Bench bench("AT93C46", "5.00");
  bench.Fill_Image(1);
  frmMain.CmbSize.Set_ListIndex(0);
  Expected write(3), read(3);
  write.Select().Bits("1 00 11 00000").Deselect();
  for (std::uint8_t i = 0; i < 16; ++i) {
    write.Select().Raw({'0', 3, 0, 5, '0', 7, 0, i, '0', 8, 0, ImageBuffer[i]}).Deselect();
    read.Select().Raw({'0', 3, 0, 6, '0', 7, 0, i, '8'}).Deselect();
  }
  EXPECT_TRUE(Same_Bytes(Sent(bench, Cmd_WRITE_all_Click), write.Off()));
  EXPECT_TRUE(Same_Bytes(Sent(bench, Cmd_READ_all_Click), read.Off()));
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
      Expected write(3), read(3);
      write.Select().Bits(enable).Deselect().Select().Bits("101").Bits(field).Bits("01011100").Deselect();
      read.Select().Bits("110").Bits(field).Read_Bits().Deselect();
      EXPECT_TRUE(Same_Bytes(Sent(bench, Cmd_WRITE_single_Click), write.Off()));
      EXPECT_TRUE(Same_Bytes(Sent(bench, Cmd_READ_single_Click), read.Off()));
    }
}

}  // namespace
}  // namespace wrenbit
