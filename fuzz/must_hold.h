// What a fuzzer's target must find true whatever it was fed.
#pragma once

#include <cstdio>
#include <cstdlib>

inline void Must_Hold(bool condition, const char* what) {
  if (condition) return;
  std::fprintf(stderr, "violated: %s\n", what);
  std::abort();
}
