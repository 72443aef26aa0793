#pragma once

#include "operations/filestamp.h"

#include <zorv/core/filewatchhandler.h>

#include <QHash>
#include <QObject>
#include <QSet>

namespace Family {
class FamilyProject;
}

namespace Zorv {
class ProjectFile;
}

namespace App {

class GameSession;

/// Tracks the open files: which ones have unsaved changes, which no longer exist, and which another
/// program changed. The game tree shows the first two. For the last, it asks the user: at once if
/// there are unsaved changes here, and before such a file is overwritten.
class FileStates : public QObject, public Zorv::FileWatchHandler
{
    Q_OBJECT

public:
    /// The session must outlive this object, which installs itself in the library.
    explicit FileStates(GameSession* session);

    /// The window's instance, null without a window.
    static FileStates* instance();

    /// True if another program changed the file since it was read or written here.
    bool isOvertaken(const Zorv::ProjectFile* file) const;

    /// The answer to a question about a file that another program changed.
    enum Answer { Write, Read, GiveUp };

    /// Asks if another program changed the file and its contents differ from what is open here. If
    /// the answer is `Read`, the file was already reloaded.
    Answer askBeforeWriting(Zorv::ProjectFile* file);

    QList<Zorv::FileWatchObject*>
    fileChanged(const QString& path, const QList<Zorv::FileWatchObject*>& objects) override;
    void fileGone(const QString& path) override;

    /// Call when edits that are not in their file yet appear or disappear.
    void inputChanged();

signals:
    /// A file gained or lost unsaved changes, disappeared or came back.
    void changed();

private:
    void followAll();
    void followProject(Family::FamilyProject* project);
    void synchronize(Zorv::ProjectFile* file);
    void follow(Zorv::ProjectFile* file);
    void noteModified(Zorv::ProjectFile* file);
    QHash<QString, QString> marks() const;
    void updateSoon();
    void askSoon();
    void askAboutChanged(Zorv::ProjectFile* file);
    bool read(Zorv::ProjectFile* file);
    int ask(Zorv::ProjectFile* file, const QString& title, const QString& text,
            const QStringList& choices);

    GameSession* m_session;
    QHash<Zorv::ProjectFile*, Operations::FileStamp> m_stamps;
    QSet<Zorv::ProjectFile*> m_modified;
    QSet<Zorv::ProjectFile*> m_toAsk;
    QHash<QString, QString> m_marks;
    bool m_isUpdatePending = false;
    bool m_isInputPending = false;
    bool m_isAsking = false;
};

}  // namespace App
