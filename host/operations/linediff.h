#pragma once

#include <QStringRef>
#include <QVector>

namespace Operations {

/// One run of lines that differ.
struct DiffRun
{
    int oldStart;  ///< number of the first line, from 0
    int oldCount;
    int newStart;
    int newCount;
};

/// What makes the new lines of the old ones, in ascending runs with equal lines
/// between them. Small for edits such as a moved part of a text; not always the
/// smallest, so that a file rewritten from end to end takes no longer.
QVector<DiffRun> diffLines(const QVector<QStringRef>& oldLines,
                           const QVector<QStringRef>& newLines);

}  // namespace Operations
