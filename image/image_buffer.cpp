#include "image/image_buffer.h"

#include <cstddef>
#include <cstdint>
#include <numeric>

#include "core/state/state.h"
#include "image/hex_text.h"

namespace wrenbit {
namespace {

constexpr int kLeastMemSize = 4;      // One row of the grid.
constexpr int kGreatestMemSize = 23;  // The sum of so many bytes stays within ImageChecksum.
constexpr std::uint8_t kBlank = 0xFF;

}  // namespace

void Image_Create() {
  const bool usable = MemSize >= kLeastMemSize && MemSize <= kGreatestMemSize;
  ImageBuffer.assign(usable ? std::size_t{1} << MemSize : 0, kBlank);
}

bool Image_Usable() { return !ImageBuffer.empty(); }

std::string CheckSum_Text() {
  ImageChecksum = std::accumulate(ImageBuffer.begin(), ImageBuffer.end(), std::int32_t{0});
  return "CheckSum:" + Hex_Text(static_cast<std::uint32_t>(ImageChecksum), 4);
}

}  // namespace wrenbit
