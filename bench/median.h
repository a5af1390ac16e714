#pragma once

#include <algorithm>
#include <functional>
#include <vector>

namespace bench {

// Of at least one value.
inline double Median(std::vector<double> values) {
  std::ranges::sort(values);
  return values[values.size() / 2];
}

struct Medians {
  double First, Second;
};
// Of what two functions give, which are called in turns, so many times each.
inline Medians In_Turns(int times, const std::function<double()>& first,
                        const std::function<double()>& second) {
  std::vector<double> firsts, seconds;
  for (int i = 0; i < times; ++i) {
    firsts.push_back(first());
    seconds.push_back(second());
  }
  return {Median(firsts), Median(seconds)};
}

}  // namespace bench
