#include "shell/qt/drawing/pixel_lines.h"

#include <QTransform>
#include <algorithm>

namespace wrenbit {

void Draw_Edge(QPainter& painter, const QRectF& place, Qt::Edge edge, const QColor& colour) {
  const QTransform to_screen = painter.deviceTransform();
  const QRectF exact = to_screen.mapRect(place);
  QRect line(QPoint(qRound(exact.left()), qRound(exact.top())),
             QPoint(qRound(exact.right()) - 1, qRound(exact.bottom()) - 1));
  const int width = std::max(static_cast<int>(to_screen.m11()), 1);
  switch (edge) {
    case Qt::LeftEdge:
      line.setWidth(width);
      break;
    case Qt::TopEdge:
      line.setHeight(width);
      break;
    case Qt::RightEdge:
      line.setLeft(line.right() + 1 - width);
      break;
    case Qt::BottomEdge:
      line.setTop(line.bottom() + 1 - width);
      break;
  }
  painter.fillRect(to_screen.inverted().mapRect(QRectF(line)), colour);
}

void Draw_Frame(QPainter& painter, const QRectF& place, const QColor& colour) {
  for (const Qt::Edge edge : {Qt::LeftEdge, Qt::TopEdge, Qt::RightEdge, Qt::BottomEdge})
    Draw_Edge(painter, place, edge, colour);
}

}  // namespace wrenbit
