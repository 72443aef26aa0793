#pragma once

#include <QtGlobal>

namespace Cli {

/// While this object lives, a signal that asks the program to end is only recorded. The running
/// work ends itself at a point where every file is complete.
class NotedSignals
{
public:
    enum Patience {
        AMoment,   ///< work that does not end in a moment is killed
        Unlimited  ///< the work checks for signals all the time and has more to clean up
    };

    explicit NotedSignals(Patience patience = AMoment);
    ~NotedSignals();

    /// The number of the last signal; 0 if none has arrived.
    static int received();

    /// The exit status of a program ended by that signal.
    static int exitStatus() { return 128 + received(); }

private:
    Q_DISABLE_COPY(NotedSignals)
    Patience m_patience;
};

}  // namespace Cli
