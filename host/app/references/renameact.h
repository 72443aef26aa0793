#pragma once

#include "operations/rename/renameplan.h"

#include <QStringList>

namespace App {

class GameSession;

/// A rename as the window performs it: on disk, and in open files.
///
/// In each open text it is one undo step, and the text is saved afterwards. Files that are not open
/// are only written. The whole rename can be undone as long as none of these files has changed.
class RenameAct
{
public:
    RenameAct() = default;
    RenameAct(const Operations::RenamePlan& plan, const QString& gameFolder);

    bool isEmpty() const { return m_changes.isEmpty(); }

    /// The new name, such as "200", and the old one.
    QString name() const { return m_name; }
    QString oldName() const { return m_oldName; }

    /// Runs the rename. False, with `error`, if nothing was changed. `error` also lists open texts
    /// that could not be saved; they stay unsaved. None of the files may have unsaved changes.
    bool run(GameSession* session, const QString& title, QString* error);

    /// The rename that undoes this one, after `run()`.
    RenameAct reversed() const;

    /// Its files that have unsaved changes.
    QStringList unsavedFiles(const GameSession& session) const;

    const QString& gameFolder() const { return m_gameFolder; }

private:
    QString m_gameFolder;
    QString m_name;
    QString m_oldName;
    Operations::ChangeSet m_changes;
    QVector<Operations::RenamedLine> m_lines;
};

/// The absolute paths of open files with unsaved changes.
QSet<QString> unsavedPaths(const GameSession& session);

}  // namespace App
