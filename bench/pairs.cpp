#include "bench/pairs.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <map>

#include "bench/choice.h"
#include "bench/median.h"

namespace bench {
namespace {

constexpr int kRounds = 9;

// Gathers seconds per call, by the benchmark's name, and prints nothing.
class Gatherer : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs)
      if (run.run_type == Run::RT_Iteration)
        seconds[run.run_name.function_name].push_back(run.real_accumulated_time /
                                                      static_cast<double>(run.iterations));
  }
  double Of(const std::string& name) const { return Median(seconds.at(name)); }

 private:
  std::map<std::string, std::vector<double>> seconds;
};

void Register(const std::string& name, const std::function<void()>& work,
              const std::function<void()>& settle) {
  benchmark::RegisterBenchmark(name.c_str(), [work, settle](benchmark::State& state) {
    for (auto _ : state) {
      work();
      if (!settle) continue;
      state.PauseTiming();
      settle();
      state.ResumeTiming();
    }
  })->MinTime(0.02);
}

}  // namespace

std::vector<double> Measure_Pairs(Report& report, const std::vector<Pair>& pairs) {
  benchmark::ClearRegisteredBenchmarks();
  for (std::size_t i = 0; i < pairs.size(); ++i) {
    Register("work" + std::to_string(i), pairs[i].Work, pairs[i].Settle);
    Register("reference" + std::to_string(i), pairs[i].Reference, pairs[i].Settle);
  }
  Gatherer gathered;
  for (int round = 0; round < kRounds; ++round) benchmark::RunSpecifiedBenchmarks(&gathered, "all");
  Check_Window();
  std::vector<double> works;
  for (std::size_t i = 0; i < pairs.size(); ++i) {
    works.push_back(gathered.Of("work" + std::to_string(i)));
    report.Add({pairs[i].Subject, works.back(), pairs[i].Beside, gathered.Of("reference" + std::to_string(i)),
                "s", pairs[i].Goal});
  }
  return works;
}

}  // namespace bench
