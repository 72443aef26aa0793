#pragma once

#include <atomic>

namespace Cli {

/// Handles the signals that ask the program to end. By default they end it at once, wherever it is,
/// and delete the file being written. A command can postpone that with `NotedSignals`.
///
/// A dedicated thread does this, because a signal can interrupt the program anywhere.
class EndingSignals
{
public:
    /// Starts watching. Signals that were ignored before stay ignored.
    static void watch();

    /// The number of the last signal; 0 if none has arrived.
    static int received();

    /// The number of `NotedSignals` that will end their work in a moment, and of those that take
    /// the time they need.
    static std::atomic<int> s_soon;
    static std::atomic<int> s_late;
};

}  // namespace Cli
