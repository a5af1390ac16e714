// Any bytes as an Intel HEX file. The first one chooses the size of the image.
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

#include "core/state/state.h"
#include "fuzz/must_hold.h"
#include "image/image_buffer.h"
#include "image/intel_hex.h"

using namespace wrenbit;

namespace {

// As powers of two. Beyond 64 KiB addresses get an upper half; to save so much costs too much time here.
constexpr int kSizes[] = {4, 5, 6, 7, 8, 9, 10, 11, 17};
constexpr int kLargestSaved = 11;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  MemSize = kSizes[data[0] % std::size(kSizes)];
  Image_Create();
  Intel_Hex_Load(std::string_view(reinterpret_cast<const char*>(data) + 1, size - 1));
  Must_Hold(ImageBuffer.size() == std::size_t{1} << MemSize, "a file leaves the image its size");
  if (MemSize > kLargestSaved) return 0;

  const std::vector<std::uint8_t> loaded = ImageBuffer;
  const std::string saved = Intel_Hex_Text();
  Image_Create();
  Intel_Hex_Load(saved);
  Must_Hold(ImageBuffer == loaded, "what is saved loads as the same image");
  return 0;
}
