#include "intel_hex.h"

#include <gtest/gtest.h>

#include <map>
#include <numeric>
#include <random>

#include "state.h"

namespace wrenbit {
namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes Noise(std::size_t size) {
  std::mt19937 random(static_cast<std::mt19937::result_type>(size));
  Bytes bytes(size);
  for (auto& byte : bytes) byte = static_cast<std::uint8_t>(random());
  return bytes;
}

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t at = 0, end; (end = text.find("\r\n", at)) != text.npos; at = end + 2) {
    lines.push_back(text.substr(at, end - at));
  }
  return lines;
}

TEST(IntelHexWriter, WritesFullRecordsAndTheEndRecord) {
  ImageBuffer.resize(32);
  std::iota(ImageBuffer.begin(), ImageBuffer.end(), std::uint8_t{0});
  EXPECT_EQ(Intel_Hex_Text(),
            ":10000000000102030405060708090A0B0C0D0E0F78\r\n"
            ":10001000101112131415161718191A1B1C1D1E1F68\r\n"
            ":00000001FF\r\n");
  ImageBuffer.assign(16, 0xFF);
  EXPECT_EQ(Intel_Hex_Text(), ":10000000FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFF00\r\n:00000001FF\r\n");
}

TEST(IntelHexWriter, ExtendsAddressesOnlyBeyond64KiB) {
  ImageBuffer.assign(65536, 0xFF);
  std::string text = Intel_Hex_Text();
  EXPECT_EQ(text.size(), 45u * 65536 / 16 + 13);
  EXPECT_EQ(Lines(text)[4095].substr(0, 9), ":10FFF000");
  EXPECT_EQ(Lines(text)[4096], ":00000001FF");

  ImageBuffer.assign(3 * 65536, 0xFF);
  text = Intel_Hex_Text();
  const auto lines = Lines(text);
  ASSERT_EQ(lines.size(), 3u * 4096 + 3);
  EXPECT_EQ(lines[0].substr(0, 9), ":10000000");
  EXPECT_EQ(lines[4096], ":020000040001F9");
  EXPECT_EQ(lines[4097].substr(0, 9), ":10000000");
  EXPECT_EQ(lines[8193], ":020000040002F8");
}

TEST(IntelHex, ComesBackByteForByte) {
  for (const std::size_t size : {16u, 128u, 65536u, 131072u, 262144u}) {
    const Bytes bytes = ImageBuffer = Noise(size);
    const std::string text = Intel_Hex_Text();
    ImageBuffer.assign(size, 0xFF);
    Intel_Hex_Load(text);
    EXPECT_TRUE(ImageBuffer == bytes) << size;
  }
}

// What a load stores into a blank image: all bytes that are not 0xFF afterwards.
using Stored = std::map<std::size_t, int>;
Stored Load(std::string_view text, std::size_t image_size) {
  ImageBuffer.assign(image_size, 0xFF);
  Intel_Hex_Load(text);
  EXPECT_EQ(ImageBuffer.size(), image_size);
  Stored stored;
  for (std::size_t index = 0; index < image_size; ++index) {
    if (ImageBuffer[index] != 0xFF) stored[index] = ImageBuffer[index];
  }
  return stored;
}

