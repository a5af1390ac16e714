// Two runs of bytes, compared by where they part.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace wrenbit {

inline testing::AssertionResult Same_Bytes(const std::vector<std::uint8_t>& got,
                                           const std::vector<std::uint8_t>& wanted) {
  if (got == wanted) return testing::AssertionSuccess();
  const auto parted = static_cast<std::size_t>(std::ranges::mismatch(got, wanted).in1 - got.begin());
  const std::size_t from = parted - std::min<std::size_t>(parted, 4);
  const auto some = [from](std::span<const std::uint8_t> bytes) {
    bytes = bytes.subspan(from).first(std::min<std::size_t>(bytes.size() - from, 12));
    return testing::PrintToString(std::vector(bytes.begin(), bytes.end()));
  };
  return testing::AssertionFailure() << got.size() << " bytes for " << wanted.size() << ", parted at "
                                     << parted << "; from " << from << " on:\n  got    " << some(got)
                                     << "\n  wanted " << some(wanted);
}

}  // namespace wrenbit
