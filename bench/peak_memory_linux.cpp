#include "bench/peak_memory.h"

#include <fstream>
#include <string>

namespace bench {

std::uint64_t Peak_Memory() {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    std::uint64_t kibibytes = 0;
    if (word == "VmHWM:" && status >> kibibytes) return kibibytes * 1024;
  }
  return 0;
}

}  // namespace bench
