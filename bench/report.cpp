#include "bench/report.h"

#include <QString>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <iostream>
#include <span>
#include <utility>

namespace bench {
namespace {

constexpr int kRounds = 9;
constexpr double kRoundTime = 0.02;  // Seconds.

void Take_Round(benchmark::State& state, const Line& line) {
  double work = 0;
  while (state.KeepRunning()) {
    const double once = line.Work();
    work += once;
    state.SetIterationTime(line.Unit == "seconds" ? once : 0);
  }
  state.counters[line.Unit] = {work, benchmark::Counter::kAvgIterations};
  if (!line.Reference) return;
  // Many calls go on for as long as those of the work, so that other programs disturb both alike.
  double reference = 0;
  int calls = 0;
  do {
    reference += line.Reference();
    ++calls;
  } while (state.iterations() > 1 && reference < work);
  state.counters["reference"] = reference / calls;
  state.SetLabel(line.Beside);
}

struct Scale {
  double Size;
  const char* Name;
};
constexpr Scale kTimes[] = {{1, "s"}, {1e-3, "ms"}, {1e-6, "µs"}, {1e-9, "ns"}};
constexpr Scale kSizes[] = {{1 << 20, "MiB"}, {1 << 10, "KiB"}, {1, "B"}};

// Three digits that count, in the unit that needs no zeros before them.
QString Amount(double value, const std::string& unit) {
  std::span<const Scale> scales = kTimes;
  if (unit == "bytes") scales = kSizes;
  while (scales.size() > 1 && std::abs(value) < scales.front().Size) scales = scales.subspan(1);
  const double shown = value / scales.front().Size;
  return QString::number(shown, 'f', shown < 10 ? 2 : shown < 100 ? 1 : 0) + ' ' + scales.front().Name;
}

QString Number(double value) { return QString::number(value, 'f', value < 0.1 ? 4 : value < 10 ? 3 : 1); }

struct Row {
  QString Subject, Measured, Reference, Beside, Ratio, Goal, Remark;
};

void Print(const Row& row) {
  QString line = row.Subject.leftJustified(44) + row.Measured.rightJustified(10) +
                 row.Reference.rightJustified(11) + "  " + row.Beside.leftJustified(34) +
                 row.Ratio.rightJustified(7) + row.Goal.rightJustified(8) + "  " + row.Remark;
  while (line.endsWith(' ')) line.chop(1);
  std::cout << line.toStdString() << std::endl;
}

}  // namespace

double Seconds(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

std::function<double()> Timed(std::function<void()> work, std::function<void()> settle) {
  return [work = std::move(work), settle = std::move(settle)] {
    const double seconds = Seconds(work);
    if (settle) settle();
    return seconds;
  };
}

Report::Report(const std::string& machine) {
  benchmark::AddCustomContext("machine", machine);
  json.SetOutputStream(&text);
  std::cout << machine << "\n\n";
  Print({{}, "measured", "beside it", {}, "ratio", "goal", {}});
}

void Report::Begin(const std::string& heading) {
  section = heading;
  std::cout << heading << std::endl;
}

Medians Report::Measure(const Line& line, int rounds) { return Run_Line(line, rounds, Calls::One); }

Medians Report::Measure_Small(const Line& line) { return Run_Line(line, kRounds, Calls::Many); }

Medians Report::Run_Line(const Line& line, int rounds, Calls calls) {
  benchmark::ClearRegisteredBenchmarks();
  auto& registered = *benchmark::RegisterBenchmark(
      (section + "/" + line.Subject).c_str(), [&line](benchmark::State& state) { Take_Round(state, line); });
  registered.UseManualTime()->Unit(benchmark::kSecond)->Repetitions(rounds)->DisplayAggregatesOnly();
  calls == Calls::One ? registered.Iterations(1) : registered.MinTime(kRoundTime);
  benchmark::RunSpecifiedBenchmarks(this);

  auto& counters = median.counters;
  Row row;
  row.Subject = "  " + QString::fromStdString(line.Subject);
  row.Measured = Amount(counters[line.Unit], line.Unit);
  if (line.Reference) {
    const double ratio = counters[line.Unit] / counters["reference"];
    row.Reference = Amount(counters["reference"], line.Unit);
    row.Beside = QString::fromStdString(line.Beside);
    row.Ratio = Number(ratio);
    counters["ratio"] = ratio;
    if (line.Goal) {
      row.Goal = Number(*line.Goal);
      row.Remark = ratio > *line.Goal ? "MISSED" : "";
      counters["goal"] = *line.Goal;
    }
  }
  Print(row);
  json.ReportRuns({median});
  return {counters[line.Unit], counters["reference"]};
}

bool Report::ReportContext(const Context& context) {
  return text.tellp() > 0 || json.ReportContext(context);  // Comes once a line.
}

void Report::ReportRuns(const std::vector<Run>& runs) {
  for (const Run& run : runs)
    if (run.aggregate_name == "median" || run.run_type == Run::RT_Iteration) median = run;
}

std::string Report::Json() {
  json.Finalize();
  return text.str();
}

}  // namespace bench
