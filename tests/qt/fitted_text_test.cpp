// The texts of the windows in their rooms, with every Japanese font that is installed.
#include "fitted_text.h"

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QImage>
#include <QPainter>

#include "app.h"
#include "look.h"
#include "windows.h"

namespace wrenbit {
namespace {

constexpr int kMargin = 20;  // Pixels around the room.

// Faint edges of letters are no ink, and at its sides a letter may reach a pixel beyond its own width.
bool Ink_Outside(const QImage& picture, const QRect& room) {
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      if (!room.adjusted(-1, 0, 1, 0).contains(x, y) && qGray(picture.pixel(x, y)) < 160) return true;
  return false;
}

// What a control draws around its text, in pixels.
QSize Trimmings(const Control& control) {
  if (dynamic_cast<const Frame*>(&control)) return {22, 0};
  if (dynamic_cast<const CheckBox*>(&control)) return {20, 0};
  if (dynamic_cast<const TextBox*>(&control)) return {6, 2};
  return {dynamic_cast<const CommandButton*>(&control) ? 6 : 0, 0};
}

void Expect_Whole(const Control& control, const std::string& content, const QString& family) {
  const QString text = QString::fromStdString(content);
  QFont font = Font_For(control.Lettering);
  font.setFamilies({family});
  const QRect room(QPoint(kMargin, kMargin), Pixels(control.At).size() - Trimmings(control));
  EXPECT_TRUE(Fit(text, font, room.size()).Whole) << content << " in " << family.toStdString();

  QImage picture(room.size() + 2 * QSize(kMargin, kMargin), QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.setFont(font);
  Draw_Fitted(painter, room, dynamic_cast<const Label*>(&control) ? Qt::AlignTop : Qt::AlignVCenter, text);
  EXPECT_FALSE(Ink_Outside(picture, room)) << content << " in " << family.toStdString();
}

TEST(FittedText, NoTextOfTheWindowsIsCut) {
  frmMain.Lbl_PageSize.Set_Caption("Mem. Size: 131072 byte\r\nPage Size: 256 byte");
  frmMain.Lbl_Spec.Set_Caption(
      "VDD:1.7-5.5V Endurance:1M Density:131072x8 WriteSpeed:10ms ClockSpeed:1000kHz ");
  frmAbout.lblDescription.Set_Caption(App.FileDescription);
  frmAbout.lblDisclaimer.Set_Caption(std::string("ｻﾎﾟｰﾄﾍﾟｰｼﾞ : ") + kSupportPage);
  const QStringList families = QFontDatabase::families(QFontDatabase::Japanese);
  ASSERT_FALSE(families.isEmpty());
  for (const QString& family : families) {
    Expect_Whole(frmMain.Text_modify_asc, "gy", family);
    for (const Form* form : {static_cast<Form*>(&frmMain), static_cast<Form*>(&frmCom),
                             static_cast<Form*>(&frmAbout), static_cast<Form*>(&frmSplash)})
      for (const Control* control : form->Controls())
        if (auto* captioned = dynamic_cast<const Captioned*>(control); captioned && control->At.Width > 0)
          Expect_Whole(*captioned, captioned->Caption(), family);
  }
}

TEST(FittedText, LettersAreNarrowedBeforeTheyAreTakenAway) {
  const QFont font = Font_For({});
  const QString text = QStringLiteral("通信ができないとき変更してみてください。");
  const int width = QFontMetrics(font).horizontalAdvance(text);
  struct {
    QSize room;
    int lines;
    bool whole, narrowed;
  } const cases[] = {{{width + 1, 13}, 1, true, false},
                     {{width * 3 / 4, 13}, 1, true, true},
                     {{width * 3 / 4, 31}, 2, true, false},
                     {{width / 2, 13}, 1, false, true}};
  for (const auto& c : cases) {
    const Fitted_Text fitted = Fit(text, font, c.room);
    EXPECT_EQ(fitted.Lines.size(), c.lines) << c.room.width();
    EXPECT_EQ(fitted.Whole, c.whole) << c.room.width();
    EXPECT_EQ(fitted.Letters != font, c.narrowed) << c.room.width();
  }
}

}  // namespace
}  // namespace wrenbit
