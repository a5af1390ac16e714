#include "image/intel_hex.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <random>
#include <string>
#include <tuple>

#include "core/state/state.h"
#include "tests/support/temporary_folder.h"

namespace wrenbit {
namespace {

TEST(Intel_Hex_Writer, ExtendsAddressesOnlyBeyond64KiB) {
  constexpr std::size_t kBank = 65536, kBankText = kBank / 16 * 45;  // Each record with its line end.
  ImageBuffer.assign(kBank, 0xFF);
  EXPECT_EQ(Intel_Hex_Text().substr(kBankText), ":00000001FF\r\n");

  ImageBuffer.assign(3 * kBank, 0xFF);
  const std::string text = Intel_Hex_Text();
  EXPECT_EQ(text.substr(kBankText - 45, 9), ":10FFF000");
  EXPECT_EQ(text.substr(kBankText, 26), ":020000040001F9\r\n:10000000");
  EXPECT_EQ(text.substr(2 * kBankText + 17, 26), ":020000040002F8\r\n:10000000");
  EXPECT_EQ(text.size(), 3 * kBankText + 17 + 17 + 13);
}

// What a load stores into a blank image: all bytes that are not 0xFF afterwards.
using Stored = std::map<std::size_t, int>;
Stored Load(std::string_view text, std::size_t image_size) {
  ImageBuffer.assign(image_size, 0xFF);
  Intel_Hex_Load(text);
  EXPECT_EQ(ImageBuffer.size(), image_size);
  Stored stored;
  for (std::size_t index = 0; index < image_size; ++index)
    if (ImageBuffer[index] != 0xFF) stored[index] = ImageBuffer[index];
  return stored;
}

TEST(Intel_Hex_Reader, TakesWhatItCan) {
  const std::tuple<const char*, const char*, Stored> cases[] = {
      {"odd length", ":03000500010203", {{5, 1}, {6, 2}, {7, 3}}},
      {"half a byte", ":0300000012A", {{0, 0x12}, {1, 0x0A}, {2, 0}}},
      {"start and length only", ":03", {{0, 0}, {1, 0}, {2, 0}}},
      {"start only", ":", {}},
      {"lower case", ":02001e00abcf", {{0x1E, 0xAB}, {0x1F, 0xCF}}},
      {"bad digits", ":01000x00G7", {{0, 7}}},
      {"data behind the end record", ":00000001FF\n:0100030004", {{3, 4}}},
      {"last one stays", ":0100030004\n:0100030005", {{3, 5}}},
      {"no data record", ":0100030104\n:0100030204\n:0100030304\n:0100030504", {}},
      {"other lines", "; text\n\n\t:0100000001\n0100000001\n:0100010002", {{1, 2}}},
      {"blanks and commas", "   :0100000001,note,:0100010002", {{0, 1}, {1, 2}}},
      {"quotes mean nothing", "\":0100000001\n:0100010002", {{1, 2}}},
      {"line ends", ":0100000001\r:0100010002\n:01000200FE00", {{0, 1}, {1, 2}, {2, 0xFE}}},
      // Octal, since a hex escape would take the digits behind it too.
      {"double-byte character", ":020001\202\2400\203A12345", {{1, 0x01}, {2, 0x23}}},
      {"half-width katakana", ":02000100\2611\2622", {{1, 1}, {2, 2}}},
      {"lead byte before a digit", ":0200010\20112", {{1, 0x12}, {2, 0}}},
      {"past the end", ":0300FE00010203\n:0100000009", {{0xFE, 1}}},
      {"no byte past the end", ":00FFFF00\n:0100000001", {{0, 1}}},
  };
  for (const auto& [what, text, kept] : cases) EXPECT_EQ(Load(text, 255), kept) << what;
  EXPECT_EQ(Load(":0100000001", 0), Stored());
}

TEST(Intel_Hex_Reader, MovesDataOnlyInAnImageOver64KiB) {
  constexpr std::size_t kLarge = 0x20000;
  const std::tuple<const char*, const char*, Stored, Stored> cases[] = {
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

// Holds ours against another tool, in both directions. Its commands make one of the folder's files into the
// other.
void Exchange_Files_With(const std::string& tool, const char* to_hex, const char* to_binary) {
  const auto run = [](const std::string& command) { return std::system(command.c_str()); };
  if (run(tool + " --version >/dev/null 2>&1") != 0) GTEST_SKIP() << tool << " is not installed";
  const Temporary_Folder folder;
  const std::string there = "cd '" + folder.Path() + "' && " + tool + " ";
  for (const std::size_t size : {128u, 65536u, 131072u}) {
    SCOPED_TRACE(size);
    std::mt19937 random(1);
    ImageBuffer.resize(size);
    for (auto& byte : ImageBuffer) byte = static_cast<std::uint8_t>(random());
    const std::string binary(ImageBuffer.begin(), ImageBuffer.end());
    Put_Content(folder / "hex", Intel_Hex_Text());
    ASSERT_EQ(run(there + to_binary), 0);
    EXPECT_TRUE(Content(folder / "bin") == binary);

    Put_Content(folder / "bin", binary);
    ASSERT_EQ(run(there + to_hex), 0);
    ImageBuffer.assign(size, 0xFF);
    Intel_Hex_Load(Content(folder / "hex"));
    EXPECT_TRUE(std::string(ImageBuffer.begin(), ImageBuffer.end()) == binary);
  }
}

TEST(Intel_Hex_Files, GoToSrecCatAndBack) {
  Exchange_Files_With("srec_cat", "bin -binary -o hex -intel -obs=32", "hex -intel -o bin -binary");
}

TEST(Intel_Hex_Files, GoToObjcopyAndBack) {
  Exchange_Files_With("objcopy", "-I binary -O ihex bin hex", "-I ihex -O binary hex bin");
}

}  // namespace
}  // namespace wrenbit
