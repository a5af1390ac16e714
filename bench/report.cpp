#include "bench/report.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <iostream>
#include <utility>

#include "core/state/utf8_text.h"

namespace bench {
namespace {

struct Scale {
  double From;
  double Factor;
  const char* Unit;
};

// Three digits that count, in the unit that needs no zeros before them.
std::string Amount(double value, const std::string& unit) {
  static constexpr std::array<Scale, 4> kTimes{
      {{1, 1, "s"}, {1e-3, 1e3, "ms"}, {1e-6, 1e6, "µs"}, {0, 1e9, "ns"}}};
  static constexpr std::array<Scale, 3> kSizes{
      {{1 << 20, 1.0 / (1 << 20), "MiB"}, {1 << 10, 1.0 / (1 << 10), "KiB"}, {-INFINITY, 1, "B"}}};
  const auto shown = [&](const Scale& scale) {
    std::array<char, 64> text;
    const double number = value * scale.Factor;
    std::snprintf(text.data(), text.size(), "%.*f %s",
                  number < 10    ? 2
                  : number < 100 ? 1
                                 : 0,
                  number, scale.Unit);
    return std::string(text.data());
  };
  if (unit == "B") {
    for (const Scale& scale : kSizes)
      if (std::abs(value) >= scale.From) return shown(scale);
  }
  for (const Scale& scale : kTimes)
    if (value >= scale.From) return shown(scale);
  return {};
}

std::string Number(double value) {
  std::array<char, 32> text;
  std::snprintf(text.data(), text.size(), "%.*f", value < 0.1 ? 4 : value < 10 ? 3 : 1, value);
  return text.data();
}

// Filled up with blanks to so many characters (UTF-8, all of one width).
std::string Wide(const std::string& text, std::size_t width, bool right = false) {
  const std::size_t length = wrenbit::Characters(text);
  const std::string blanks(length < width ? width - length : 0, ' ');
  return right ? blanks + text : text + blanks;
}

std::string Row(const std::string& subject, const std::string& measured, const std::string& reference,
                const std::string& beside, const std::string& ratio, const std::string& goal,
                const std::string& remark) {
  std::string row = Wide(subject, 44) + Wide(measured, 10, true) + Wide(reference, 11, true) + "  " +
                    Wide(beside, 34) + Wide(ratio, 7, true) + Wide(goal, 8, true) + "  " + remark;
  row.erase(row.find_last_not_of(' ') + 1);
  return row + "\n";
}

std::string Row(const Line& line) {
  const bool compared = !line.Beside.empty();
  return Row("  " + line.Subject, Amount(line.Measured, line.Unit),
             compared ? Amount(line.Reference, line.Unit) : "", line.Beside,
             compared ? Number(line.Ratio()) : "", line.Goal ? Number(*line.Goal) : "",
             line.Missed() ? "MISSED" : "");
}

}  // namespace

void Report::Begin(std::string heading) { sections.push_back({std::move(heading), {}}); }

void Report::Add(Line line) {
  std::cerr << Row(line);
  sections.back().Lines.push_back(std::move(line));
}

std::string Report::Table() const {
  std::string table = Row("", "measured", "beside it", "", "ratio", "goal", "");
  for (const Section& section : sections) {
    table += section.Heading + "\n";
    for (const Line& line : section.Lines) table += Row(line);
  }
  return table;
}

std::string Report::Json(const std::string& machine) const {
  const auto text = [](const std::string& utf8) { return QString::fromStdString(utf8); };
  QJsonArray lines;
  for (const Section& section : sections)
    for (const Line& line : section.Lines) {
      QJsonObject object{{"section", text(section.Heading)},
                         {"subject", text(line.Subject)},
                         {"measured", line.Measured},
                         {"unit", text(line.Unit)}};
      if (!line.Beside.empty()) {
        object["beside"] = text(line.Beside);
        object["reference"] = line.Reference;
        object["ratio"] = line.Ratio();
      }
      if (line.Goal) {
        object["goal"] = *line.Goal;
        object["met"] = !line.Missed();
      }
      lines.append(object);
    }
  return QJsonDocument(QJsonObject{{"machine", text(machine)}, {"lines", lines}}).toJson().toStdString();
}

}  // namespace bench
