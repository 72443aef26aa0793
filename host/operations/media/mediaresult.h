#pragma once

#include <QStringList>

namespace Family {

/// How a piece of work on many files ended.
struct MediaResult
{
    MediaResult() = default;

    /// Nothing was begun.
    explicit MediaResult(const QString& error) : errors(error) {}

    /// Counts a step: `fault` is empty if it was done, else why not.
    void note(const QString& fault) { fault.isEmpty() ? void(++done) : errors.append(fault); }

    int done = 0;        ///< files that were written, or records that were taken up
    QStringList errors;  ///< a line each for what was not done
    bool isCanceled = false;
    bool isTaken = false;  ///< nothing was begun: leave is needed to replace what is there already
};

}  // namespace Family
