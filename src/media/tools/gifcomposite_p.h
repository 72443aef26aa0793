#pragma once

#include "media/tools/giftable_p.h"

#include <QRect>

namespace Zorv {

/// What the canvas of an animation shows at one time: the pixels of a rectangle, by the numbers of
/// their colours, and nothing outside of it.
struct GIFComposite
{
    QRect rect;
    QVector<GIFColorNumber> pixels;

    GIFColorNumber* line(int y) { return pixels.data() + qptrdiff(y - rect.top()) * rect.width(); }
    const GIFColorNumber* line(int y) const
    {
        return pixels.constData() + qptrdiff(y - rect.top()) * rect.width();
    }

    /// The same with a rectangle emptied.
    GIFComposite cleared(const QRect& part) const;
};

/// The rows of a composite in an area of the canvas, whatever of it the composite covers.
class GIFRows
{
public:
    GIFRows(const GIFComposite& composite, const QRect& area);

    /// Valid up to the next call.
    const GIFColorNumber* row(int y)
    {
        const bool covered = y >= m_covered.top() && y <= m_covered.bottom();
        return covered && m_whole ? m_composite.line(y) + m_first : assembled(y, covered);
    }

private:
    const GIFColorNumber* assembled(int y, bool covered);

    const GIFComposite& m_composite;
    const QRect m_covered;  ///< what the composite covers of the area
    const bool m_whole;     ///< whole rows
    const int m_first;      ///< where they begin in those of the composite
    const int m_indent;     ///< and in those of the area
    QVector<GIFColorNumber> m_room;
};

/// What leads from one composite to another.
struct GIFChange
{
    QRect drawn;              ///< around the pixels that get another colour
    QRect vanished;           ///< around those that become nothing, which a frame cannot draw
    qint64 count = 0;         ///< of the pixels drawn
    bool fromNothing = true;  ///< no pixel stood there before
};

GIFChange changeOf(const GIFComposite& from, const GIFComposite& to);

}  // namespace Zorv
