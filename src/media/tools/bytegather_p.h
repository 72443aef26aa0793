#pragma once

#include <QtGlobal>

#include <array>
#include <vector>

namespace Zorv {

/// Takes the bytes at given positions from many rows.
///
/// Where the processor can shuffle bytes, 16 of the result are made at a time from the blocks of
/// 16 that they lie in; how is found out once for all rows.
class ByteGather
{
public:
    /// `positions` rise or stay and are below `length`, that of the rows.
    ByteGather(std::vector<int> positions, int length);

    void take(const quint8* from, quint8* to) const;

private:
    using Shuffle = std::array<quint8, 16>;

    /// How 16 bytes of the result come about: one shuffle for each block from `from` on.
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
