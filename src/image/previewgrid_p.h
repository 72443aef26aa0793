#pragma once

#include "zorv_export.h"

#include <QRect>
#include <QSize>

namespace Zorv {

/// Lays out pictures of one size in a window, in screen pixels.
///
/// It uses the number of columns that makes pictures largest. Pictures are scaled up or down by a
/// whole number.
class ZORV_EXPORT PreviewGrid
{
public:
    PreviewGrid() = default;

    /// `label` is the size of the name below a picture; its width is used where there is space.
    /// `gap` is the space between all cells.
    PreviewGrid(const QSize& window, const QSize& picture, int count, const QSize& label, int gap);

    int count() const { return m_count; }

    /// Both are empty if there is no space, or nothing to show.
    QRect picture(int index) const;
    QRect label(int index) const;

    /// Picture and label together.
    QRect cell(int index) const;

    /// The cell at a point, or -1.
    int indexAt(const QPoint& place) const;

    /// The screen rectangle of a part of the picture.
    QRect part(int index, const QRect& pixels) const;

private:
    double scaleFor(const QSize& window, const QSize& picture, int columns) const;

    int m_count = 0;
    int m_columns = 1;
    int m_label = 0;
    int m_gap = 0;
    int m_zoom = 1;     // screen pixels per picture pixel
    int m_divisor = 1;  // picture pixels per screen pixel
    QSize m_size;       // of a picture on the screen
    int m_width = 0;    // of a column: the picture or its name
};

}  // namespace Zorv
