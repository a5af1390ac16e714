// What every picture owes to the button that shows it.
#include "pictures.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

namespace wrenbit {
namespace {

class Pictures : public testing::TestWithParam<int> {};

TEST_P(Pictures, FillTheirSquareAndNoMore) {
  const int size = GetParam(), margin = size / 2;
  for (const Picture picture :
       {Picture::Open, Picture::Save, Picture::Port, Picture::Byte_Read, Picture::Byte_Write,
        Picture::Block_Read, Picture::Block_Write, Picture::Program}) {
    SCOPED_TRACE(static_cast<int>(picture));
    QImage sheet(2 * size, 2 * size, QImage::Format_ARGB32);
    sheet.fill(Qt::transparent);
    QPainter painter(&sheet);
    Paint_Picture(painter, QRectF(margin, margin, size, size), picture);
    painter.end();
    QRect painted;
    for (int y = 0; y < sheet.height(); ++y)
      for (int x = 0; x < sheet.width(); ++x)
        if (qAlpha(sheet.pixel(x, y))) painted |= QRect(x, y, 1, 1);
    EXPECT_TRUE(QRect(margin, margin, size, size).contains(painted));
    EXPECT_GE(painted.width(), size * 3 / 4);
    EXPECT_GE(painted.height(), size * 3 / 4);
  }
}

INSTANTIATE_TEST_SUITE_P(Sizes, Pictures, testing::Values(16, 32, 64));

}  // namespace
}  // namespace wrenbit
