#include "shell/qt/drawing/fitted_text.h"

#include <QEvent>
#include <QFontInfo>
#include <QPainter>
#include <QPainterPath>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

namespace wrenbit {
namespace {

constexpr int kStretches[] = {100, 94, 88, 82, 76, 70, 64};  // Percent. Narrower letters are hard to read.
// In em, from the base line: the top of the em box in Japanese fonts, and what no font's ink goes beyond.
constexpr double kEmAscent = 0.88;
constexpr double kInkAscent = 0.9;
constexpr double kInkDescent = 0.25;
constexpr int kGap = 3;                // Pixels between a text and what stands at its right.
constexpr double kWidestPitch = 1.25;  // From line to line, in em.

int Em(const QFont& font) { return QFontInfo(font).pixelSize(); }

QFont Narrowed(QFont font, int percent) {
  if (percent != 100) font.setStretch(percent);
  return font;
}

QStringList Broken(QString text, const QFont& font, int width) {
  text.remove('\r').replace('\n', QChar::LineSeparator);
  QTextLayout layout(text, font);
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(option);
  QStringList lines;
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(width);
    lines += text.mid(line.textStart(), line.textLength()).remove(QChar::LineSeparator);
  }
  layout.endLayout();
  return lines;
}

}  // namespace

QFont Widest_That_Fits(const QFont& font, int room, const std::function<int(const QFont&)>& width) {
  for (const int percent : kStretches)
    if (const QFont letters = Narrowed(font, percent); width(letters) <= room) return letters;
  return Narrowed(font, *std::rbegin(kStretches));
}

Fitted_Text Fit(const QString& text, const QFont& font, const QSize& room) {
  if (!text.contains('\n') && QFontMetrics(font).horizontalAdvance(text) <= room.width())
    return {font, {text}};
  const int rows = std::max(room.height() / Em(font), 1);
  Fitted_Text fitted;
  for (const int percent : kStretches) {
    fitted.Letters = Narrowed(font, percent);
    fitted.Lines = Broken(text, fitted.Letters, room.width());
    if (fitted.Lines.size() <= rows) return fitted;
  }
  const QString rest = fitted.Lines.mid(rows - 1).join(' ');
  const QString shown = QFontMetrics(fitted.Letters).elidedText(rest, Qt::ElideRight, room.width());
  fitted.Lines = fitted.Lines.mid(0, rows - 1) << shown;
  fitted.Whole = shown == rest;
  return fitted;
}

int Base_Line(const QString& line, const QFont& font, const QRect& room, Qt::Alignment alignment) {
  const int em = Em(font);
  const int spare = room.height() - em;
  const double top = alignment & Qt::AlignVCenter ? spare / 2.0 : alignment & Qt::AlignBottom ? spare : 0;
  const double ascent = std::min(QFontMetricsF(font).ascent(), kEmAscent * em);
  const int wanted = room.top() + static_cast<int>(std::lround(top + ascent));
  const int end = room.top() + room.height();
  if (wanted - room.top() >= kInkAscent * em && end - wanted >= kInkDescent * em) return wanted;
  // The outlines, for the font's metrics add a pixel at each edge. Hinting only ever raises the upper one.
  QPainterPath outlines;
  outlines.addText(0, 0, font, line);
  const QRectF ink = outlines.boundingRect();
  const int highest = room.top() - static_cast<int>(std::floor(ink.top()));
  const int lowest = end - static_cast<int>(std::lround(ink.bottom()));
  return highest <= lowest ? std::clamp(wanted, highest, lowest) : (highest + lowest) / 2;
}

void Draw_Fitted(QPainter& painter, const QRect& room, Qt::Alignment alignment, const QString& text) {
  const QFont font = painter.font();
  const Fitted_Text fitted = Fit(text, font, room.size());
  const int lines = static_cast<int>(fitted.Lines.size());
  const double pitch = std::min(1.0 * room.height() / std::max(lines, 1), kWidestPitch * Em(font));
  painter.setFont(fitted.Letters);
  for (int i = 0; i < lines; ++i) {
    const QString& line = fitted.Lines[i];
    const QRect place =
        room.adjusted(0, static_cast<int>(i * pitch), 0, -static_cast<int>((lines - 1 - i) * pitch));
    const double spare = room.width() - QFontMetricsF(fitted.Letters).horizontalAdvance(line);
    const double left = alignment & Qt::AlignHCenter ? spare / 2 : alignment & Qt::AlignRight ? spare : 0;
    painter.drawText(QPointF(room.left() + left, Base_Line(line, fitted.Letters, place, alignment)), line);
  }
  painter.setFont(font);
}

void Draw_In_Columns(QPainter& painter, const QRect& room, const QString& text) {
  constexpr QChar kDelete(0x7F);  // Fonts draw nothing for it, or a box of any width.
  if (!text.contains(kDelete)) return Draw_Fitted(painter, room, Qt::AlignVCenter, text);
  const QFontMetricsF metrics(painter.font());
  const double column = metrics.horizontalAdvance('0');
  const int base_line = Base_Line(text, painter.font(), room, Qt::AlignVCenter);
  for (qsizetype i = 0; i < text.size(); ++i) {
    const double width = metrics.horizontalAdvance(text[i]);
    painter.save();
    painter.translate(room.left() + static_cast<double>(i) * column, base_line);
    if (width > column) painter.scale(column / width, 1);
    painter.drawText(QPointF(), text[i]);
    painter.restore();
  }
}

QRect Fitted_Label::Room() const {
  QRect room = contentsRect().adjusted(margin(), 0, -margin(), 0);
  const QObjectList siblings = parent()->children();
  for (auto above = std::find(siblings.begin(), siblings.end(), this); above != siblings.end(); ++above) {
    const auto* widget = qobject_cast<const QWidget*>(*above);
    if (!widget || widget->isHidden() || qobject_cast<const QLabel*>(widget)) continue;
    const QRect covered = widget->geometry().translated(-pos()) & room;
    if (covered.isEmpty()) continue;
    if (covered.left() > room.left())
      room.setRight(covered.left() - kGap);
    else if (covered.top() > room.top())
      room.setBottom(covered.top() - 1);
  }
  return room;
}

void Fitted_Label::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  drawFrame(&painter);
  Draw_Fitted(painter, Room(), alignment(), text());
}

bool Fitted_Label::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip)
    setToolTip(Fit(text(), font(), Room().size()).Whole ? QString() : text());
  return QLabel::event(event);
}

}  // namespace wrenbit
