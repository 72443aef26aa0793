#pragma once

#include <array>
#include <vector>

namespace Zorv {

class OctreeNode;
struct ColorPoint;

/// Groups of points, each with the mean that stands for them.
struct ColorCluster
{
    std::array<float, 4> mean;
    float weight;
};

/// Makes a cluster of each node, then joins the two whose joining adds the least error, until
/// `count` are left. The points know their cluster afterwards.
std::vector<ColorCluster> joinedClusters(const std::vector<OctreeNode>& nodes, int count);

/// Moves points to a nearer cluster, where one of the neighbours of theirs is nearer, and the
/// clusters to the mean of their points; that is once each.
void refineClusters(std::vector<ColorCluster>& clusters, std::vector<ColorPoint>& points);

}  // namespace Zorv
