#pragma once

#include "operations/rename/renameplan.h"

#include <QStringList>

namespace App {

class GameSession;

/// A rename as the window does it: on the disk, and in what is open.
///
/// In each open text it is one step of undo, and the text is saved behind it. What is not open is
/// only written. The whole can be taken back as long as nobody has changed any of it.
class RenameAct
{
public:
    RenameAct() = default;
    RenameAct(const Operations::RenamePlan& plan, const QString& gameFolder);

    bool isEmpty() const { return m_changes.isEmpty(); }

    /// "200": the name that was given, and the one before.
    QString name() const { return m_name; }
    QString oldName() const { return m_oldName; }

    /// Does it. False, with `error`, if nothing has changed. Open texts that could not be saved are
    /// told in `error` as well; they stay unsaved. No file of it may have unsaved changes.
    bool run(GameSession* session, const QString& title, QString* error);

    /// What takes it back, once it was run.
    RenameAct reversed() const;

    /// The files of it that have changes which are not saved.
    QStringList unsavedFiles(const GameSession& session) const;

    const QString& gameFolder() const { return m_gameFolder; }

private:
    QString m_gameFolder;
    QString m_name;
    QString m_oldName;
    Operations::ChangeSet m_changes;
    QVector<Operations::RenamedLine> m_lines;
};

/// The absolute paths of open files that have changes which are not saved.
QSet<QString> unsavedPaths(const GameSession& session);

}  // namespace App
