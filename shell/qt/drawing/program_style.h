// How the program's windows look on every desktop.
#pragma once

#include <QProxyStyle>

namespace wrenbit {

// Windows' own style there, elsewhere Fusion, the only one that looks alike on every desktop: with the
// captions of buttons and boxes fitted into their room, frames on whole pixels of the screen, check boxes
// whose edge is seen also while there is no mark in them, and greyed texts that can still be read.
class Program_Style : public QProxyStyle {
 public:
  Program_Style();
  using QProxyStyle::polish;
  // Greyed letters get a contrast of 4.5 to 1, the least for a text by WCAG 2.1, in any palette.
  void polish(QPalette& palette) override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* answer) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawItemText(QPainter* painter, const QRect& room, int flags, const QPalette& palette, bool enabled,
                    const QString& text, QPalette::ColorRole role) const override;
};

}  // namespace wrenbit
