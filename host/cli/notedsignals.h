#pragma once

#include <QtGlobal>

namespace Cli {

/// While it lives, a signal that asks the program to end is noted: the work ends itself where every
/// file is whole.
class NotedSignals
{
public:
    enum Patience {
        AMoment,   ///< work that has not ended by then is ended
        Unlimited  ///< the work looks for signals all the time, and has more to clean up
    };

    explicit NotedSignals(Patience patience = AMoment);
    ~NotedSignals();

    /// The number of the last signal; 0 if none has come.
    static int received();

    /// The status of a program that such a signal has ended.
    static int exitStatus() { return 128 + received(); }

private:
    Q_DISABLE_COPY(NotedSignals)
    Patience m_patience;
};

}  // namespace Cli
