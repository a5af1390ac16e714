#include "look.h"

#include <QFontDatabase>
#include <QStringList>
#include <algorithm>
#include <cmath>

namespace wrenbit {
namespace {

QString Family(bool fixed_pitch) {
  const QStringList wanted = fixed_pitch ? QStringList{"ＭＳ ゴシック", "MS Gothic", "IPAGothic"}
                                         : QStringList{"MS UI Gothic", "IPAPGothic"};
  const QStringList installed = QFontDatabase::families();
  for (const QString& family : wanted)
    if (installed.contains(family)) return family;

  const QStringList japanese = QFontDatabase::families(QFontDatabase::Japanese);
  const auto same_kind = std::find_if(japanese.begin(), japanese.end(), [=](const QString& family) {
    return !QFontDatabase::isPrivateFamily(family) && QFontDatabase::isFixedPitch(family) == fixed_pitch;
  });
  if (same_kind != japanese.end()) return *same_kind;
  return japanese.value(
      0, QFontDatabase::systemFont(fixed_pitch ? QFontDatabase::FixedFont : QFontDatabase::GeneralFont)
             .family());
}

}  // namespace

int Pixels(double twips) { return static_cast<int>(std::lround(twips / kTwipsPerPixel)); }

QRect Pixels(const Place& place) {
  return QRect(QPoint(Pixels(place.Left), Pixels(place.Top)),
               QPoint(Pixels(place.Left + place.Width) - 1, Pixels(place.Top + place.Height) - 1));
}

QFont Font_For(const Font& lettering) {
  static const QString fixed = Family(true);
  static const QString proportional = Family(false);
  QFont font(lettering.Face == Typeface::FixedPitch ? fixed : proportional);
  if (lettering.Face == Typeface::Display) {
    font.setFamilies({QStringLiteral("Arial Black"), QStringLiteral("Liberation Sans"),
                      QStringLiteral("DejaVu Sans"), proportional});
    font.setWeight(QFont::Black);
  }
  font.setPixelSize(static_cast<int>(std::lround(lettering.Points * 96 / 72)));
  if (lettering.Face == Typeface::FixedPitch) font.setStyleHint(QFont::Monospace);
  return font;
}

}  // namespace wrenbit
