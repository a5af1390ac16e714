// What the three-wire transfers put on the wire, byte for byte.
#include <algorithm>
#include <optional>
#include <string_view>

#include "chip_bench.h"
#include "hex_grid.h"
#include "three_wire_chip.h"
#include "transfer_commands.h"

namespace wrenbit {
namespace {

// A transfer as it should go out, in the words of the bus.
class Expected {
 public:
  Expected() { Raw({'?', '?'}).Power(0x40, 0xF9, 0xA7, 0x77); }
  Bytes Off() { return Power(0, 0xFF, 0xFF, 0x7F).bytes; }
  Expected& Select() { return Raw({'m', 'w', 'c', 0x88}); }
  Expected& Deselect() { return Raw({'m', 'w', 'c', 0x80}); }
  // One character a bit; blanks are for the reader.
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
  Expected& Raw(const Bytes& more) {
    bytes.insert(bytes.end(), more.begin(), more.end());
    return *this;
  }

 private:
  Expected& Power(std::uint8_t out_b, std::uint8_t dir_a, std::uint8_t dir_b, std::uint8_t dir_c) {
    return Raw({'m', 'w', 'a',   0,   'm', 'w', 'b',   out_b, 'm', 'w', 'c', 0x80, 'm', 't', 'a', dir_a, 'm',
                't', 'b', dir_b, 'm', 't', 'c', dir_c, 'm',   'r', 'a', 'm', 'r',  'b', 'm', 'r', 'c'});
  }
  Bytes bytes;
};

TEST(C93_Wire, FromVersion5OnABlockIsAFrameOfFieldsForEachByte) {
  Chip_Bench bench("AT93C46", "5.00");
  bench.Fill_Image(1);
  frmMain.CmbSize.Set_ListIndex(0);
  Cmd_WRITE_all_Click();
  Expected write;
  write.Select().Bits("1 00 11 00000").Deselect();
  for (std::uint8_t i = 0; i < 16; ++i)
    write.Select().Raw({'0', 3, 0, 5, '0', 7, 0, i, '0', 8, 0, ImageBuffer[i]}).Deselect();
  EXPECT_EQ(bench.Sent, write.Off());

  bench.Forget_Traffic();
  Cmd_READ_all_Click();
  Expected read;
  for (std::uint8_t i = 0; i < 16; ++i) read.Select().Raw({'0', 3, 0, 6, '0', 7, 0, i, '8'}).Deselect();
  EXPECT_EQ(bench.Sent, read.Off());
}

TEST(C93_Wire, AnAddressIsAFieldOfTheDevicesOwnLength) {
  const struct {
    const char* Chip;
    int AddressBits;
    Bytes Field;
  } cases[] = {{"AT93C66", 9, {'0', 9, 1, 0xA5}}, {"AT93C46", 16, {'0', 16, 0, 0x7F}}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.Chip);
    Chip_Bench bench(c.Chip, "5.00");
    AddressBits = c.AddressBits;
    Cmd_READ_all_Click();
    EXPECT_EQ(std::ranges::count(bench.Commands, c.Field), 1);
  }
}

TEST(C93_Wire, ByteTransfersGoBitByBitAtEveryVersion) {
  const struct {
    const char* Chip;
    std::int32_t Address;
    const char* Enable;
    const char* Field;
  } cases[] = {{"AT93C46", 0x5A, "1 00 11 00000", "1011010"},
               {"AT93C46", 0, "1 00 11 00000", "0000000"},
               {"AT93C66", 0x1A5, "1 00 11 0000000", "110100101"}};
  for (const char* firmware : {"4.90", "5.00"})
    for (const auto& c : cases) {
      SCOPED_TRACE(std::string(firmware) + " " + c.Chip);
      Chip_Bench bench(c.Chip, firmware);
      Select_Address(c.Address);
      ImageBuffer[static_cast<std::size_t>(c.Address)] = 0x5C;
      bench.On_Yield = [&] { ImageBuffer[static_cast<std::size_t>(c.Address)] = 0; };  // Too late to matter.
      Cmd_WRITE_single_Click();
      Expected write;
      write.Select().Bits(c.Enable).Deselect().Select().Bits("101").Bits(c.Field).Bits("01011100").Deselect();
      EXPECT_EQ(bench.Sent, write.Off());
      const std::size_t handshake_waits = 17;  // Its 17 bytes come one by one.
      EXPECT_EQ(bench.Waits, handshake_waits + 6);

      bench.Forget_Traffic();
      Cmd_READ_single_Click();
      Expected read;
      read.Select().Bits("110").Bits(c.Field).Read_Bits().Deselect();
      EXPECT_EQ(bench.Sent, read.Off());
      const std::size_t look_for_strays = 1;
      EXPECT_EQ(bench.Waits, handshake_waits + 6 + 8 + look_for_strays);
    }
}

// An image may be larger than the chip: a loaded file made it so.
TEST(C93_Wire, AnAddressLosesTheBitsThatTheInstructionHasNoPlaceFor) {
  Chip_Bench bench("AT93C46", "5.00");
  bench.Cells->Write(0x5A, 0x77);
  ImageBuffer.resize(256, 0xFF);
  Grid_Refill();
  Select_Address(0xDA);
  Cmd_READ_single_Click();
  EXPECT_EQ(ImageBuffer[0xDA], 0x77);
  EXPECT_EQ(ImageBuffer[0x5A], 0xFF);
}

TEST(C93_Wire, ABlockSizeAboveTheChipsIsCorrectedBeforeTheHandshakeOfAReadAndBehindTheEnableOfAWrite) {
  for (const auto& [run, sent_before] :
       {std::pair{&Cmd_READ_all_Click, 1}, {&Cmd_WRITE_all_Click, 2 + 33 + 4 + 10 * 12 + 4}}) {
    Chip_Bench bench("AT93C46", "5.00");
    AccessSize = 11;
    std::optional<std::size_t>
        corrected;  // What had gone out at the next yield; the first one follows a "?".
    bench.On_Yield = [&] {
      if (AccessSize == 7 && !corrected) corrected = bench.Sent.size();
    };
    run();
    EXPECT_EQ(corrected, sent_before);
    EXPECT_EQ(LinkError, 0);
  }
}

// The wire's time is all that a write cycle gets, and nothing tells when it was not enough.
TEST(C93_Wire, AChipThatTakesAllThatItsDataSheetAllowsLosesBytesUnseen) {
  board::Three_Wire_Part slow = *board::Find_Three_Wire("AT93C46");
  slow.WriteCycle = 0.010;
  Chip_Bench bench("AT93C46", "5.00");
  bench.Programmer.Insert(std::make_unique<board::Three_Wire_Chip>(slow, *bench.Cells));
  bench.Fill_Image(1);
  Cmd_WRITE_all_Click();
  EXPECT_EQ(LinkError, 0);
  EXPECT_TRUE(Panel(1).starts_with("書き込み終了。 (")) << Panel(1);
  EXPECT_NE(bench.Chip_Contents(), ImageBuffer);
}

TEST(C93_Wire, TheRouteIsTheOneOfTheBoardThatAnsweredLast) {
  for (const char* chip : {"AT93C46", "24C02"}) {
    Chip_Bench bench(chip, "4.99");
    bench.Fill_Chip(1);
    std::vector<std::size_t> costs;
    board::Programmer_Board other("5.00");
    for (int turn = 0; turn < 4; ++turn) {
      bench.Board = turn % 2 ? &other : &bench.Programmer;
      (turn % 2 ? other : bench.Programmer).Insert(board::Make_Chip(chip, *bench.Cells));
      bench.Forget_Traffic();
      Cmd_READ_all_Click();
      EXPECT_EQ(ImageBuffer, bench.Chip_Contents());
      costs.push_back(bench.Sent.size());
    }
    EXPECT_GT(costs[0], 10 * costs[1]);
    EXPECT_EQ(costs[2], costs[0]);
    EXPECT_EQ(costs[3], costs[1]);
  }
}

}  // namespace
}  // namespace wrenbit
