#pragma once

#include "zorv_export.h"

namespace Zorv {

/// A running piece of work as the person sees it; made by `Interface::progress()`.
class ZORV_EXPORT ProgressReporter
{
public:
    /// Moves the display. A `maximum` above 0 sets the length of the work; 0
    /// leaves it as it was. The library calls once with value 0 and the real
    /// maximum, then with each value and maximum 0.
    virtual void update(int value, int maximum) = 0;

    /// True once the person has given the work up. Work that can stop where all
    /// is whole asks after each step; the rest goes on to its end. False unless a
    /// host overrides it.
    virtual bool isCanceled() const;

    /// Ends the display and disposes of the reporter.
    virtual void finish() = 0;

protected:
    virtual ~ProgressReporter();
};

}  // namespace Zorv
