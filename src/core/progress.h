#pragma once

#include "zorv_export.h"

class QString;

namespace Zorv {

class ProgressReporter;

/// Shows the progress of an operation to the user while the object exists. It gets its display from
/// `Interface::progress()` and ends it. Without a host nothing is shown. Main thread only. Each
/// call may process events, so check afterwards that the objects you work on still exist.
class ZORV_EXPORT Progress
{
public:
    /// `title` describes the operation. `maximum` is the number of steps; 0 if it will be set
    /// later.
    Progress(const QString& title, int maximum);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// One more step is done. Returns false once the user has cancelled.
    bool step() { return update(m_value + 1); }

    /// `value` steps are done, out of `maximum` from now on. A `maximum` of 0 keeps the previous
    /// one. Returns false once the user has cancelled.
    bool update(int value, int maximum = 0);

    /// True once a step has returned false.
    bool isCanceled() const { return m_isCanceled; }

private:
    ProgressReporter* m_reporter;
    int m_value = 0;
    bool m_isCanceled = false;
};

}  // namespace Zorv
