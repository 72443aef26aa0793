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

    const GIFColorNumber* line(int y) const
    {
        return pixels.constData() + qptrdiff(y - rect.top()) * rect.width();
    }

    /// The pixels of a row of `area`, which holds `rect` or a part of it. What does not stand in
    /// memory like that is put together in `room`.
    const GIFColorNumber* row(int y, const QRect& area, QVector<GIFColorNumber>& room) const;

    /// The same with a rectangle emptied.
    GIFComposite cleared(const QRect& part) const;
};

/// What leads from one composite to another.
struct GIFChange
{
    QRect drawn;       ///< around the pixels that get another colour
    QRect vanished;    ///< around those that become nothing, which a frame cannot draw
    qint64 count = 0;  ///< of the pixels drawn
};

GIFChange changeOf(const GIFComposite& from, const GIFComposite& to);

}  // namespace Zorv
