#pragma once

#include <QRect>
#include <QVector>

namespace Operations {

/// The count of pixels that at least one of the rectangles covers. Right and bottom belong to a
/// rectangle, whichever way round its sides are named. Takes n log n.
qint64 coveredArea(const QVector<QRect>& rects);

/// The count of pixels that both lists cover.
qint64 sharedArea(const QVector<QRect>& one, const QVector<QRect>& other);

/// A rectangle with left before right and top before bottom.
QRect upright(const QRect& rect);

}  // namespace Operations
