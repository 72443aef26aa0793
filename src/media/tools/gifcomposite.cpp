#include "media/tools/gifcomposite_p.h"

#include <algorithm>

namespace Zorv {

const GIFColorNumber* GIFComposite::row(int y, const QRect& area,
                                        QVector<GIFColorNumber>& room) const
{
    const QRect part = rect & QRect(area.left(), y, area.width(), 1);
    const GIFColorNumber* const from =
        part.isEmpty() ? nullptr : line(y) + (part.left() - rect.left());
    if (from && part.width() == area.width()) {
        return from;
    }
    room.fill(0, area.width());
    if (from) {
        std::copy(from, from + part.width(), room.begin() + (part.left() - area.left()));
    }
    return room.constData();
}

GIFComposite GIFComposite::cleared(const QRect& part) const
{
    GIFComposite result = *this;
    const QRect common = rect & part;
    for (int y = common.top(); y <= common.bottom(); ++y) {
        GIFColorNumber* const first = result.pixels.data() +
                                      qptrdiff(y - rect.top()) * rect.width() +
                                      (common.left() - rect.left());
        std::fill(first, first + common.width(), 0);
    }
    return result;
}

namespace {

/// Adds the pixels of a row that fulfil a condition, which one at least does, to the rectangle
/// around them.
template <class Condition>
void enclose(QRect& around, const QRect& area, int y, Condition condition)
{
    int left = 0;
    while (!condition(left)) {
        ++left;
    }
    int right = area.width() - 1;
    while (!condition(right)) {
        --right;
    }
    around |= QRect(QPoint(area.left() + left, y), QPoint(area.left() + right, y));
}

}  // namespace

GIFChange changeOf(const GIFComposite& from, const GIFComposite& to)
{
    GIFChange change;
    const QRect area = from.rect | to.rect;
    QVector<GIFColorNumber> fromRoom;
    QVector<GIFColorNumber> toRoom;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        const GIFColorNumber* const a = from.row(y, area, fromRoom);
        const GIFColorNumber* const b = to.row(y, area, toRoom);
        int drawn = 0;
        int vanished = 0;
        for (int x = 0; x < area.width(); ++x) {
            const bool differs = a[x] != b[x];
            drawn += differs & (b[x] != 0);
            vanished += differs & (b[x] == 0);
        }
        if (drawn > 0) {
            change.count += drawn;
            enclose(change.drawn, area, y, [=](int x) { return a[x] != b[x] && b[x] != 0; });
        }
        if (vanished > 0) {
            enclose(change.vanished, area, y, [=](int x) { return a[x] != 0 && b[x] == 0; });
        }
    }
    return change;
}

}  // namespace Zorv
