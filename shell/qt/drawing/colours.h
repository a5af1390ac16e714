// Colours that go with any palette.
#pragma once

#include <QColor>
#include <QPalette>

namespace wrenbit {

// So many percent of the way from one colour to the other.
QColor Mixed(const QColor& from, const QColor& to, int percent);

// From 1 to 21: how well the one can be read on the other, by WCAG 2.1.
double Contrast(const QColor& one, const QColor& other);

// For all lines and frames: plain in light and in dark palettes, and weaker than any letter.
QColor Line_Colour(const QPalette& palette);

}  // namespace wrenbit
