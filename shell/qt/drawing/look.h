// How the twips, points and lettering of the controls come to the screen. Sizes are logical pixels at 96 dpi,
// whatever the screen's own resolution, so that every text keeps its room; a high-DPI screen scales the
// whole.
#pragma once

#include <QFont>
#include <QRect>
#include <QString>
#include <string_view>

#include "shell/controls/control.h"

namespace wrenbit {

inline constexpr double kTwipsPerPixel = 15;

QString Text_Of(std::string_view utf8);
Qt::Alignment Side(Alignment alignment);

int Pixels(double twips);
// Both edges are rounded, so that what touches in twips touches on the screen.
QRect Pixels(const Place& place);

// The typeface's own font where it is installed, else a relative of it that is: a Japanese one of the same
// kind, or a heavy one for display.
QFont Font_For(const Font& lettering);

}  // namespace wrenbit
