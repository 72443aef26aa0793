#pragma once

#include <QStringRef>
#include <QVector>

namespace Operations {

/// A run of lines that differ.
struct DiffRun
{
    int oldStart;  ///< index of the first line, from 0
    int oldCount;
    int newStart;
    int newCount;
};

/// The runs of lines that differ, ascending, with equal lines between them. The result is small for
/// typical edits such as a moved block. It is not always minimal, so that a completely rewritten
/// file does not take long.
QVector<DiffRun> diffLines(const QVector<QStringRef>& oldLines,
                           const QVector<QStringRef>& newLines);

}  // namespace Operations
