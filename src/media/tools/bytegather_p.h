#pragma once

#include <QtGlobal>

#include <array>
#include <vector>

namespace Zorv {

/// Copies the bytes at fixed positions, for many rows.
///
/// If the processor has a byte shuffle, 16 result bytes are made at a time from the 16-byte blocks
/// that contain them. The plan is computed once for all rows.
class ByteGather
{
public:
    /// `positions` are in ascending order, may repeat, and are below `length`, the length of the
    /// rows.
    ByteGather(std::vector<int> positions, int length);

    void take(const quint8* from, quint8* to) const;

private:
    using Shuffle = std::array<quint8, 16>;

    /// A plan for 16 result bytes: one shuffle per block, starting at `from`.
    struct Group
    {
        int to;
        int from;
        int blocks;
    };

    bool plan(int length);
    void addGroup(int to, int from, int blocks);
    void shuffle(const quint8* from, quint8* to) const;

    std::vector<int> m_positions;
    std::vector<Group> m_groups;
    std::vector<Shuffle> m_shuffles;
};

}  // namespace Zorv
