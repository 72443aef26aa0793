#pragma once

#include <QtGlobal>

namespace Cli {

/// While it lives, a signal that asks the program to end is only noted.
class NotedSignals
{
public:
    NotedSignals();
    ~NotedSignals();

    /// The number of the last signal; 0 if none has come.
    static int received();

    /// The status of a program that such a signal has ended.
    static int exitStatus() { return 128 + received(); }

private:
    Q_DISABLE_COPY(NotedSignals)
    static constexpr int Count = 3;
    void (*m_old[Count])(int);
};

}  // namespace Cli
