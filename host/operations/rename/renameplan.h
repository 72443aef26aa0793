#pragma once

#include "operations/references/referenceindex.h"
#include "operations/rename/changeset.h"

#include <QSet>

namespace Operations {

/// A line that a rename changes.
struct RenamedLine
{
    QString path;
    int line;        ///< from 1; 0 for what a file of sprites or sounds holds, and for its name
    int column = 0;  ///< of the first change, from 1
    QString before;  ///< the line
    QString after;
};

/// All that a rename does, looked at before it is done.
struct RenamePlan
{
    Subject subject;
    QString name;  ///< the new one
    QVector<RenamedLine> lines;
    ChangeSet changes;

    /// Why it cannot be done, a line each for the person; empty if it can.
    QStringList conflicts;

    /// What to know about it, a line each.
    QStringList notes;

    bool isPossible() const { return conflicts.isEmpty() && !changes.isEmpty(); }
};

/// Plans to give the subject another name wherever it is named. The index is up to date. `unsaved`
/// are the paths of files that have changes which are not saved: they are in the way. A sprite gets
/// another "GROUP,NUMBER", a file another path relative to the main file, with its suffix.
///
/// What names the subject before, and nothing else, names it afterwards: a name that is taken, or
/// that lines name already, is a conflict, and each text is read again as it will be.
RenamePlan planRename(const ReferenceIndex& index, const Subject& subject, const QString& name,
                      const QSet<QString>& unsaved = {});

}  // namespace Operations
