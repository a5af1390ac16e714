// The program's pictures, drawn in code so that they are sharp at every size and scale.
#pragma once

#include <QIcon>

#include "shell/controls/picture.h"

class QPainter;
class QRectF;

namespace wrenbit {

// Drawn afresh for each size and device pixel ratio, greyed while disabled. A null icon for None.
QIcon Icon_Of(Picture picture);

// Draws the picture as large as the rectangle allows, centred, in its own proportions. Nothing for None.
void Paint_Picture(QPainter& painter, const QRectF& place, Picture picture);

}  // namespace wrenbit
