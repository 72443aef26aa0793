#pragma once

namespace Zorv {

/// One of the four passes over the lines of an interlaced frame.
struct GIFPass
{
    int first;
    int step;
};

constexpr GIFPass gifPasses[] = {{0, 8}, {4, 8}, {2, 4}, {1, 2}};

}  // namespace Zorv
