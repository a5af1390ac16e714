#include "image_buffer.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "state.h"

namespace wrenbit {
namespace {

TEST(Image, IsMadeBlankInTheDevicesSize) {
  const struct {
    int mem_size;
    std::size_t bytes;
    std::int32_t sum;
    const char* text;
  } cases[] = {
      {4, 16, 0xFF0, "CheckSum:0FF0"},
      {7, 128, 0x7F80, "CheckSum:7F80"},
      {8, 256, 0xFF00, "CheckSum:FF00"},
      {9, 512, 0x1FE00, "CheckSum:FE00"},
      {16, 65536, 0xFF0000, "CheckSum:0000"},
      {17, 131072, 33423360, "CheckSum:0000"},
      {23, 8388608, 0x7F800000, "CheckSum:0000"},
  };
  for (const auto& [mem_size, bytes, sum, text] : cases) {
    MemSize = mem_size;
    ImageBuffer.assign(300, 0);
    Image_Create();
    EXPECT_TRUE(Image_Usable());
    ASSERT_EQ(ImageBuffer.size(), bytes);
    EXPECT_EQ(CheckSum_Text(), text);
    EXPECT_EQ(ImageChecksum, sum);
  }
}

TEST(Image, IsEmptyForASizeThatNoChipHas) {
  for (const int mem_size : {-2147483647 - 1, -1, 0, 3, 24, 64, 2147483647}) {
    MemSize = mem_size;
    ImageBuffer.assign(16, 0);
    Image_Create();
    EXPECT_FALSE(Image_Usable()) << mem_size;
    EXPECT_EQ(CheckSum_Text(), "CheckSum:0000");
  }
}

TEST(Image, ASmallSumIsPaddedToFourDigits) {
  ImageBuffer.assign(128, 0);
  ImageBuffer[127] = 5;
  EXPECT_EQ(CheckSum_Text(), "CheckSum:0005");
}

}  // namespace
}  // namespace wrenbit
