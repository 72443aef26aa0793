#pragma once

#include <QStringList>

namespace Operations {

/// How the work on one file ended.
struct Outcome
{
    Outcome() = default;
    Outcome(const QString& reason) : error(reason) {}  // NOLINT: the reason of a failure is one

    QString error;        ///< why it was not done; empty if it was
    QString warning;      ///< what is lost if it was done; empty if nothing is
    bool isPart = false;  ///< of a sound: the file holds more, see `SoundExtent`
};

/// How a piece of work on many files ended.
struct MediaResult
{
    MediaResult() = default;

    /// Nothing was begun.
    explicit MediaResult(const QString& error) : errors(error) {}

    /// Counts a step.
    void note(const Outcome& outcome)
    {
        if (!outcome.error.isEmpty()) {
            errors.append(outcome.error);
        } else {
            ++done;
            warnings += outcome.warning.isEmpty() ? QStringList() : QStringList(outcome.warning);
        }
        isPart = isPart || outcome.isPart;
    }

    int done = 0;          ///< files that were written, or records that were taken up
    QStringList errors;    ///< a line each for what was not done
    QStringList warnings;  ///< a line each for what was done, but lost something
    bool isCanceled = false;
    bool isPart = false;   ///< a file holds more than was read, see `SoundExtent`
    bool isTaken = false;  ///< nothing was begun: leave is needed to replace what is there already
};

}  // namespace Operations
