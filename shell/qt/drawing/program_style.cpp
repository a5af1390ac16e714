#include "shell/qt/drawing/program_style.h"

#include <QPainter>
#include <QPolygonF>
#include <QStyleOption>
#include <algorithm>

#include "shell/qt/drawing/colours.h"
#include "shell/qt/drawing/fitted_text.h"
#include "shell/qt/drawing/pixel_lines.h"

namespace wrenbit {
namespace {

constexpr double kLeastContrast = 4.5;
constexpr int kButtonLight = 145;  // Percent of a dark button's colour, where Fusion's is lightest.

// As near to the background as can still be read on it, and on what the style may make of it.
QColor Greyed(const QColor& letters, const QColor& background, int lighter = 100) {
  for (int percent = 60; percent > 0; --percent)
    if (const QColor grey = Mixed(letters, background, percent);
        std::min(Contrast(grey, background), Contrast(grey, background.lighter(lighter))) >= kLeastContrast)
      return grey;
  return letters;
}

}  // namespace

void Program_Style::polish(QPalette& palette) {
  QProxyStyle::polish(palette);
  const auto live = [&](QPalette::ColorRole role) { return palette.color(QPalette::Active, role); };
  const QColor highlight = Mixed(live(QPalette::Window), live(QPalette::WindowText), 15);
  palette.setColor(QPalette::Disabled, QPalette::Highlight, highlight);
  palette.setColor(QPalette::Disabled, QPalette::HighlightedText,
                   Greyed(live(QPalette::WindowText), highlight));
  // Texts lie on the window or on the base, of which the window's colour is the nearer one to theirs.
  const auto set_grey = [&](QPalette::ColorRole letters, QPalette::ColorRole background, int lighter = 100) {
    palette.setColor(QPalette::Disabled, letters, Greyed(live(letters), live(background), lighter));
  };
  set_grey(QPalette::WindowText, QPalette::Window);
  set_grey(QPalette::Text, QPalette::Window);
  set_grey(QPalette::ButtonText, QPalette::Button, kButtonLight);
}

int Program_Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                             QStyleHintReturn* answer) const {
  // A list drops down below its box, with a scroll bar, in place of covering the screen.
  if (hint == SH_ComboBox_Popup) return 0;
  return QProxyStyle::styleHint(hint, option, widget, answer);
}

void Program_Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                  const QWidget* widget) const {
  if (element != PE_IndicatorCheckBox) return QProxyStyle::drawPrimitive(element, option, painter, widget);
  const QRectF box = option->rect;
  const QPalette& palette = option->palette;
  painter->fillRect(box, palette.color(option->state & State_Enabled ? QPalette::Base : QPalette::Window));
  const bool focus = option->state & State_HasFocus;
  Draw_Frame(*painter, box, focus ? palette.color(QPalette::Highlight) : Line_Colour(palette));
  if (!(option->state & State_On)) return;
  const auto at = [&](double x, double y) {
    return box.topLeft() + QPointF(x * box.width(), y * box.height());
  };
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(QPen(palette.color(QPalette::Text), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter->drawPolyline(QPolygonF({at(0.25, 0.5), at(0.43, 0.7), at(0.75, 0.28)}));
  painter->restore();
}

QSize Program_Style::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                      const QWidget* widget) const {
  QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
  const auto* entry = qstyleoption_cast<const QStyleOptionViewItem*>(option);
  // Some Japanese fonts' lines are no higher than their letters.
  if (type == CT_ItemViewItem && entry)
    size.setHeight(std::max(size.height(), QFontInfo(entry->font).pixelSize() * 5 / 3));
  return size;
}

void Program_Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
  if (element == CE_MenuBarItem || element == CE_MenuBarEmptyArea) {
    // Without the style's line below, which has gaps; the window has a rule of its own there.
    painter->save();
    painter->setClipRect(option->rect.adjusted(0, 0, 0, -1), Qt::IntersectClip);
    QProxyStyle::drawControl(element, option, painter, widget);
    painter->restore();
    return;
  }
  const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
  if (element != CE_ShapedFrame || !frame ||
      (frame->frameShape != QFrame::Panel && frame->frameShape != QFrame::StyledPanel))
    return QProxyStyle::drawControl(element, option, painter, widget);
  Draw_Frame(*painter, frame->rect, Line_Colour(frame->palette));
}

void Program_Style::drawItemText(QPainter* painter, const QRect& room, int flags, const QPalette& palette,
                                 bool enabled, const QString& text, QPalette::ColorRole role) const {
  if (flags & Qt::TextWordWrap || text.contains('\n'))
    return QProxyStyle::drawItemText(painter, room, flags, palette, enabled, text, role);
  const QFont font = painter->font();
  const auto width = [&](const QFont& letters) {
    return QFontMetrics(letters).size(flags | Qt::TextSingleLine, text).width();
  };
  const QFont letters = Widest_That_Fits(font, room.width(), width);
  const QFontMetrics metrics(letters);
  const int base_line = Base_Line(text, letters, room, Qt::Alignment(flags & Qt::AlignVertical_Mask));
  const bool fits = width(letters) <= room.width();
  painter->setFont(letters);
  QProxyStyle::drawItemText(
      painter, QRect(room.left(), base_line - metrics.ascent(), room.width(), metrics.height()),
      (flags & ~int{Qt::AlignVertical_Mask}) | Qt::AlignTop | Qt::TextSingleLine | Qt::TextDontClip, palette,
      enabled, fits ? text : metrics.elidedText(text, Qt::ElideRight, room.width(), flags), role);
  painter->setFont(font);
}

}  // namespace wrenbit
