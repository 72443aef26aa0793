#pragma once

#include <QStringList>

namespace Operations {

/// The result for one file.
struct Outcome
{
    Outcome() = default;
    Outcome(const QString& reason) : error(reason) {}  // NOLINT: functions return plain messages

    QString error;        ///< why it failed; empty on success
    QString warning;      ///< what was lost although it succeeded; empty if nothing was
    bool isPart = false;  ///< for a sound: the file holds more, see `SoundExtent`
};

/// The result of an operation on many files.
struct MediaResult
{
    MediaResult() = default;

    /// Nothing was started.
    explicit MediaResult(const QString& error) : errors(error) {}

    /// Adds the result of one file.
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

    int done = 0;          ///< number of files written, or of records added
    QStringList errors;    ///< one line for each failure
    QStringList warnings;  ///< one line for each success that lost something
    bool isCanceled = false;
    bool isPart = false;   ///< a file holds more than was read, see `SoundExtent`
    bool isTaken = false;  ///< nothing was started: replacing existing files needs permission
};

}  // namespace Operations
