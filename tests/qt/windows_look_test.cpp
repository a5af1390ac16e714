// What the windows owe to who looks at them, and to who has them read out.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QBrush>
#include <QFontDatabase>
#include <QImage>
#include <QPainter>
#include <QStyle>
#include <functional>
#include <initializer_list>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "core/state/app.h"
#include "shell/controls/windows.h"
#include "shell/qt/drawing/colours.h"
#include "shell/qt/drawing/fitted_text.h"
#include "shell/qt/drawing/look.h"
#include "shell/qt/views/form_view.h"

namespace wrenbit {
namespace {

// All that lies on the windows, with its view.
std::vector<std::pair<const Control*, QWidget*>> Views_Of_All_Windows() {
  std::vector<std::pair<const Control*, QWidget*>> all;
  for (QWidget* window : QApplication::topLevelWidgets())
    for (const Form* form : std::initializer_list<Form*>{&frmMain, &frmCom, &frmAbout, &frmSplash})
      for (const Control* control : form->Controls())
        if (auto* shown = dynamic_cast<Form_View*>(window); shown && shown->View_Of(*control))
          all.emplace_back(control, shown->View_Of(*control));
  return all;
}

// What a control draws around its text, in pixels.
QSize Trimmings(const Control& control) {
  if (dynamic_cast<const Frame*>(&control)) return {22, 0};
  if (dynamic_cast<const CheckBox*>(&control)) return {20, 0};
  if (dynamic_cast<const TextBox*>(&control)) return {6, 2};
  return {dynamic_cast<const CommandButton*>(&control) ? 6 : 0, 0};
}

void Expect_Ink_Only_In(const QRect& room, const QFont& font, const std::function<void(QPainter&)>& paint) {
  QImage picture(room.size() + QSize(40, 40), QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.setFont(font);
  paint(painter);
  // Faint edges of letters are no ink, and at its sides a letter may reach a pixel beyond its own width.
  painter.fillRect(room.adjusted(-1, 0, 1, 0), Qt::white);
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) ASSERT_GE(qGray(picture.pixel(x, y)), 160);
}

void Expect_Whole(const Control& control, const std::string& content, const QString& family) {
  SCOPED_TRACE(content + " in " + family.toStdString());
  const QString text = QString::fromStdString(content);
  QFont font = Font_For(control.Lettering);
  font.setFamilies({family});
  const QRect room(QPoint(20, 20), Pixels(control.At).size() - Trimmings(control));
  EXPECT_TRUE(Fit(text, font, room.size()).Whole);
  const auto side = dynamic_cast<const Label*>(&control) ? Qt::AlignTop : Qt::AlignVCenter;
  Expect_Ink_Only_In(room, font, [&](QPainter& painter) { Draw_Fitted(painter, room, side, text); });
}

TEST(Windows, NoTextOfTheWindowsIsCut) {
  frmMain.Lbl_PageSize.Set_Caption("Mem. Size: 131072 byte\r\nPage Size: 256 byte");
  frmMain.Lbl_Spec.Set_Caption(
      "VDD:1.7-5.5V Endurance:1M Density:131072x8 WriteSpeed:10ms ClockSpeed:1000kHz ");
  frmAbout.lblDescription.Set_Caption(App.FileDescription);
  frmAbout.lblDisclaimer.Set_Caption(std::string("ｻﾎﾟｰﾄﾍﾟｰｼﾞ : ") + kSupportPage);
  const QStringList families = QFontDatabase::families(QFontDatabase::Japanese);
  ASSERT_FALSE(families.isEmpty());
  for (const QString& family : families) {
    Expect_Whole(frmMain.Text_modify_asc, "gy", family);
    for (const auto& [control, view] : Views_Of_All_Windows())
      if (auto* captioned = dynamic_cast<const Captioned*>(control); captioned && control->At.Width > 0)
        Expect_Whole(*captioned, captioned->Caption(), family);
  }
}

TEST(Windows, LettersAreNarrowedBeforeTheyAreTakenAway) {
  const QFont font = Font_For({});
  const QString text = QStringLiteral("通信ができないとき変更してみてください。");
  const int width = QFontMetrics(font).horizontalAdvance(text);
  EXPECT_EQ(Fit(text, font, {width + 1, 13}).Letters, font);
  EXPECT_EQ(Fit(text, font, {width * 3 / 4, 31}).Letters, font) << "two lines";
  const Fitted_Text narrowed = Fit(text, font, {width * 3 / 4, 13});
  EXPECT_NE(narrowed.Letters, font);
  EXPECT_TRUE(narrowed.Whole);
  EXPECT_FALSE(Fit(text, font, {width / 2, 13}).Whole);
}

TEST(Windows, WhateverIsOnThemHasARoleAndAName) {
  int named = 0;
  for (const auto& [control, view] : Views_Of_All_Windows()) {
    SCOPED_TRACE(testing::Message() << control->At.Left << ',' << control->At.Top);
    const QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(view);
    EXPECT_NE(seen->role(), QAccessible::Client);
    const auto* label = dynamic_cast<const Label*>(control);
    if ((label && label->Caption().empty()) || dynamic_cast<const Line*>(control)) continue;
    const QString name = seen->text(QAccessible::Name);
    EXPECT_FALSE(name.isEmpty() || name.contains('&'));
    EXPECT_TRUE(!label || name.toStdString() == label->Caption()) << "and not the group's caption";
    ++named;
  }
  EXPECT_GT(named, 50);
}

TEST(Windows, EachCharacterOfARowTakesOneColumnWhateverTheFontDrawsForIt) {
  for (const QString& family : QFontDatabase::families(QFontDatabase::Japanese)) {
    SCOPED_TRACE(family.toStdString());
    QFont font = Font_For({.Face = Typeface::FixedPitch});
    font.setFamilies({family});
    const QRect columns(20, 20, static_cast<int>(16 * QFontMetricsF(font).horizontalAdvance('0')), 20);
    Expect_Ink_Only_In(columns, font, [&](QPainter& painter) {
      Draw_In_Columns(painter, columns.adjusted(0, 0, 20, 0), QString(16, QChar(0x7F)));
    });
  }
}

// At scales in between, whole logical pixels are none on the screen.
TEST(Windows, AllLinesStandAtEveryScale) {
  const std::set<const Control*> lined{&frmMain.Frame1,   &frmMain.Frame2,          &frmMain.Frame3,
                                       &frmMain.MSFGrid1, &frmMain.Text_modify_dec, &frmMain.ChkBin[7],
                                       &frmCom.Frame1};
  for (const auto& [control, view] : Views_Of_All_Windows())
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
      if (!lined.contains(control)) continue;
      QWidget* window = view->window();
      window->adjustSize();
      QImage picture(window->size() * scale, QImage::Format_RGB32);
      picture.setDevicePixelRatio(scale);
      window->render(&picture);
      const QPointF corner = QPointF(view->mapTo(window, QPoint())) * scale;
      const QRect edges(QPoint(qRound(corner.x()), qRound(corner.y())),
                        QPoint(qRound(corner.x() + view->width() * scale) - 1,
                               qRound(corner.y() + view->height() * scale) - 1));
      // Three quarters along, where no caption stands in the line.
      const int x = edges.left() + edges.width() * 3 / 4, y = edges.top() + edges.height() * 3 / 4;
      const QColor line = Line_Colour(view->palette());
      // A frame's upper line lies lower, behind its caption.
      const int top = dynamic_cast<const Frame*>(control) ? edges.bottom() : edges.top();
      for (const QPoint at : {QPoint(edges.left(), y), {edges.right(), y}, {x, edges.bottom()}, {x, top}})
        EXPECT_EQ(picture.pixelColor(at), line) << control->At.Left << " at " << scale;
    }
}

TEST(Windows, GreyedTextsCanBeReadInLightAndInDarkPalettes) {
  for (const auto& [letters, window, base] :
       {std::tuple{0x000000U, 0xEFEFEFU, 0xFFFFFFU}, {0xEEEEEEU, 0x303030U, 0x202020U}}) {
    const QBrush pen(letters), paper(window);
    QPalette palette(pen, paper, paper, paper, paper, pen, pen, QColor(base), paper);
    QApplication::style()->polish(palette);
    const auto grey = [&](QPalette::ColorRole role) { return palette.color(QPalette::Disabled, role); };
    for (const auto& [text, background] : {std::pair{QPalette::WindowText, QPalette::Window},
                                           {QPalette::Text, QPalette::Base},
                                           {QPalette::ButtonText, QPalette::Button},
                                           {QPalette::HighlightedText, QPalette::Highlight}})
      EXPECT_GE(Contrast(grey(text), grey(background)), 4.5) << text;
    EXPECT_GE(Contrast(grey(QPalette::WindowText), QColor(letters)), 2) << "plainly other than live ones";
  }
}

}  // namespace
}  // namespace wrenbit
