// Lines on whole pixels of the screen. At a scale of 1.25 or 1.5 the logical pixels are none: a line drawn in
// them is now wider, now thinner, and at the edge of a view it may fall outside what the view is shown of.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

namespace wrenbit {

// A line just inside one edge of the place, whose edges lie where the screen cuts a view of that place off.
// One logical pixel wide, rounded down: as wide as every other line at that scale.
void Draw_Edge(QPainter& painter, const QRectF& place, Qt::Edge edge, const QColor& colour);

// Along all four edges.
void Draw_Frame(QPainter& painter, const QRectF& place, const QColor& colour);

}  // namespace wrenbit
