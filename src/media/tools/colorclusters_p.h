#pragma once

#include <array>
#include <vector>

namespace Zorv {

class OctreeNode;
struct ColorPoint;

/// A group of points, represented by its mean.
struct ColorCluster
{
    std::array<float, 4> mean;
    float weight;
};

/// Makes a cluster of each node, then repeatedly merges the pair that adds the least error, until
/// `count` are left. Also sets the cluster of each point.
std::vector<ColorCluster> joinedClusters(const std::vector<OctreeNode>& nodes, int count);

/// One step of refinement: each point moves to the nearest of the clusters around its own, then
/// each cluster moves to the mean of its points.
void refineClusters(std::vector<ColorCluster>& clusters, std::vector<ColorPoint>& points);

}  // namespace Zorv
