#pragma once

#include <QRect>
#include <QVector>

namespace Operations {

/// The number of pixels that at least one of the rectangles covers. The right and bottom edges are
/// part of a rectangle; its sides may be swapped. Takes n log n.
qint64 coveredArea(const QVector<QRect>& rects);

/// The number of pixels that both lists cover.
qint64 sharedArea(const QVector<QRect>& one, const QVector<QRect>& other);

/// The rectangle with left before right and top before bottom.
QRect upright(const QRect& rect);

}  // namespace Operations
