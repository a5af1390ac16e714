// The memory of this process.
#pragma once

#include <cstdint>

namespace bench {

// Bytes that this process had resident at most since it began. 0 where the system does not tell.
std::uint64_t Peak_Memory();

}  // namespace bench
