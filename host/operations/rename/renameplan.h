#pragma once

#include "operations/references/referenceindex.h"
#include "operations/rename/changeset.h"

#include <QSet>

namespace Operations {

/// A line that a rename changes.
struct RenamedLine
{
    QString path;
    int line;        ///< from 1; 0 for an entry of a sprite or sound file, and for the name of a
                     ///< file
    int column = 0;  ///< of the first change, from 1
    QString before;  ///< the line
    QString after;
};

/// Everything that a rename will do, for review before it is done.
struct RenamePlan
{
    Subject subject;
    QString name;  ///< the new one
    QVector<RenamedLine> lines;
    ChangeSet changes;

    /// Why it cannot be done, one line each for the user; empty if it can.
    QStringList conflicts;

    /// Hints about the rename, one line each.
    QStringList notes;

    bool isPossible() const { return conflicts.isEmpty() && !changes.isEmpty(); }
};

/// Plans to rename the subject everywhere it is named. The index must be up to date. `unsaved`
/// lists files with unsaved changes; they prevent the rename. A sprite gets another "GROUP,NUMBER",
/// a file another path relative to the main file, with the same suffix.
///
/// Guarantees that exactly the places that named the subject before name it afterwards. A name that
/// is taken, or used in a line already, is a conflict. Each text is parsed again as it will be.
RenamePlan planRename(const ReferenceIndex& index, const Subject& subject, const QString& name,
                      const QSet<QString>& unsaved = {});

}  // namespace Operations
