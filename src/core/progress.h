#pragma once

#include "zorv_export.h"

class QString;

namespace Zorv {

class ProgressReporter;

/// What a person sees of a piece of work, as long as the object lives. It asks
/// `Interface::progress()` for the display and ends it; without a host nothing is shown. Used in
/// the main thread. A display may process events, so what the work is done on may be gone behind
/// each call.
class ZORV_EXPORT Progress
{
public:
    /// `title` says what is done. `maximum` is the count of its steps; 0 if it is told later.
    Progress(const QString& title, int maximum);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// Another step is done. False once the person has given the work up.
    bool step() { return update(m_value + 1); }

    /// `value` steps are done, of `maximum` from now on; a `maximum` of 0 leaves it as it was.
    /// False once the person has given the work up.
    bool update(int value, int maximum = 0);

    /// True once a step was answered with false.
    bool isCanceled() const { return m_isCanceled; }

private:
    ProgressReporter* m_reporter;
    int m_value = 0;
    bool m_isCanceled = false;
};

}  // namespace Zorv
