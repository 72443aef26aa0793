#pragma once

#include "family/check/projectcheck.h"

#include <QMap>
#include <QSet>

#include <set>

namespace Family {

/// What a check has found since the last query.
struct CheckNews
{
    QHash<QString, Problems> files;            ///< file name to its current problems
    QHash<QString, ProjectFindings> projects;  ///< by main file, without problems
    QStringList goneProjects;                  ///< main files

    bool isEmpty() const { return files.isEmpty() && projects.isEmpty() && goneProjects.isEmpty(); }
};

/// An incremental check of a game, or of one project in it, that keeps its results.
///
/// A change makes exactly those projects due again that depend on it. `check()` handles one project
/// per call, so that the caller can do other things in between. Unsaved texts and other content
/// replace their files. Uses no document and no object of the window: any thread may run it, one at
/// a time.
class GameCheck
{
public:
    /// `path` is a game folder, a folder in a game, or a main file; the latter checks its project
    /// alone. Reads nothing before `look()`.
    explicit GameCheck(const QString& path);

    /// The folder to which names in the problems are relative.
    QString folder() const { return m_facts.gameFolder(); }

    /// Looks for projects and for files that have changed on disk. False if there is no project.
    bool look();

    /// Makes the users of one file due again, whether or not it has changed on disk.
    void lookAt(const QString& path);

    /// Replaces a file from now on; null for the file itself. A replaced main file need not exist.
    void setText(const QString& path, const std::shared_ptr<const SourceText>& text);
    void setAssets(const QString& path, const FactStore::Assets& assets);

    /// Forces everything to be read again, for example after a change of language.
    void forgetAll();

    /// Checks the projects of these main files before others.
    void prefer(const QStringList& mainFiles) { m_preferred = mainFiles; }

    /// True if no project is due.
    bool isDone() const { return m_due.empty(); }

    /// Checks one of the due projects.
    void check();

    /// All problems, sorted.
    Problems problems();

    /// The changes since the last call.
    CheckNews takeNews();

    /// The number of files read, texts parsed and projects checked.
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
    QSet<QString> m_onDisk;                   // existing main files
    QHash<QString, QSet<QString>> m_users;    // path -> projects that depend on it
    QHash<QString, ByFile> m_told;            // by project; problems of folders under ""
    QHash<QString, QSet<QString>> m_tellers;  // file -> projects that report problems in it
    QMap<QString, Problems> m_problems;       // by file
    QSet<QString> m_stale;                    // files whose problems must be merged again
    CheckNews m_news;
    int m_checkCount = 0;
};

}  // namespace Family
