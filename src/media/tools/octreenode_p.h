#pragma once

#include <QtGlobal>

#include <vector>

namespace Zorv {

/// A colour to be represented by a palette entry.
struct ColorPoint
{
    float channel[4];  ///< red, green, blue, alpha
    float weight;
    quint32 key;  ///< place in the tree; bytes from the top are alpha, red, green, blue
    int cluster;  ///< its cluster; used only for clustering
};

/// A node of an octree that divides alpha as well as red, green and blue, so it has up to 16
/// children.
///
/// It covers a range of points, which belong to the caller and must outlive it. `split()` reorders
/// them by child. All points have different keys.
class OctreeNode
{
public:
    /// The node of all points from `first` up to, but not including, `last`; at least one.
    OctreeNode(ColorPoint* first, ColorPoint* last, int depth = 0);

    ColorPoint* begin() const { return m_first; }
    ColorPoint* end() const { return m_last; }

    /// The weighted sum of the squared distances of the points from their mean.
    double error() const { return m_error; }
    double weight() const { return m_weight; }
    const double* mean() const { return m_mean; }

    bool canSplit() const { return m_last - m_first > 1; }

    /// The child nodes, two or more, at the first depth at which the points differ.
    std::vector<OctreeNode> split() const;

private:
    ColorPoint* m_first;
    ColorPoint* m_last;
    int m_depth;
    double m_weight = 0;
    double m_mean[4] = {};
    double m_error = 0;
};

}  // namespace Zorv
