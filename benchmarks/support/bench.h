#pragma once

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <vector>

/// What the benchmarks share. A figure of one machine means little: each
/// benchmark sets two figures of the same run against each other.
namespace Bench {

/// Milliseconds of one call.
template <class Function>
double once(Function function)
{
    QElapsedTimer timer;
    timer.start();
    function();
    return double(timer.nsecsElapsed()) / 1e6;
}

/// The median of the figures that `rounds` calls give.
template <class Function>
double medianOf(int rounds, Function function)
{
    std::vector<double> figures;
    for (int i = 0; i < rounds; ++i) {
        figures.push_back(function());
    }
    std::sort(figures.begin(), figures.end());
    return figures[figures.size() / 2];
}

/// The median time of `rounds` calls, in milliseconds.
template <class Function>
double median(int rounds, Function function)
{
    return medianOf(rounds, [&function] { return once(function); });
}

/// The median of the ratios of two functions called by turns, so that what else the machine does
/// meets both.
template <class Own, class Peer>
double pairedRatio(int rounds, Own own, Peer peer)
{
    return medianOf(rounds, [&own, &peer] {
        const double time = once(own);
        return time / once(peer);
    });
}

/// Prints a / b and, if there is one, the limit that it should not pass.
inline void ratio(const char* name, double a, double b, double limit = 0)
{
    const double value = b > 0 ? a / b : 0;
    if (limit > 0) {
        std::printf("%-62s ratio %6.2f (limit %.2f)%s\n", name, value, limit,
                    value > limit ? "  MISSED" : "");
    } else {
        std::printf("%-62s ratio %6.2f\n", name, value);
    }
    std::fflush(stdout);
}

/// Prints a figure that stands for itself: a count, bytes a line.
inline void figure(const char* name, double value, const char* unit)
{
    std::printf("%-62s %10.2f %s\n", name, value, unit);
    std::fflush(stdout);
}

}  // namespace Bench
