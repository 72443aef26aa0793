#pragma once

#include <algorithm>

namespace Zorv {

/// A range of ticks on a time line; first and last are included.
struct TickRange
{
    /// Takes the two ends in any order.
    static TickRange between(unsigned int one, unsigned int other)
    {
        return {std::min(one, other), std::max(one, other)};
    }

    bool operator==(const TickRange& other) const
    {
        return first == other.first && last == other.last;
    }
    bool operator!=(const TickRange& other) const { return !(*this == other); }

    unsigned int first = 0;
    unsigned int last = 0;
};

}  // namespace Zorv
