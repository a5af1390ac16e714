#include "shell/qt/drawing/pictures.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QStyleOption>
#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace wrenbit {
namespace {

// Every picture is drawn on a grid as many units high. Long straight edges lie on even units, so that they
// fall on whole pixels at 16, 32, 48 and 64 px. The light comes from above.
constexpr double kGrid = 32;
constexpr double kLine = 2;
constexpr double kCorner = 2;

constexpr QColor kInk(0x26, 0x2f, 0x3b);
constexpr QColor kPlastic(0x46, 0x53, 0x63);
constexpr QColor kIdleCell(0x74, 0x82, 0x93);
constexpr QColor kMetal(0xb4, 0xbe, 0xca);
constexpr QColor kPaper(0xff, 0xfd, 0xf5);
constexpr QColor kFolderLight(0xff, 0xda, 0x85);
constexpr QColor kFolder(0xf4, 0xb9, 0x42);
constexpr QColor kFolderShade(0xd4, 0x92, 0x24);
constexpr QColor kRead(0x1c, 0x78, 0xcf);
constexpr QColor kWrite(0xe2, 0x5a, 0x12);
constexpr QColor kFeather(0x9c, 0x62, 0x35);
constexpr QColor kFeatherShade(0x6b, 0x3e, 0x1e);
constexpr QColor kBreast(0xf3, 0xdd, 0xb8);

enum class Way { Out, In };

QPainterPath Box(double left, double top, double width, double height, double corner = 0) {
  QPainterPath path;
  path.addRoundedRect(left, top, width, height, corner, corner);
  return path;
}

QPainterPath Outline(std::initializer_list<QPointF> corners) {
  QPainterPath path;
  path.addPolygon(QPolygonF(QList<QPointF>(corners)));
  path.closeSubpath();
  return path;
}

QPainterPath Disc(QPointF centre, double across, double down) {
  QPainterPath path;
  path.addEllipse(centre, across, down);
  return path;
}

// The line runs along the path, half of it on either side.
void Draw_Thing(QPainter& painter, const QPainterPath& path, const QColor& fill) {
  painter.fillPath(path, fill);
  painter.strokePath(path, QPen(kInk, kLine, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void Draw_Chip(QPainter& painter, const QRectF& body, int legs) {
  constexpr double kLeg = 2, kPitch = 6, kLegLength = 4;
  const double first = body.center().x() - ((legs - 1) * kPitch + kLeg) / 2;
  for (int leg = 0; leg < legs; ++leg)
    painter.fillPath(Box(first + leg * kPitch, body.bottom(), kLeg, kLegLength), kPlastic);
  painter.fillPath(Box(body.left(), body.top(), body.width(), body.height(), kCorner), kInk);
  painter.fillPath(Box(body.left() + kCorner, body.top(), body.width() - 2 * kCorner, 1), kIdleCell);
}

void Draw_Cell(QPainter& painter, double left, double top, const QColor& fill, double side = 4) {
  painter.fillPath(Box(left, top, side, side), fill);
}

// Between the top of the grid and the chip, which it leaves or enters.
void Draw_Arrow(QPainter& painter, Way way, double shaft) {
  constexpr double kLength = 14;
  const double half = shaft / 2, head = half + 4;
  const QPainterPath arrow = Outline(
      {{0, 0}, {head, head}, {half, head}, {half, kLength}, {-half, kLength}, {-half, head}, {-head, head}});
  painter.save();
  painter.translate(16, way == Way::Out ? 0 : kLength);
  if (way == Way::In) painter.scale(1, -1);
  painter.fillPath(arrow, way == Way::Out ? kRead : kWrite);
  painter.restore();
}

void Draw_Transfer(QPainter& painter, Way way, bool block) {
  Draw_Chip(painter, {4, 14, 24, 14}, 4);
  for (const double top : {16, 22})
    for (const double left : {8, 14, 20})
      Draw_Cell(painter, left, top, block || (left == 14 && top == 16) ? kPaper : kIdleCell);
  Draw_Arrow(painter, way, block ? 8 : 4);
}

void Draw_Open(QPainter& painter) {
  Draw_Thing(painter, Outline({{3, 29}, {3, 9}, {5, 7}, {11, 7}, {13, 9}, {27, 9}, {27, 29}}), kFolderShade);
  Draw_Thing(painter, Outline({{7, 25}, {7, 3}, {17, 3}, {21, 7}, {21, 25}}), kPaper);
  Draw_Thing(painter, Outline({{3, 29}, {7, 15}, {31, 15}, {27, 29}}), kFolder);
  painter.fillPath(Outline({{7.7, 16}, {29.7, 16}, {29.4, 17}, {7.4, 17}}), kFolderLight);
}

void Draw_Save(QPainter& painter) {
  Draw_Thing(painter, Outline({{3, 3}, {25, 3}, {29, 7}, {29, 29}, {3, 29}}), kPlastic);
  painter.fillPath(Box(10, 4, 12, 8), kMetal);
  painter.fillPath(Box(16, 6, 4, 4), kInk);
  painter.fillPath(Box(8, 16, 16, 12), kPaper);
  painter.fillPath(Box(10, 20, 12, 2), kIdleCell);
  painter.fillPath(Box(10, 24, 12, 2), kIdleCell);
}

void Draw_Port(QPainter& painter) {
  Draw_Thing(painter, Outline({{9, 19}, {23, 19}, {21, 27}, {11, 27}}), kPlastic);
  painter.fillPath(Box(14, 28, 4, 4), kInk);
  Draw_Thing(painter, Outline({{1, 6}, {2, 5}, {30, 5}, {31, 6}, {28, 20}, {27, 21}, {5, 21}, {4, 20}}),
             kMetal);
  painter.fillPath(Outline({{4, 8}, {28, 8}, {26, 18}, {6, 18}}), kInk);
  for (const double x : {7, 11, 15, 19, 23}) painter.fillPath(Box(x, 10, 2, 2), kPaper);
  for (const double x : {9, 13, 17, 21}) painter.fillPath(Box(x, 14, 2, 2), kPaper);
}

// Stands on whatever has its top edge at 22. The fine marks would be mere dirt on a small picture.
void Draw_Wren(QPainter& painter, bool fine) {
  QPainterPath bird({26, 8});
  bird.cubicTo(26, 4.5, 23.5, 2.5, 20.5, 2.5);
  bird.cubicTo(16.5, 2.5, 15.5, 6, 14, 8);
  bird.cubicTo(12.5, 10, 11, 9.5, 10.2, 8);
  bird.lineTo(7, 1.5);
  bird.lineTo(2.5, 3.5);
  bird.cubicTo(3, 8.5, 3.5, 11, 5.5, 14);
  bird.cubicTo(7.5, 18, 11, 19.5, 15, 19.5);
  bird.cubicTo(21, 19.5, 25, 16.5, 25.5, 12);
  bird.cubicTo(25.6, 11, 26, 10, 26, 8);
  bird.closeSubpath();
  QPainterPath wing({6, 13.5});
  wing.cubicTo(10, 13, 12, 9.5, 16, 9.5);
  wing.cubicTo(19.5, 9.5, 20, 13, 18, 15);
  wing.cubicTo(15.5, 17.5, 10, 17, 6, 13.5);

  painter.fillPath(Box(12, 19, 2, 4), kInk);
  painter.fillPath(Box(18, 19, 2, 4), kInk);
  painter.fillPath(Outline({{25, 5.5}, {32, 7.5}, {25, 10}}), kInk);
  painter.save();
  painter.setClipPath(bird);
  painter.fillPath(bird, kFeather);
  painter.fillPath(Disc({23, 15.5}, 7, 7), kBreast);
  painter.fillPath(wing, kFeatherShade);
  if (fine) {
    painter.setPen(QPen(kFeatherShade, 0.8));
    for (const double y : {4.5, 6.5, 8.5}) painter.drawLine(QPointF(2, y + 1.5), QPointF(10, y - 1.5));
    painter.setPen(QPen(kFeather, 0.7, Qt::SolidLine, Qt::RoundCap));
    for (const double x : {10.5, 12.7, 14.9}) painter.drawLine(QPointF(x, 13), QPointF(x + 0.8, 15));
    painter.setPen(QPen(kBreast, 1, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(17.5, 5.7), QPointF(23.5, 4.9));
  }
  painter.restore();
  Draw_Thing(painter, bird, Qt::transparent);
  painter.fillPath(Disc({21.5, 7.3}, 1.4, 1.4), kInk);
  if (fine) painter.fillPath(Disc({21.9, 6.9}, 0.45, 0.45), kPaper);
}

void Draw_Program(QPainter& painter, bool fine) {
  Draw_Chip(painter, {2, 22, 28, 6}, 4);
  Draw_Wren(painter, fine);
}

// The wren sings what it reads.
void Draw_Logo(QPainter& painter, bool fine) {
  Draw_Chip(painter, {4, 20, 56, 8}, 9);
  for (const double left : {9, 21, 27, 45}) Draw_Cell(painter, left, 22, kIdleCell);
  for (const double left : {15, 33, 39, 51}) Draw_Cell(painter, left, 22, kPaper);
  Draw_Cell(painter, 41, 6, kRead, 2);
  Draw_Cell(painter, 45, 9, kFolder, 2.5);
  Draw_Cell(painter, 47.5, 4, kRead, 3);
  Draw_Cell(painter, 52, 9.5, kWrite, 3.5);
  Draw_Cell(painter, 55, 3, kRead);
  painter.translate(10, 0.2);
  painter.scale(0.9, 0.9);
  Draw_Wren(painter, fine);
}

void Draw(QPainter& painter, Picture picture, bool fine) {
  switch (picture) {
    case Picture::None:
      return;
    case Picture::Open:
      return Draw_Open(painter);
    case Picture::Save:
      return Draw_Save(painter);
    case Picture::Port:
      return Draw_Port(painter);
    case Picture::Byte_Read:
    case Picture::Block_Read:
      return Draw_Transfer(painter, Way::Out, picture == Picture::Block_Read);
    case Picture::Byte_Write:
    case Picture::Block_Write:
      return Draw_Transfer(painter, Way::In, picture == Picture::Block_Write);
    case Picture::Program:
      return Draw_Program(painter, fine);
    case Picture::Logo:
      return Draw_Logo(painter, fine);
  }
}

// Width by height.
double Aspect(Picture picture) { return picture == Picture::Logo ? 2 : 1; }

// The pictures' dark lines are lost on a dark ground: there they get a light edge, a pixel wide.
void Paint_On_Ground(QPainter& painter, const QRect& place, Picture picture) {
  constexpr QColor kEdge(0x9a, 0xa6, 0xb4);
  if (qGray(QApplication::palette().color(QPalette::Button).rgb()) < 0x80) {
    const double scale = painter.device()->devicePixelRatio();
    QPixmap shape(place.size() * scale);
    shape.setDevicePixelRatio(scale);
    shape.fill(Qt::transparent);
    QPainter cut(&shape);
    Paint_Picture(cut, QRectF(QPointF(), place.size()), picture);
    cut.setCompositionMode(QPainter::CompositionMode_SourceIn);
    cut.fillRect(QRectF(QPointF(), place.size()), kEdge);
    cut.end();
    for (const QPoint aside : {QPoint(-1, 0), QPoint(1, 0), QPoint(0, -1), QPoint(0, 1)})
      painter.drawPixmap(place.topLeft() + aside, shape);
  }
  Paint_Picture(painter, place, picture);
}

class Picture_Engine : public QIconEngine {
 public:
  explicit Picture_Engine(Picture shown) : picture(shown) {}

  void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State state) override {
    if (mode != QIcon::Disabled) return Paint_On_Ground(*painter, place, picture);
    painter->drawPixmap(place, pixmap(place.size() * painter->device()->devicePixelRatio(), mode, state));
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
    QPixmap drawn(size);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    Paint_On_Ground(painter, drawn.rect(), picture);
    painter.end();
    if (mode != QIcon::Disabled) return drawn;
    QStyleOption option;
    option.palette = QApplication::palette();
    return QApplication::style()->generatedIconPixmap(mode, drawn, &option);
  }

  // What the window system is given for a window's icon.
  QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
    QList<QSize> sizes;
    for (const int height : {16, 24, 32, 48, 64, 128, 256})
      sizes << QSize(static_cast<int>(height * Aspect(picture)), height);
    return sizes;
  }

  QIconEngine* clone() const override { return new Picture_Engine(picture); }

 private:
  const Picture picture;
};

}  // namespace

QIcon Icon_Of(Picture picture) {
  return picture == Picture::None ? QIcon() : QIcon(new Picture_Engine(picture));
}

void Paint_Picture(QPainter& painter, const QRectF& place, Picture picture) {
  const double height = std::min(place.height(), place.width() / Aspect(picture));
  const double unit = height / kGrid;
  const bool fine = unit * painter.device()->devicePixelRatio() >= 1.5;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(place.left() + std::floor((place.width() - height * Aspect(picture)) / 2),
                    place.top() + std::floor((place.height() - height) / 2));
  painter.scale(unit, unit);
  Draw(painter, picture, fine);
  painter.restore();
}

}  // namespace wrenbit
