#include "media/tools/colorclusters_p.h"

#include "media/tools/octreenode_p.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace Zorv {

namespace {

// How many clusters around that of a point are looked at for a nearer one.
const size_t NeighbourCount = 16;

float squaredDistance(const float* x, const float* y)
{
    float sum = 0;
    for (int i = 0; i < 4; ++i) {
        sum += (x[i] - y[i]) * (x[i] - y[i]);
    }
    return sum;
}

// The clusters while they are joined, channel by channel.
class Joining
{
public:
    explicit Joining(const std::vector<OctreeNode>& nodes)
        : m_cost(nodes.size(), std::numeric_limits<float>::max()), m_nearest(nodes.size(), 0),
          m_parent(nodes.size())
    {
        std::iota(m_parent.begin(), m_parent.end(), 0);
        for (const OctreeNode& node : nodes) {
            ColorCluster cluster{{}, float(node.weight())};
            std::copy(node.mean(), node.mean() + 4, cluster.mean.begin());
            m_clusters.push_back(cluster);
            m_alive.push_back(m_alive.size());
        }
        for (size_t i = 0; i < nodes.size(); ++i) {
            search(i);
        }
    }

    void joinTo(size_t count)
    {
        while (m_alive.size() > count) {
            joinCheapest();
        }
    }

    // Numbers the clusters that are left, and tells each of the first ones its number.
    std::vector<ColorCluster> result(std::vector<int>& numbers) const
    {
        std::vector<ColorCluster> left;
        numbers.assign(m_clusters.size(), 0);
        for (const size_t cluster : m_alive) {
            numbers[cluster] = int(left.size());
            left.push_back(m_clusters[cluster]);
        }
        for (size_t i = 0; i < numbers.size(); ++i) {
            size_t root = i;
            while (m_parent[root] != root) {
                root = m_parent[root];
            }
            numbers[i] = numbers[root];
        }
        return left;
    }

private:
    float cost(size_t x, size_t y) const
    {
        const ColorCluster& a = m_clusters[x];
        const ColorCluster& b = m_clusters[y];
        return a.weight * (b.weight / (a.weight + b.weight)) *
               squaredDistance(a.mean.data(), b.mean.data());
    }

    // Finds the cheapest partner among those with a higher number; each pair is then known to
    // one of the two.
    void search(size_t cluster)
    {
        m_cost[cluster] = std::numeric_limits<float>::max();
        const auto from = std::upper_bound(m_alive.begin(), m_alive.end(), cluster);
        for (auto other = from; other != m_alive.end(); ++other) {
            const float price = cost(cluster, *other);
            if (price < m_cost[cluster]) {
                m_cost[cluster] = price;
                m_nearest[cluster] = *other;
            }
        }
    }

    void joinCheapest()
    {
        const size_t kept =
            *std::min_element(m_alive.begin(), m_alive.end(),
                              [this](size_t x, size_t y) { return m_cost[x] < m_cost[y]; });
        const size_t gone = m_nearest[kept];
        absorb(m_clusters[kept], m_clusters[gone]);
        m_parent[gone] = kept;
        m_alive.erase(std::lower_bound(m_alive.begin(), m_alive.end(), gone));
        for (const size_t cluster : m_alive) {
            if (cluster == kept || m_nearest[cluster] == gone || m_nearest[cluster] == kept) {
                search(cluster);
            } else if (cluster < kept && cost(cluster, kept) < m_cost[cluster]) {
                m_cost[cluster] = cost(cluster, kept);
                m_nearest[cluster] = kept;
            }
        }
    }

    static void absorb(ColorCluster& kept, const ColorCluster& gone)
    {
        const float weight = kept.weight + gone.weight;
        for (size_t i = 0; i < 4; ++i) {
            kept.mean[i] = (kept.mean[i] * kept.weight + gone.mean[i] * gone.weight) / weight;
        }
        kept.weight = weight;
    }

    std::vector<ColorCluster> m_clusters;
    std::vector<size_t> m_alive;  // in order
    std::vector<float> m_cost;    // of joining a cluster with its partner
    std::vector<size_t> m_nearest;
    std::vector<size_t> m_parent;
};

using Neighbours = std::vector<std::array<int, NeighbourCount>>;

// The nearest clusters of each, itself first.
Neighbours neighbours(const std::vector<ColorCluster>& clusters)
{
    Neighbours all(clusters.size());
    std::vector<std::pair<float, int>> distances(clusters.size());
    for (size_t i = 0; i < clusters.size(); ++i) {
        for (size_t j = 0; j < clusters.size(); ++j) {
            distances[j] = {squaredDistance(clusters[i].mean.data(), clusters[j].mean.data()),
                            int(j)};
        }
        const size_t count = std::min(NeighbourCount, distances.size());
        std::partial_sort(distances.begin(), distances.begin() + long(count), distances.end());
        for (size_t j = 0; j < NeighbourCount; ++j) {
            all[i][j] = distances[std::min(j, count - 1)].second;
        }
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
    joining.joinTo(size_t(count));
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
    const Neighbours near = neighbours(clusters);
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
