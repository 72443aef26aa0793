#include "operations/boxes/coveredarea.h"

#include <algorithm>
#include <vector>

// The area of a union of rectangles by sweeping a vertical line from left to right. Every rectangle
// adds its vertical range to the line at its left side and removes it after its right side.
// Between two sides the covered length is constant, so each step adds length times distance. The
// covered length is kept in a segment tree over all top and bottom coordinates: a node counts the
// rectangles that cover its whole range, and its length follows from its two children. Adding or
// removing a range takes log n.

namespace Operations {

namespace {

/// The covered length of the sweep line: a segment tree over the ends of all ranges.
class CoveredLine
{
public:
    explicit CoveredLine(std::vector<int> places)
        : m_places(std::move(places)), m_nodes(4 * m_places.size())
    {
    }

    qint64 length() const { return m_nodes.empty() ? 0 : m_nodes[1].length; }

    /// `count` is 1 to add a range, -1 to remove it.
    void add(int from, int to, int count)
    {
        add(1, {0, int(m_places.size()) - 1}, {indexOf(from), indexOf(to)}, count);
    }

private:
    struct Range
    {
        int from;
        int to;
    };
    struct Node
    {
        int count = 0;  // of rectangles that cover the whole range
        qint64 length = 0;
    };

    int indexOf(int place) const
    {
        return int(std::lower_bound(m_places.begin(), m_places.end(), place) - m_places.begin());
    }

    void add(size_t index, Range range, Range wanted, int count)
    {
        if (wanted.to <= range.from || wanted.from >= range.to) {
            return;
        }
        Node& node = m_nodes[index];
        const int middle = (range.from + range.to) / 2;
        const bool isWhole = wanted.from <= range.from && wanted.to >= range.to;
        if (isWhole) {
            node.count += count;
        } else {
            add(2 * index, {range.from, middle}, wanted, count);
            add(2 * index + 1, {middle, range.to}, wanted, count);
        }
        if (node.count > 0) {
            node.length = qint64(m_places[size_t(range.to)]) - m_places[size_t(range.from)];
        } else if (range.to - range.from > 1) {
            node.length = m_nodes[2 * index].length + m_nodes[2 * index + 1].length;
        } else {
            node.length = 0;
        }
    }

    std::vector<int> m_places;
    std::vector<Node> m_nodes;
};

/// The left or right side of a rectangle.
struct Side
{
    int x;
    int top;
    int end;
    int count;
};

}  // namespace

QRect upright(const QRect& rect)
{
    QRect result;
    result.setCoords(std::min(rect.left(), rect.right()), std::min(rect.top(), rect.bottom()),
                     std::max(rect.left(), rect.right()), std::max(rect.top(), rect.bottom()));
    return result;
}

qint64 coveredArea(const QVector<QRect>& rects)
{
    std::vector<Side> sides;
    std::vector<int> places;
    for (const QRect& given : rects) {
        const QRect rect = upright(given);
        const int end = rect.bottom() + 1;
        sides.push_back({rect.left(), rect.top(), end, 1});
        sides.push_back({rect.right() + 1, rect.top(), end, -1});
        places.insert(places.end(), {rect.top(), end});
    }
    std::sort(sides.begin(), sides.end(), [](const Side& a, const Side& b) { return a.x < b.x; });
    std::sort(places.begin(), places.end());
    places.erase(std::unique(places.begin(), places.end()), places.end());
    CoveredLine line(std::move(places));
    qint64 area = 0;
    int x = 0;
    for (const Side& side : sides) {
        area += line.length() * (qint64(side.x) - x);
        x = side.x;
        line.add(side.top, side.end, side.count);
    }
    return area;
}

qint64 sharedArea(const QVector<QRect>& one, const QVector<QRect>& other)
{
    return coveredArea(one) + coveredArea(other) - coveredArea(one + other);
}

}  // namespace Operations
