// What the windows owe to who looks at them, and to who has them read out.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QBitmap>
#include <QFontDatabase>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <initializer_list>
#include <string>
#include <vector>

#include "app.h"
#include "fitted_text.h"
#include "form_view.h"
#include "look.h"
#include "pictures.h"
#include "windows.h"

namespace wrenbit {
namespace {

std::vector<const Control*> Controls_Of_All_Windows() {
  std::vector<const Control*> all;
  for (const Form* form : std::initializer_list<Form*>{&frmMain, &frmCom, &frmAbout, &frmSplash})
    all.insert(all.end(), form->Controls().begin(), form->Controls().end());
  return all;
}

// What a control draws around its text, in pixels.
QSize Trimmings(const Control& control) {
  if (dynamic_cast<const Frame*>(&control)) return {22, 0};
  if (dynamic_cast<const CheckBox*>(&control)) return {20, 0};
  if (dynamic_cast<const TextBox*>(&control)) return {6, 2};
  return {dynamic_cast<const CommandButton*>(&control) ? 6 : 0, 0};
}

void Expect_Whole(const Control& control, const std::string& content, const QString& family) {
  SCOPED_TRACE(content + " in " + family.toStdString());
  const QString text = QString::fromStdString(content);
  QFont font = Font_For(control.Lettering);
  font.setFamilies({family});
  const QRect room(QPoint(20, 20), Pixels(control.At).size() - Trimmings(control));
  EXPECT_TRUE(Fit(text, font, room.size()).Whole);

  QImage picture(room.size() + QSize(40, 40), QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.setFont(font);
  Draw_Fitted(painter, room, dynamic_cast<const Label*>(&control) ? Qt::AlignTop : Qt::AlignVCenter, text);
  // Faint edges of letters are no ink, and at its sides a letter may reach a pixel beyond its own width.
  painter.fillRect(room.adjusted(-1, 0, 1, 0), Qt::white);
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) ASSERT_GE(qGray(picture.pixel(x, y)), 160);
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
    for (const Control* control : Controls_Of_All_Windows())
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
  for (QWidget* window : QApplication::topLevelWidgets())
    for (const Control* control : Controls_Of_All_Windows()) {
      const auto* form_view = dynamic_cast<Form_View*>(window);
      QWidget* view = form_view ? form_view->View_Of(*control) : nullptr;
      if (!view) continue;
      const auto place = std::to_string(control->At.Left) + ',' + std::to_string(control->At.Top);
      const QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(view);
      EXPECT_NE(seen->role(), QAccessible::Client) << place;
      const auto* label = dynamic_cast<const Label*>(control);
      if ((label && label->Caption().empty()) || dynamic_cast<const Line*>(control)) continue;
      const QString name = seen->text(QAccessible::Name);
      EXPECT_FALSE(name.isEmpty() || name.contains('&')) << place;
      ++named;
    }
  EXPECT_GT(named, 50);
}

TEST(Windows, APictureFillsTheSquareOfItsButtonAndNoMore) {
  for (int which = static_cast<int>(Picture::Open); which <= static_cast<int>(Picture::Program); ++which)
    for (const int size : {16, 32, 64}) {
      QImage sheet(2 * size, 2 * size, QImage::Format_ARGB32);
      sheet.fill(Qt::transparent);
      const QRect square(size / 2, size / 2, size, size);
      QPainter painter(&sheet);
      Paint_Picture(painter, square, static_cast<Picture>(which));
      painter.end();
      const QRect painted = QRegion(QBitmap::fromImage(sheet.createAlphaMask())).boundingRect();
      EXPECT_TRUE(square.contains(painted)) << which << " at " << size;
      EXPECT_GE(std::min(painted.width(), painted.height()), size * 3 / 4) << which << " at " << size;
    }
}

}  // namespace
}  // namespace wrenbit
