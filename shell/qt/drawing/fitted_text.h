// Texts in the rooms of the windows, which were cut for fonts whose lines are no higher than their letters:
// one em. A font that is wider, or asks for higher lines, has to do with the same room.
#pragma once

#include <QFont>
#include <QLabel>
#include <QStringList>
#include <functional>

namespace wrenbit {

// A text as it goes into a room.
struct Fitted_Text {
  QFont Letters;  // Narrowed as far as the text needs it.
  QStringList Lines;
  bool Whole = true;  // False when the last line ends in dots.
};

// Breaks lines where the room is high enough for several, and narrows the letters before it takes any away.
Fitted_Text Fit(const QString& text, const QFont& font, const QSize& room);

// The widest letters with which a text fits into so many pixels, else the narrowest. `width` measures it.
QFont Widest_That_Fits(const QFont& font, int room, const std::function<int(const QFont&)>& width);

// Fits the text and draws it in the painter's font and pen.
void Draw_Fitted(QPainter& painter, const QRect& room, Qt::Alignment alignment, const QString& text);

// The same for characters that stand under one another from text to text, each in a column as wide as a
// digit: one that the font draws wider is pressed into its column.
void Draw_In_Columns(QPainter& painter, const QRect& room, const QString& text);

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

}  // namespace wrenbit
