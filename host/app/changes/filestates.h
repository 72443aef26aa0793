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

/// What has become of the files that are open: which have unsaved changes, which have gone, and
/// which another program has changed. The tree of the game shows the first two. It asks about the
/// last kind: at once if there are unsaved changes here, and before such a file is written over.
class FileStates : public QObject, public Zorv::FileWatchHandler
{
    Q_OBJECT

public:
    /// The session must outlive the object, which installs itself in the library.
    explicit FileStates(GameSession* session);

    /// The one of the window, null without one.
    static FileStates* instance();

    /// True if another program has changed the file since it was read or written here.
    bool isOvertaken(const Zorv::ProjectFile* file) const;

    /// How a question about a file that was overtaken ended.
    enum Answer { Write, Read, GiveUp };

    /// Asks if the file was overtaken and says something else than what is open here. `Read` has
    /// read it.
    Answer askBeforeWriting(Zorv::ProjectFile* file);

    QList<Zorv::FileWatchObject*>
    fileChanged(const QString& path, const QList<Zorv::FileWatchObject*>& objects) override;
    void fileGone(const QString& path) override;

    /// There is work on some file that has not gone into it, or there is none any more.
    void inputChanged();

signals:
    /// A file has unsaved changes or has not any more, has gone or come back.
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
