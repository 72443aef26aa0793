// Merging and refining of colour clusters.
//
// Merging two clusters adds an error of their squared distance times w1 * w2 / (w1 + w2), where w
// are their weights. Every cluster knows its cheapest partner among those with a higher index, so
// every pair is stored once and the cheapest merge of all is a minimum over one array. After a
// merge, the distances to the new mean are computed once. A full search is repeated only for
// clusters whose partner was merged and did not get cheaper.
//
// Refinement compares a point only with the few clusters nearest to its own: a point rarely belongs
// anywhere else, and comparing with all would cost far more.

#include "media/tools/colorclusters_p.h"

#include "media/tools/octreenode_p.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace Zorv {

namespace {

// How many neighbours of a point's cluster are compared with the point.
const size_t NeighbourCount = 6;

float squaredDistance(const float* x, const float* y)
{
    float sum = 0;
    for (int i = 0; i < 4; ++i) {
        sum += (x[i] - y[i]) * (x[i] - y[i]);
    }
    return sum;
}

// Clusters stored channel by channel, which makes comparing one with all others fastest.
struct ClusterRows
{
    std::array<std::vector<float>, 4> mean;
    std::vector<float> weight;

    size_t size() const { return weight.size(); }

    void append(const ColorCluster& cluster)
    {
        for (size_t i = 0; i < 4; ++i) {
            mean[i].push_back(cluster.mean[i]);
        }
        weight.push_back(cluster.weight);
    }

    ColorCluster cluster(size_t index) const
    {
        return {{mean[0][index], mean[1][index], mean[2][index], mean[3][index]}, weight[index]};
    }

    // The squared distances from cluster `to` to all from `first` on; written to `result` at the
    // same indices.
    void squaredDistances(size_t to, size_t first, float* result) const
    {
        const ColorCluster other = cluster(to);
        const float* rows[4] = {mean[0].data(), mean[1].data(), mean[2].data(), mean[3].data()};
        for (size_t i = first; i < size(); ++i) {
            const float r = rows[0][i] - other.mean[0];
            const float g = rows[1][i] - other.mean[1];
            const float b = rows[2][i] - other.mean[2];
            const float a = rows[3][i] - other.mean[3];
            result[i] = r * r + g * g + b * b + a * a;
        }
    }
};

// The merging of clusters in pairs. Each knows its cheapest partner among those after it.
class Joining
{
public:
    explicit Joining(const std::vector<OctreeNode>& nodes)
        : m_costs(nodes.size()), m_cost(nodes.size(), Never), m_partner(nodes.size(), 0),
          m_parent(nodes.size())
    {
        std::iota(m_parent.begin(), m_parent.end(), 0);
        for (const OctreeNode& node : nodes) {
            ColorCluster cluster{{}, float(node.weight())};
            std::copy(node.mean(), node.mean() + 4, cluster.mean.begin());
            m_rows.append(cluster);
        }
        for (size_t i = 0; i < nodes.size(); ++i) {
            findPartner(i);
        }
    }

    void joinCheapest()
    {
        const size_t kept = size_t(std::min_element(m_cost.begin(), m_cost.end()) - m_cost.begin());
        const size_t gone = m_partner[kept];
        absorb(kept, gone);
        findPartner(kept);
        m_rows.squaredDistances(kept, 0, m_costs.data());
        for (size_t i = 0; i < gone; ++i) {
            if (m_parent[i] != i || i == kept) {
                continue;
            }
            const float cost =
                i < kept ? m_costs[i] * sharedWeight(m_rows.weight[i], m_rows.weight[kept]) : Never;
            if (cost < m_cost[i]) {
                m_cost[i] = cost;
                m_partner[i] = kept;
            } else if (m_partner[i] == gone || m_partner[i] == kept) {
                m_stale.push_back(i);
            }
        }
        for (const size_t cluster : m_stale) {
            findPartner(cluster);
        }
        m_stale.clear();
    }

    // The remaining clusters, and for each original cluster the index of the one that contains it.
    std::vector<ColorCluster> result(std::vector<int>& numbers) const
    {
        std::vector<ColorCluster> left;
        for (size_t i = 0; i < m_rows.size(); ++i) {
            // A cluster is always merged into an earlier one.
            const bool isLeft = m_parent[i] == i;
            numbers.push_back(isLeft ? int(left.size()) : numbers[m_parent[i]]);
            if (isLeft) {
                left.push_back(m_rows.cluster(i));
            }
        }
        return left;
    }

private:
    static constexpr float Never = std::numeric_limits<float>::max();

    static float sharedWeight(float x, float y) { return x * (y / (x + y)); }

