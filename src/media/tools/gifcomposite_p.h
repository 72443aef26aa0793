#pragma once

#include "media/tools/giftable_p.h"

#include <QRect>

namespace Zorv {

/// The content of the canvas at one time: the colour numbers of the pixels in a rectangle, and
/// nothing outside of it.
struct GIFComposite
{
    QRect rect;
    QVector<GIFColorNumber> pixels;

    GIFColorNumber* line(int y) { return pixels.data() + qptrdiff(y - rect.top()) * rect.width(); }
    const GIFColorNumber* line(int y) const
    {
        return pixels.constData() + qptrdiff(y - rect.top()) * rect.width();
    }

    /// A copy with a rectangle cleared.
    GIFComposite cleared(const QRect& part) const;
};

/// The rows of an area of the canvas, even where the composite does not cover it.
class GIFRows
{
public:
    GIFRows(const GIFComposite& composite, const QRect& area);

    /// The pointer is valid until the next call.
    const GIFColorNumber* row(int y)
    {
        const bool covered = y >= m_covered.top() && y <= m_covered.bottom();
        return covered && m_whole ? m_composite.line(y) + m_first : assembled(y, covered);
    }

private:
    const GIFColorNumber* assembled(int y, bool covered);

    const GIFComposite& m_composite;
    const QRect m_covered;  ///< the part of the area inside the composite
    const bool m_whole;     ///< it covers whole rows
    const int m_first;      ///< its first column within the composite
    const int m_indent;     ///< and within the area
    QVector<GIFColorNumber> m_room;
};

/// The difference between two composites.
struct GIFChange
{
    QRect drawn;              ///< around the pixels that change their colour
    QRect vanished;           ///< around those that become transparent: a frame cannot draw that
    qint64 count = 0;         ///< number of drawn pixels
    bool fromNothing = true;  ///< there was no pixel before
};

GIFChange changeOf(const GIFComposite& from, const GIFComposite& to);

}  // namespace Zorv
