#pragma once

#include "media/colortypes.h"

#include <QFlags>

class QColor;
class QPainter;
class QRect;

namespace Zorv {

enum class CellMark {
    Selected = 1,
    Focused = 2  ///< the keys work on this cell
};
Q_DECLARE_FLAGS(CellMarks, CellMark)
Q_DECLARE_OPERATORS_FOR_FLAGS(CellMarks)

/// Paints cells of colours along the pixels of the screen: at a scale of 1.25, too, all edges are
/// sharp and all lines equally wide. The painter is as before when this object goes.
class CellPainter
{
public:
    explicit CellPainter(QPainter* painter);
    ~CellPainter();
    CellPainter(const CellPainter&) = delete;
    CellPainter& operator=(const CellPainter&) = delete;

    /// A cell; squares of half its size show through a colour that is not opaque.
    void paintColor(const QRect& cell, RGBA color, CellMarks marks = {});

    /// A cell that has no colour.
    void paintEmpty(const QRect& cell, CellMarks marks = {});

    /// A colour above squares of this size.
    void paintWell(const QRect& well, RGBA color, int square);

    /// Squares of white and a colour below a picture, as far as they are `exposed`; all in pixels
    /// of the screen, from the corner of the widget.
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
