// What a program said to a port and how much it was answered.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace bench {

struct Turn {
  std::vector<std::uint8_t> Said;  // In one write.
  std::size_t Answered = 0;        // Bytes that were taken, or thrown away, before the next turn.
};
using Conversation = std::vector<Turn>;

}  // namespace bench
