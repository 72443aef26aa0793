#pragma once

#include <QtGlobal>

#include <vector>

namespace Zorv {

/// A colour to be stood for by one of a palette.
struct ColorPoint
{
    float channel[4];  ///< red, green, blue, alpha
    float weight;
    quint32 key;  ///< its place in the tree; bytes from the top are alpha, red, green, blue
    int cluster;  ///< that stands for it, for whoever makes clusters of points
};

/// A node of an octree that halves alpha beside red, green and blue, so that it has up to
/// 16 children.
///
/// It covers a run of points, which are the caller's and outlive it; `split()` puts them in order
/// of the children. Points have different keys.
class OctreeNode
{
public:
    /// The node of all points from `first` up to but without `last`, at least one.
    OctreeNode(ColorPoint* first, ColorPoint* last, int depth = 0);

    ColorPoint* begin() const { return m_first; }
    ColorPoint* end() const { return m_last; }

    /// The sum of the squared distances of the points from their mean, by weight.
    double error() const { return m_error; }
    double weight() const { return m_weight; }
    const double* mean() const { return m_mean; }

    bool canSplit() const { return m_last - m_first > 1; }

    /// The two or more nodes of the nearest depth at which the points part.
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
