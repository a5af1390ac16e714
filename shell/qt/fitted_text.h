// Texts in the rooms of the windows, which were cut for fonts whose lines are no higher than their letters:
// one em. A font that is wider, or asks for higher lines, has to do with the same room.
#pragma once

#include <QFont>
#include <QLabel>
#include <QProxyStyle>
#include <QStringList>

namespace wrenbit {

// A text as it goes into a room.
struct Fitted_Text {
  QFont Letters;  // Narrowed as far as the text needs it.
  QStringList Lines;
  bool Whole = true;  // False when the last line ends in dots.
};

// Breaks lines where the room is high enough for several, and narrows the letters before it takes any away.
Fitted_Text Fit(const QString& text, const QFont& font, const QSize& room);

// Fits the text and draws it in the painter's font and pen.
void Draw_Fitted(QPainter& painter, const QRect& room, Qt::Alignment alignment, const QString& text);

// Where the base line is when the letters' em box, whatever line height the font asks for, lies at the top,
// in the middle or at the bottom of the room. Moved as far as the line's ink would leave the room otherwise.
int Base_Line(const QString& line, const QFont& font, const QRect& room, Qt::Alignment alignment);

// Fits its text into itself, and tells the whole of it as a tip where it could not show it.
class Fitted_Label : public QLabel {
 public:
  using QLabel::QLabel;
  // The label without its margins at the sides and without what later siblings, other than labels, lie over.
  QRect Room() const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;
};

// Fusion, the only style that looks alike on every desktop, with the captions of buttons and boxes fitted.
class Fitting_Style : public QProxyStyle {
 public:
  Fitting_Style() : QProxyStyle(QStringLiteral("fusion")) {}
  void drawItemText(QPainter* painter, const QRect& room, int flags, const QPalette& palette, bool enabled,
                    const QString& text, QPalette::ColorRole role) const override;
};

}  // namespace wrenbit
