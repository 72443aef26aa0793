#include "media/tools/octreenode_p.h"

#include <algorithm>
#include <array>

namespace Zorv {

namespace {

const int ChildCount = 16;

// The child number: one bit of each byte of the key, from the highest at depth 0.
int childOf(quint32 key, int depth)
{
    return int(((key >> (7 - depth) & 0x01010101U) * 0x01020408U) >> 24 & 15);
}

}  // namespace

OctreeNode::OctreeNode(ColorPoint* first, ColorPoint* last, int depth)
    : m_first(first), m_last(last), m_depth(depth)
{
    double squares = 0;
    for (const ColorPoint* point = first; point != last; ++point) {
        m_weight += double(point->weight);
        for (int i = 0; i < 4; ++i) {
            const double value = double(point->channel[i]);
            m_mean[i] += double(point->weight) * value;
            squares += double(point->weight) * value * value;
        }
    }
    for (double& mean : m_mean) {
        mean /= m_weight;
        squares -= m_weight * mean * mean;
    }
    m_error = canSplit() ? std::max(squares, 0.0) : 0;
}

std::vector<OctreeNode> OctreeNode::split() const
{
    int depth = m_depth;
    std::array<int, ChildCount> counts;
    do {
        counts.fill(0);
        for (const ColorPoint* point = m_first; point != m_last; ++point) {
            ++counts[size_t(childOf(point->key, depth))];
        }
    } while (counts[size_t(childOf(m_first->key, depth++))] == m_last - m_first);

    const std::vector<ColorPoint> points(m_first, m_last);
    std::array<ColorPoint*, ChildCount> ends;
    ColorPoint* end = m_first;
    for (size_t i = 0; i < ChildCount; ++i) {
        ends[i] = end;
        end += counts[i];
    }
    for (const ColorPoint& point : points) {
        *ends[size_t(childOf(point.key, depth - 1))]++ = point;
    }
    std::vector<OctreeNode> children;
    for (size_t i = 0; i < ChildCount; ++i) {
        if (counts[i] > 0) {
            children.emplace_back(ends[i] - counts[i], ends[i], depth);
        }
    }
    return children;
}

}  // namespace Zorv
