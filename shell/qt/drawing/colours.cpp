#include "shell/qt/drawing/colours.h"

#include <algorithm>
#include <cmath>

namespace wrenbit {
namespace {

// WCAG 2.1, "relative luminance" and "contrast ratio".
double Luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

}  // namespace

QColor Mixed(const QColor& from, const QColor& to, int percent) {
  const auto part = [=](int a, int b) { return a + (b - a) * percent / 100; };
  return QColor(part(from.red(), to.red()), part(from.green(), to.green()), part(from.blue(), to.blue()));
}

double Contrast(const QColor& one, const QColor& other) {
  const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
  return (light + 0.05) / (dark + 0.05);
}

QColor Line_Colour(const QPalette& palette) {
  return Mixed(palette.color(QPalette::Window), palette.color(QPalette::Active, QPalette::WindowText), 33);
}

}  // namespace wrenbit
