// Small pieces of work, each beside another, timed by Google Benchmark in turns within one run.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "bench/report.h"

namespace bench {

struct Pair {
  std::string Subject;
  std::function<void()> Work;
  std::string Beside;
  std::function<void()> Reference;
  std::function<void()> Settle = {};  // Runs behind each, untimed.
  std::optional<double> Goal = {};    // Work over Reference is to stay below it.
};

// A line for each pair: medians of several rounds through all of them, in wall time. Gives what the works
// took, in seconds. Throws std::runtime_error when the window was closed meanwhile.
std::vector<double> Measure_Pairs(Report& report, const std::vector<Pair>& pairs);

}  // namespace bench
