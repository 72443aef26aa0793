#pragma once

#include <QPoint>

namespace Zorv {

/// A line in runs of equal length: horizontal, vertical, diagonal, or in steps of up to four
/// pixels.
struct StraightLine
{
    QPoint from;
    QPoint along;    ///< one step within a run
    QPoint across;   ///< one step from run to run
    int length = 1;  ///< pixels of a run
    int runs = 1;

    /// The line from one pixel that comes nearest to another.
    static StraightLine towards(const QPoint& from, const QPoint& to);

    QPoint runStart(int run) const { return from + (across + along * length) * run; }
    QPoint runEnd(int run) const { return runStart(run) + along * (length - 1); }
    QPoint end() const { return runEnd(runs - 1); }
};

}  // namespace Zorv
