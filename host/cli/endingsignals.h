#pragma once

#include <atomic>

namespace Cli {

/// The signals that ask the program to end: they end it at once, wherever it is, and what it was
/// writing is removed. A piece of work may put that off with `NotedSignals`.
///
/// A thread of its own does so: a signal comes in the middle of anything.
class EndingSignals
{
public:
    /// From now on; a signal that was ignored before stays so.
    static void watch();

    /// The number of the last signal; 0 if none has come.
    static int received();

    /// How many pieces of work will end by themselves in a moment, and how many take the
    /// time that they need.
    static std::atomic<int> s_soon;
    static std::atomic<int> s_late;
};

}  // namespace Cli
