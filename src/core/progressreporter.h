#pragma once

#include "zorv_export.h"

namespace Zorv {

/// The progress display of a running operation; created by `Interface::progress()`.
class ZORV_EXPORT ProgressReporter
{
public:
    /// Updates the display. A `maximum` above 0 sets the total; 0 keeps the previous one. The
    /// library calls this once with value 0 and the real maximum, then with each value and maximum
    /// 0.
    virtual void update(int value, int maximum) = 0;

    /// True once the user has cancelled. Operations that can stop in a consistent state check it
    /// after each step; the others run to the end. False unless a host overrides it.
    virtual bool isCanceled() const;

    /// Ends the display and deletes the reporter.
    virtual void finish() = 0;

protected:
    virtual ~ProgressReporter();
};

}  // namespace Zorv
