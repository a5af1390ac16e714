// What is measured, line by line: a table on the standard output as it comes, and the same as JSON.
#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace bench {

// What the work takes, in seconds, by a clock that no setting of the time moves.
double Seconds(const std::function<void()>& work);
// The same, to be measured. What settles runs behind the work, untimed.
std::function<double()> Timed(std::function<void()> work, std::function<void()> settle = {});

struct Line {
  std::string Subject;
  std::function<double()> Work;            // Done once; gives what it took.
  std::string Beside = {};                 // Says what Reference is; empty when there is none.
  std::function<double()> Reference = {};  // Like Work.
  std::optional<double> Goal = {};         // Work over Reference is to stay below it.
  std::string Unit = "seconds";            // Of Work and Reference: this, or "bytes".
};

struct Medians {
  double Work = 0, Reference = 0;
};

// Google Benchmark calls, repeats, takes the medians and writes the JSON. It does not compare: each of its
// benchmarks is a line, a round of the work and then one of the reference, and the ratio is taken here.
class Report : private benchmark::BenchmarkReporter {
 public:
  // The machine that all is measured on, in one line.
  explicit Report(const std::string& machine);

  void Begin(const std::string& heading);
  // So many rounds, each a call of the work and one of the reference. What these throw comes through.
  Medians Measure(const Line& line, int rounds = 1);
  // For what takes micro- or milliseconds: rounds of as many calls of each as take 20 ms.
  Medians Measure_Small(const Line& line);

  // All of it, each line with its medians, its ratio and its goal. Asked for once, at the end.
  std::string Json();

 private:
  enum class Calls { One, Many };
  Medians Run_Line(const Line& line, int rounds, Calls calls);

  bool ReportContext(const Context& context) override;
  void ReportRuns(const std::vector<Run>& runs) override;

  std::string section;
  Run median;  // Of the line in hand.
  std::ostringstream text;
  benchmark::JSONReporter json;
};

}  // namespace bench
