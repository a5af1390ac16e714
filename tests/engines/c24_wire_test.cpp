// What the transfers put on the wire, byte for byte.
#include <string_view>

#include "chip_bench.h"
#include "transfer_commands.h"

namespace wrenbit {
namespace {

const Bytes kPowerOn{'m', 'w', 'a',  6,   'm', 'w', 'b',  0x40, 'm', 'w', 'c', 0x80, 'm', 't', 'a', 0xF8, 'm',
                     't', 'b', 0xA3, 'm', 't', 'c', 0x77, 'm',  'r', 'a', 'm', 'r',  'b', 'm', 'r', 'c'};
const Bytes kPowerOff{'m', 'w', 'a',  0,   'm', 'w', 'b',  0,   'm', 'w', 'c', 0x80, 'm', 't', 'a', 0xFF, 'm',
                      't', 'b', 0xFF, 'm', 't', 'c', 0x7F, 'm', 'r', 'a', 'm', 'r',  'b', 'm', 'r', 'c'};
const Bytes kStart{'m', 'w', 'a', 6,   'm', 'r', 'a', 'm', 'w', 'a', 2,
                   'm', 'r', 'a', 'm', 'w', 'a', 0,   'm', 'r', 'a'};
const Bytes kStop{'m', 'w', 'a', 2, 'm', 'r', 'a', 'm', 'w', 'a', 6, 'm', 'r', 'a'};

// A transfer as it should go out, in the words of the bus.
class Expected {
 public:
  Expected& Raw(const Bytes& more) {
    bytes.insert(bytes.end(), more.begin(), more.end());
    return *this;
  }
  Expected& Query() { return Raw({'?', '?'}); }
  Expected& On() { return Raw(kPowerOn); }
  Expected& Off() { return Raw(kPowerOff); }
  Expected& Start() { return Raw(kStart); }
  Expected& Stop() { return Raw(kStop); }
  Expected& Byte(int value) { return Raw({'9', static_cast<std::uint8_t>(value), '3'}); }
  Expected& Bits(int value, bool acknowledge = true) {
    for (int bit = 7; bit >= 0; --bit) Raw({static_cast<std::uint8_t>(value >> bit & 1 ? '1' : '2')});
    return acknowledge ? Raw({'3'}) : *this;
  }
  Expected& Read_Bytes(int count) {
    for (int i = 1; i <= count; ++i) Raw({'7', static_cast<std::uint8_t>(i == count ? '1' : '2')});
    return *this;
  }
  Bytes bytes;
};

TEST(C24_Wire, ABlockWriteIsOneTransactionAPage) {
  Chip_Bench bench("24C64", "5.00");
  bench.Fill_Image(1);
  frmMain.CmbSize.Set_ListIndex(2);  // 64 bytes
  Cmd_WRITE_all_Click();
  Expected wire;
  wire.Query().On().Start().Byte(0xA0).Byte(0).Byte(0);
  for (std::size_t i = 0; i < 32; ++i) wire.Byte(ImageBuffer[i]);
  wire.Stop().Start().Byte(0xA0).Byte(0).Byte(0x20);
  for (std::size_t i = 32; i < 64; ++i) wire.Byte(ImageBuffer[i]);
  EXPECT_EQ(bench.Sent, wire.Stop().Off().bytes);
}

TEST(C24_Wire, ABlockReadIsOneSequentialTransaction) {
  const struct {
    const char* Chip;
    int SizeIndex;
    int ReadControl;
  } cases[] = {{"24C16", 7, 0xAF}, {"24C16", 6, 0xA7}, {"24C16", 4, 0xA1}, {"24C64", 4, 0xA1}};
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.Chip) + " " + std::to_string(c.SizeIndex));
    Chip_Bench bench(c.Chip, "5.00");
    frmMain.CmbSize.Set_ListIndex(c.SizeIndex);
    Cmd_READ_all_Click();
    Expected wire;
    wire.Query().On().Start().Byte(0xA0).Byte(0);
    if (AddressMode == 2) wire.Byte(0);
    wire.Start().Bits(c.ReadControl).Read_Bytes(16 << c.SizeIndex).Stop().Off();
    EXPECT_EQ(bench.Sent, wire.bytes);
  }
}

TEST(C24_Wire, TheHighAddressBitsGoIntoTheControlByteOfEachPage) {
  const struct {
    const char* Chip;
    std::int32_t Address;
    Bytes Header;
  } cases[] = {{"24C16", 0x100, {'9', 0xA2, '3', '9', 0x00, '3'}},
               {"24C1024", 0x10000, {'9', 0xA2, '3', '9', 0x00, '3', '9', 0x00, '3'}}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.Chip);
    Chip_Bench bench(c.Chip, "5.00");
    Cmd_WRITE_all_Click();
    // What one page takes, and so where the one of this address begins.
    const std::size_t page =
        kStart.size() + c.Header.size() + static_cast<std::size_t>(PageSize) * 3 + kStop.size();
    const std::size_t at =
        2 + kPowerOn.size() + static_cast<std::size_t>(c.Address / PageSize) * page + kStart.size();
    const auto begin = bench.Sent.begin() + static_cast<std::ptrdiff_t>(at);
    EXPECT_EQ(Bytes(begin, begin + static_cast<std::ptrdiff_t>(c.Header.size())), c.Header);
  }
}

TEST(C24_Wire, ByteTransfersGoBitByBitInBothAddressForms) {
  const struct {
    const char* Chip;
    std::int32_t Address;
    std::vector<int> WriteHeader;
    int ReadControl;
    std::size_t ReadWaits, WriteWaits;
  } cases[] = {{"24C16", 0x5A7, {0xAA, 0xA7}, 0xAB, 25, 14},
               {"24C1024", 0x1C5A7, {0xA2, 0xC5, 0xA7}, 0xA3, 26, 15}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.Chip);
    Chip_Bench bench(c.Chip, "5.00");
    Select_Address(c.Address);
    ImageBuffer[static_cast<std::size_t>(c.Address)] = 0x5C;
    Cmd_WRITE_single_Click();
    Expected write;
    write.Query().On().Start();
    for (const int byte : c.WriteHeader) write.Bits(byte);
    EXPECT_EQ(bench.Sent, write.Bits(0x5C).Stop().Off().bytes);
    const std::size_t handshake_waits = 17;  // Its 17 bytes come one by one.
    EXPECT_EQ(bench.Waits, handshake_waits + c.WriteWaits);

    bench.Forget_Traffic();
    Cmd_READ_single_Click();
    Expected read;
    read.Query().On().Start();
    for (const int byte : c.WriteHeader) read.Bits(byte);
    read.Start().Bits(c.ReadControl).Raw(Bytes(8, '3')).Raw({'1'}).Stop().Off();
    EXPECT_EQ(bench.Sent, read.bytes);
    EXPECT_EQ(bench.Waits, handshake_waits + c.ReadWaits);
  }
}

}  // namespace
}  // namespace wrenbit
