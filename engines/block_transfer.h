// What the block transfers of both families share: the block's size, the percentage in panel 3, the seconds
// in panel 1.
#pragma once

#include <cstdint>
#include <string>

namespace wrenbit {

// The first entry of CmbSize, as a power of two: 16 bytes.
inline constexpr std::int32_t kSmallestBlock = 4;

// The block's last chip address: 2^min(MemSize, AccessSize) - 1. A block size above the chip's is set to the
// chip's for good, in CmbSize and its stored setting.
std::int32_t Clamp_Block();

// address x 100 / last, rounded to the nearest whole number. last is odd, as the last address of a block is:
// there are no ties.
std::int32_t Percentage(std::int32_t address, std::int32_t last);

// Writes panel 3 only when the whole number changes; it starts at 0, which is therefore never written.
class Block_Progress {
 public:
  explicit Block_Progress(std::int32_t last_address) : last(last_address) {}
  void At(std::int32_t address);

 private:
  std::int32_t last;
  std::int32_t shown = 0;
};

// Takes the time since TransferStart and puts `text` + " (12sec)" into panel 1, whole seconds, rounded down.
void Tell_Duration(const std::string& text);

}  // namespace wrenbit