TEST(IntelHexReader, TakesWhatItCan) {
  Stored ab_and_zeros, zeros;
  for (std::size_t index = 0; index < 16; ++index) zeros[index] = 0;
  ab_and_zeros = zeros;
  ab_and_zeros[0] = 0xAB;
  const struct {
    const char* what;
    const char* text;
    Stored stored;
  } cases[] = {
      {"empty file", "", {}},
      {"end record only", ":00000001FF\r\n", {}},
      {"odd length", ":03000500010203", {{5, 1}, {6, 2}, {7, 3}}},
      {"wrong checksum", ":0100000001AA\r\n", {{0, 1}}},
      {"short line", ":10000000AB", ab_and_zeros},
      {"half a byte", ":02000000120", {{0, 0x12}, {1, 0}}},
      {"start and length only", ":10", zeros},
      {"start only", ":", {}},
      {"lower case", ":02001e00abcd", {{0x1E, 0xAB}, {0x1F, 0xCD}}},
      {"bad digits", ":01000x00G7", {{0, 7}}},
      {"data behind the end record", ":00000001FF\n:0100030004", {{3, 4}}},
      {"last one stays", ":0100030004\n:0100030005", {{3, 5}}},
      {"no data record", ":0100030104\n:0100030204\n:0100030304\n:0100030504", {}},
      {"extended address", ":020000040001F9\n:020000021000EC\n:0100000007", {{0, 7}}},
      {"other lines", "; text\n\n\t:0100000001\n0100000001\n:0100010002", {{1, 2}}},
      {"blanks in front", "   :0100000001", {{0, 1}}},
      {"a comma parts items", "note,:0100000001,:0100010002", {{0, 1}, {1, 2}}},
      {"quotes mean nothing", "\":0100000001\n:0100010002", {{1, 2}}},
      {"all line ends",
       ":0100000001\r:0100010002\n:0100020003\r\n:0100030004",
       {{0, 1}, {1, 2}, {2, 3}, {3, 4}}},
      {"double-byte character",
       ":020001\x82\xA0"
       "0\x83\x41"
       "12345",
       {{1, 0x01}, {2, 0x23}}},
      {"half-width katakana",
       ":02000100\xB1"
       "1\xB2"
       "2",
       {{1, 1}, {2, 2}}},
      {"lead byte before a digit",
       ":0200010\x81"
       "12",
       {{1, 0x12}, {2, 0}}},
      {"past the end", ":0300FE00010203\n:0100000009", {{0xFE, 1}}},
      {"far past the end", ":0100000001\n:01FFFF0002\n:0100010003", {{0, 1}}},
      {"no byte past the end", ":00FFFF00\n:0100000001", {{0, 1}}},
  };
  for (const auto& [what, text, stored] : cases) {
    // A record of 0xFF tells nothing apart, so the image ends at 0xFF.
    EXPECT_EQ(Load(text, 255), stored) << what;
  }
  EXPECT_EQ(Load(":0100000001", 0), Stored());
}

TEST(IntelHexReader, ALargeFileFillsASmallImageUpToItsEnd) {
  const Bytes bytes = ImageBuffer = Noise(256);
  const std::string text = Intel_Hex_Text();
  Load(text, 128);
  EXPECT_TRUE(std::equal(ImageBuffer.begin(), ImageBuffer.end(), bytes.begin()));
}

TEST(IntelHexReader, MovesDataOnlyInAnImageOver64KiB) {
  constexpr std::size_t kLarge = 0x20000;
  const struct {
    const char* what;
    const char* text;
    Stored large;
    Stored small;
  } cases[] = {
      {"linear", ":020000040001F9\n:0100050007", {{0x10005, 7}}, {{5, 7}}},
      {"segment", ":020000021001EB\n:0100050007", {{0x10015, 7}}, {{5, 7}}},
      {"back again", ":020000040001F9\n:020000040000FA\n:0100050007", {{5, 7}}, {{5, 7}}},
      {"across 64 KiB", ":02FFFF000102\n:0100000003", {{0, 3}, {0xFFFF, 1}, {0x10000, 2}}, {{0xFFFF, 1}}},
      {"past the end", ":020000040002F8\n:0100000001\n:0100000002", {}, {{0, 2}}},
      {"end of 32 bits", ":02000004FFFFFC\n:02FFFF000102", {}, {{0xFFFF, 1}}},
  };
  for (const auto& [what, text, large, small] : cases) {
    EXPECT_EQ(Load(text, kLarge), large) << what;
    EXPECT_EQ(Load(text, 0x10000), small) << what;
  }
}

}  // namespace
}  // namespace wrenbit
