#include "shell/qt/drawing/look.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QRawFont>
#include <QRegularExpression>
#include <QStringList>
#include <algorithm>
#include <cmath>

namespace wrenbit {
namespace {

// Judged by widths: fonts with half-width and full-width letters seldom say that their pitch is fixed.
bool Fixed_Pitch(const QString& family) {
  QFont font(family);
  font.setPixelSize(100);
  const QFontMetricsF metrics(font);
  const double half = metrics.horizontalAdvance('0');
  const auto is = [&](char16_t letter, double width) {
    return std::abs(metrics.horizontalAdvance(QChar(letter)) - width) < 2;
  };
  return is(u'i', half) && is(u'W', half) && is(u'あ', 2 * half);
}

bool Has_All_Scripts(const QString& family) {
  const QRawFont font = QRawFont::fromFont(QFont(family));
  return std::ranges::all_of(std::u16string_view(u"Wあｱ読"),
                             [&](char16_t letter) { return font.supportsCharacter(QChar(letter)); });
}

// How unlike the wanted typefaces, which are plain and Japanese, a family is by its name.
int Distance(const QString& family) {
  static const QRegularExpression elsewhere(QStringLiteral("\\b(KR|SC|TC|HK|TW|CN)\\b"));
  static const QRegularExpression serif(QStringLiteral("Mincho|明朝|Serif|Song|Ming|教科書|楷書|行書"));
  static const QRegularExpression sans(
      QStringLiteral("Gothic|ゴシック|Sans|Meiryo|メイリオ|Hiragino Kaku|ヒラギノ角"));
  return (family.contains(elsewhere) ? 4 : 0) + (family.contains(serif) ? 2 : 0) +
         (family.contains(sans) ? 0 : 1);
}

QString Family(bool fixed_pitch) {
  const QStringList wanted = fixed_pitch ? QStringList{"ＭＳ ゴシック", "MS Gothic", "IPAGothic"}
                                         : QStringList{"MS UI Gothic", "IPAPGothic"};
  for (const QString& family : wanted)
    if (QFontDatabase::hasFamily(family)) return family;

  QStringList japanese = QFontDatabase::families(QFontDatabase::Japanese);
  japanese.removeIf(QFontDatabase::isPrivateFamily);
  std::ranges::stable_sort(japanese, {}, Distance);
  const auto same_kind = std::ranges::find_if(japanese, [=](const QString& family) {
    return Has_All_Scripts(family) && Fixed_Pitch(family) == fixed_pitch;
  });
  if (same_kind != japanese.end()) return *same_kind;
  return japanese.value(
      0, QFontDatabase::systemFont(fixed_pitch ? QFontDatabase::FixedFont : QFontDatabase::GeneralFont)
             .family());
}

// The heaviest weight in which the family is installed; 0 when it is not.
int Heaviest(const QString& family) {
  int heaviest = 0;
  for (const QString& style : QFontDatabase::styles(family))
    heaviest = std::max(heaviest, QFontDatabase::weight(family, style));
  return heaviest;
}

QFont Display_Font(const QString& otherwise) {
  for (const char* family : {"Arial Black", "DejaVu Sans", "Liberation Sans", "Noto Sans", "Arial",
                             "Helvetica", "Noto Sans CJK JP"})
    if (const int weight = Heaviest(family); weight >= QFont::Bold) return QFont(family, -1, weight);
  return QFont(otherwise, -1, QFont::Bold);
}

}  // namespace

QString Text_Of(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

Qt::Alignment Side(Alignment alignment) {
  return alignment == Alignment::Left     ? Qt::AlignLeft
         : alignment == Alignment::Centre ? Qt::AlignHCenter
                                          : Qt::AlignRight;
}

int Pixels(double twips) { return static_cast<int>(std::lround(twips / kTwipsPerPixel)); }

QRect Pixels(const Place& place) {
  return QRect(QPoint(Pixels(place.Left), Pixels(place.Top)),
               QPoint(Pixels(place.Left + place.Width) - 1, Pixels(place.Top + place.Height) - 1));
}

QFont Font_For(const Font& lettering) {
  static const QString fixed = Family(true);
  static const QString proportional = Family(false);
  static const QFont display = Display_Font(proportional);
  QFont font = lettering.Face == Typeface::Display      ? display
               : lettering.Face == Typeface::FixedPitch ? QFont(fixed)
                                                        : QFont(proportional);
  font.setPixelSize(static_cast<int>(std::lround(lettering.Points * 96 / 72)));
  if (lettering.Face == Typeface::FixedPitch) font.setStyleHint(QFont::Monospace);
  // Hinted, this family's digits end a pixel above the base line and its full stop a pixel below: a comma.
  if (font.family() == QStringLiteral("IPAGothic")) font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

}  // namespace wrenbit
