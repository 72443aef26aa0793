#include "media/tools/gifcomposite_p.h"

#include <algorithm>

namespace Zorv {

GIFComposite GIFComposite::cleared(const QRect& part) const
{
    GIFComposite result = *this;
    const QRect common = rect & part;
    for (int y = common.top(); y <= common.bottom(); ++y) {
        GIFColorNumber* const first = result.line(y) + (common.left() - rect.left());
        std::fill(first, first + common.width(), 0);
    }
    return result;
}

GIFRows::GIFRows(const GIFComposite& composite, const QRect& area)
    : m_composite(composite), m_covered(composite.rect & area),
      m_whole(m_covered.width() == area.width()), m_first(m_covered.left() - composite.rect.left()),
      m_indent(m_covered.left() - area.left()), m_room(area.width(), 0)
{
}

const GIFColorNumber* GIFRows::assembled(int y, bool covered)
{
    if (m_covered.isEmpty()) {
        return m_room.constData();
    }
    GIFColorNumber* const to = m_room.data() + m_indent;
    if (covered) {
        const GIFColorNumber* const from = m_composite.line(y) + m_first;
        std::copy(from, from + m_covered.width(), to);
    } else {
        std::fill(to, to + m_covered.width(), 0);
    }
    return m_room.constData();
}

namespace {

/// Extends a rectangle by the pixels of a row that fulfil a condition; at least one does. Checks
/// only pixels outside the rectangle so far.
template <class Condition>
void enclose(QRect& around, const QRect& area, int y, Condition condition)
{
    const bool first = around.isEmpty();
    const int leftEnd = first ? area.width() : around.left() - area.left();
    const int rightEnd = first ? -1 : around.right() - area.left();
    int left = 0;
    while (left < leftEnd && !condition(left)) {
        ++left;
    }
    int right = area.width() - 1;
    while (right > rightEnd && !condition(right)) {
        --right;
    }
    around =
        QRect(QPoint(area.left() + left, first ? y : around.top()), QPoint(area.left() + right, y));
}

}  // namespace

GIFChange changeOf(const GIFComposite& from, const GIFComposite& to)
{
    GIFChange change;
    const QRect area = from.rect | to.rect;
    const int width = area.width();
    GIFRows fromRows(from, area);
    GIFRows toRows(to, area);
    for (int y = area.top(); y <= area.bottom(); ++y) {
        const GIFColorNumber* const a = fromRows.row(y);
        const GIFColorNumber* const b = toRows.row(y);
        int drawn = 0;
        int vanished = 0;
        GIFColorNumber any = 0;
        for (int x = 0; x < width; ++x) {
            any |= a[x];
            drawn += int(a[x] != b[x]) & int(b[x] != 0);
            vanished += int(a[x] != 0) & int(b[x] == 0);
        }
        change.fromNothing = change.fromNothing && any == 0;
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
