#pragma once

#include <algorithm>

namespace Zorv {

/// Ticks of a time line from the first to the last one, both included.
struct TickRange
{
    /// Between two ticks, in whichever order they are given.
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
