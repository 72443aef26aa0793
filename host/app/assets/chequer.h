#pragma once

class QPainter;
class QRectF;

namespace App {

/// The ground of squares that shows through what is transparent.
void drawChequer(QPainter* painter, const QRectF& rect);

}  // namespace App