    void findPartner(size_t cluster)
    {
        m_rows.squaredDistances(cluster, cluster + 1, m_costs.data());
        const float weight = m_rows.weight[cluster];
        const float* weights = m_rows.weight.data();
        float* costs = m_costs.data();
        for (size_t i = cluster + 1; i < m_rows.size(); ++i) {
            costs[i] *= sharedWeight(weight, weights[i]);
        }
        float best = Never;
        size_t partner = 0;
        for (size_t i = cluster + 1; i < m_rows.size(); ++i) {
            if (costs[i] < best && m_parent[i] == i) {
                best = costs[i];
                partner = i;
            }
        }
        m_cost[cluster] = best;
        m_partner[cluster] = partner;
    }

    void absorb(size_t kept, size_t gone)
    {
        const float weight = m_rows.weight[kept] + m_rows.weight[gone];
        const float share = m_rows.weight[gone] / weight;
        for (std::vector<float>& mean : m_rows.mean) {
            mean[kept] += (mean[gone] - mean[kept]) * share;
        }
        m_rows.weight[kept] = weight;
        m_parent[gone] = kept;
        m_cost[gone] = Never;
    }

    ClusterRows m_rows;
    std::vector<float> m_costs;  // scratch: one cluster with each other
    std::vector<float> m_cost;   // each cluster with its partner
    std::vector<size_t> m_partner;
    std::vector<size_t> m_parent;
    std::vector<size_t> m_stale;
};

using Nearby = std::array<int, NeighbourCount>;

// The indices of the lowest values, lowest first.
Nearby lowest(const std::vector<float>& values)
{
    Nearby places{};
    std::array<float, NeighbourCount> kept;
    kept.fill(std::numeric_limits<float>::max());
    for (size_t i = 0; i < values.size(); ++i) {
        if (values[i] < kept[NeighbourCount - 1]) {
            size_t at = NeighbourCount - 1;
            for (; at > 0 && values[i] < kept[at - 1]; --at) {
                kept[at] = kept[at - 1];
                places[at] = places[at - 1];
            }
            kept[at] = values[i];
            places[at] = int(i);
        }
    }
    return places;
}

// The nearest clusters of each cluster, usually itself first.
std::vector<Nearby> neighbours(const std::vector<ColorCluster>& clusters)
{
    ClusterRows rows;
    for (const ColorCluster& cluster : clusters) {
        rows.append(cluster);
    }
    std::vector<float> distances(rows.size());
    std::vector<Nearby> all;
    for (size_t i = 0; i < rows.size(); ++i) {
        rows.squaredDistances(i, 0, distances.data());
        all.push_back(lowest(distances));
    }
    return all;
}

void moveToMeans(std::vector<ColorCluster>& clusters, const std::vector<ColorPoint>& points)
{
    struct Sum
    {
        double weight = 0;
        double channel[4] = {};
    };
    std::vector<Sum> sums(clusters.size());
    for (const ColorPoint& point : points) {
        Sum& sum = sums[size_t(point.cluster)];
        sum.weight += double(point.weight);
        for (int i = 0; i < 4; ++i) {
            sum.channel[i] += double(point.weight) * double(point.channel[i]);
        }
    }
    for (size_t i = 0; i < clusters.size(); ++i) {
        clusters[i].weight = float(sums[i].weight);
        for (size_t j = 0; j < 4 && sums[i].weight > 0; ++j) {
            clusters[i].mean[j] = float(sums[i].channel[j] / sums[i].weight);
        }
    }
}

}  // namespace

std::vector<ColorCluster> joinedClusters(const std::vector<OctreeNode>& nodes, int count)
{
    Joining joining(nodes);
    for (int left = int(nodes.size()); left > count; --left) {
        joining.joinCheapest();
    }
    std::vector<int> numbers;
    const std::vector<ColorCluster> clusters = joining.result(numbers);
    for (size_t i = 0; i < nodes.size(); ++i) {
        for (ColorPoint& point : nodes[i]) {
            point.cluster = numbers[i];
        }
    }
    return clusters;
}

void refineClusters(std::vector<ColorCluster>& clusters, std::vector<ColorPoint>& points)
{
    const std::vector<Nearby> near = neighbours(clusters);
    for (ColorPoint& point : points) {
        float best = std::numeric_limits<float>::max();
        for (const int cluster : near[size_t(point.cluster)]) {
            const float distance =
                squaredDistance(point.channel, clusters[size_t(cluster)].mean.data());
            if (distance < best) {
                best = distance;
                point.cluster = cluster;
            }
        }
    }
    moveToMeans(clusters, points);
}

}  // namespace Zorv
