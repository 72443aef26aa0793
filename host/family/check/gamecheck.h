#pragma once

#include "family/check/projectcheck.h"

#include <QMap>
#include <QSet>

#include <set>

namespace Family {

/// What a check has found since it was asked last.
struct CheckNews
{
    QHash<QString, Problems> files;            ///< their problems now, by their names in them
    QHash<QString, ProjectFindings> projects;  ///< without problems, by main file
    QStringList goneProjects;                  ///< main files

    bool isEmpty() const { return files.isEmpty() && projects.isEmpty() && goneProjects.isEmpty(); }
};

/// The check of a game, or of one project of it, which keeps what it has found.
///
/// A change makes those projects due again that depend on it, and no others: `check()` takes one
/// project at a time, so that whoever has other things to do can do them between. Texts and other
/// content that are not saved take the place of their files. It uses no document and no object of
/// the window: any thread may run it, one at a time.
class GameCheck
{
public:
    /// `path` is a game folder, a folder in a game, or a main file, for its project alone. Nothing
    /// is looked at before `look()`.
    explicit GameCheck(const QString& path);

    /// The folder to which the names in the problems are relative.
    QString folder() const { return m_facts.gameFolder(); }

    /// Looks which projects there are, and which files have changed on the disk. False if there is
    /// no project.
    bool look();

    /// Looks at one file again, whatever the disk says about it.
    void lookAt(const QString& path);

    /// What stands in the place of a file from now on; null for the file itself. A main file need
    /// not be there.
    void setText(const QString& path, const std::shared_ptr<const SourceText>& text);
    void setAssets(const QString& path, const FactStore::Assets& assets);

    /// All is read anew, as in another language.
    void forgetAll();

    /// The projects of these main files are checked before others.
    void prefer(const QStringList& mainFiles) { m_preferred = mainFiles; }

    /// True if no project is due.
    bool isDone() const { return m_due.empty(); }

    /// Checks one of the projects that are due.
    void check();

    /// All problems, in their order.
    Problems problems();

    /// What has changed since the last call.
    CheckNews takeNews();

    /// How many files have been read, texts looked through, and projects checked.
    int workCount() const { return m_facts.readCount() + m_checkCount; }

private:
    void setMainFiles(const QStringList& mainFiles);
    bool lookAtFolders();
    void lookAtFiles();
    void take(const ProjectFindings& findings);
    void leave(const QString& mainFile);
    void merge();
    void replaceUses(const QString& mainFile, const QStringList& before, const QStringList& now);

    using ByFile = QHash<QString, Problems>;

    QString m_scope;
    FactStore m_facts;
    QHash<QString, ProjectFindings> m_projects;
    std::set<QString> m_due;
    QStringList m_preferred;
    QSet<QString> m_onDisk;                   // the main files
    QHash<QString, QSet<QString>> m_users;    // the projects that depend on a path
    QHash<QString, ByFile> m_told;            // by each project, and of folders below ""
    QHash<QString, QSet<QString>> m_tellers;  // the projects that have problems of a file
    QMap<QString, Problems> m_problems;       // of each file that has any
    QSet<QString> m_stale;                    // the files whose problems are to be put together
    CheckNews m_news;
    int m_checkCount = 0;
};

}  // namespace Family
