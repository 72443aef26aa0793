#pragma once

#include "media/colortypes.h"

#include <QFlags>

class QColor;
class QPainter;
class QRect;

namespace Zorv {

enum class CellMark {
    Selected = 1,
    Focused = 2  ///< keys act on this cell
};
Q_DECLARE_FLAGS(CellMarks, CellMark)
Q_DECLARE_OPERATORS_FOR_FLAGS(CellMarks)

/// Paints colour cells aligned to device pixels: edges stay sharp and lines equally wide even at a
/// scale of 1.25. The destructor restores the painter.
class CellPainter
{
public:
    explicit CellPainter(QPainter* painter);
    ~CellPainter();
    CellPainter(const CellPainter&) = delete;
    CellPainter& operator=(const CellPainter&) = delete;

    /// A cell. Behind a colour that is not opaque, shows a chequerboard with squares of half the
    /// cell.
    void paintColor(const QRect& cell, RGBA color, CellMarks marks = {});

    /// A cell without a colour.
    void paintEmpty(const QRect& cell, CellMarks marks = {});

    /// A colour on a chequerboard with squares of this size.
    void paintWell(const QRect& well, RGBA color, int square);

    /// A chequerboard of white and one colour behind a picture, limited to `exposed`. All in device
    /// pixels from the corner of the widget.
    void paintChequer(const QRect& pixels, const QRect& exposed, int square, const QColor& color);

private:
    QRect devicePixels(const QRect& rect) const;
    void fillColor(const QRect& pixels, RGBA color, int square, const QRect& origin);
    void paintEdges(const QRect& pixels);
    void paintMarks(const QRect& pixels, CellMarks marks);
    void paintDashes(const QRect& pixels);

    QPainter* m_painter;
    double m_ratio;
    int m_line;
};

}  // namespace Zorv
