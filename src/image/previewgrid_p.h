#pragma once

#include "zorv_export.h"

#include <QRect>
#include <QSize>

namespace Zorv {

/// Where pictures of one size stand in a window, in pixels of the screen.
///
/// Rows and columns are those that leave the most room to a picture. It is enlarged by a whole
/// number, or becomes smaller by one.
class ZORV_EXPORT PreviewGrid
{
public:
    PreviewGrid() = default;

    /// `label` is the room for the name below a picture, whose width is given where there is some
    /// to spare; `gap` stands between all.
    PreviewGrid(const QSize& window, const QSize& picture, int count, const QSize& label, int gap);

    int count() const { return m_count; }

    /// All empty where there is no room, or nothing to show.
    QRect picture(int index) const;
    QRect label(int index) const;

    /// Picture and label.
    QRect cell(int index) const;

    /// The cell below a place, -1 for none.
    int indexAt(const QPoint& place) const;

    /// Where a part of the picture is seen.
    QRect part(int index, const QRect& pixels) const;

private:
    double scaleFor(const QSize& window, const QSize& picture, int columns) const;

    int m_count = 0;
    int m_columns = 1;
    int m_label = 0;
    int m_gap = 0;
    int m_zoom = 1;     // pixels of the screen for one
    int m_divisor = 1;  // pixels for one of the screen
    QSize m_size;       // of a picture as it is shown
    int m_width = 0;    // of it, or of its name
};

}  // namespace Zorv
