// What was measured, line by line: printed as one table, and kept as JSON.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace bench {

struct Line {
  std::string Subject;
  double Measured = 0;  // Seconds or bytes, as Unit says.
  std::string Beside;   // What ran beside it; empty when there was nothing.
  double Reference = 0;
  std::string Unit;                 // "s" or "B".
  std::optional<double> Goal = {};  // Measured over Reference is to stay below it.

  double Ratio() const { return Measured / Reference; }
  bool Missed() const { return Goal && Ratio() > *Goal; }
};

class Report {
 public:
  void Begin(std::string heading);
  // Says it at once on the error stream, so that who waits sees it go on.
  void Add(Line line);

  // All of it.
  std::string Table() const;
  std::string Json(const std::string& machine) const;

 private:
  struct Section {
    std::string Heading;
    std::vector<Line> Lines;
  };
  std::vector<Section> sections;
};

}  // namespace bench
