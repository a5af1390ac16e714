// What a block transfer tells of its course: the percentage in panel 3, the seconds in panel 1.
#pragma once

#include <cstdint>
#include <string>

namespace wrenbit {

// address x 100 / last, rounded to the nearest whole number, ties to even. last is at least 1.
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
