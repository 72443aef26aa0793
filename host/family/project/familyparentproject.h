#pragma once

#include "family/check/problem.h"

#include <zorv/core/parentproject.h>

#include <QHash>

namespace Family {

/// A game folder and the tree of its projects: the main files of each folder below "characters" and
/// "stages", and those in the root.
class FamilyParentProject final : public Zorv::ParentProject
{
    Q_OBJECT

public:
    /// `rootPath` is the game folder; files are read through `FileSystemArchive`.
    explicit FamilyParentProject(const QString& rootPath);

    /// The main files below a folder as sorted absolute paths. Skips hidden folders, backups and
    /// copies for an engine. Does not follow links.
    static QStringList mainFiles(const QString& folder);

    /// True if a folder with this name, which must not be hidden, is searched for projects; `depth`
    /// is 0 for folders directly in the game folder.
    static bool isProjectFolder(const QString& name, int depth);

    /// The game folder of a file or folder, as an absolute path: the innermost folder around it, or
    /// the folder itself, whose "characters" or "stages" leads there or contains projects. If there
    /// is none: the folder itself, or that of the file.
    static QString folderOf(const QString& path);

    Zorv::EngineModel* engineModel() const override;
    void projectFiles(const QString& path, QStringList& files) override;

    /// "--character %0" or "--stage %0".
    QString runParameters(int kind) const override;

    /// A temporary folder beside the engine with a unique name.
    QString runPath(int kind, const QString& name, bool* wholeFolder) const override;

    /// For the player a folder in the user's cache; for any other engine a folder beside it.
    QString runFolder(const QString& executable) const override;

    /// Tells the player about the game, the source of each copy and the name by which it reaches
    /// the editor, unless the user has set parameters for it.
    QStringList runArguments(const QString& executable, const QStringList& arguments,
                             const QVector<RunCopy>& copies) const override;

    /// The name of the local socket through which the next player that starts reaches the editor;
    /// empty for none.
    void setPlayerSocket(const QString& name) { m_playerSocket = name; }
    void lastReferenceGone() override;

    /// False, after a message through `Dialogs`, if a program in the game folder no longer matches
    /// `FamilyEngineModel::gameProgram()`.
    bool mayStart(const QString& executable) override;

    /// The problems of files in the tree, by absolute path. Folders show the sum of their content.
    void setProblems(const QHash<QString, Problems>& problems);

    /// The number of errors and of warnings of a row.
    enum Role { ErrorRole = Qt::UserRole + 1, WarningRole };

    /// Marks shown after file names in the tree, by path; other files get none.
    void setFileMarks(const QHash<QString, QString>& marks);

    /// Adds the marks to names, and the problems to the tool tip and as
    /// `Qt::AccessibleDescriptionRole`.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

signals:
    /// The last project was closed; the host may delete this object later.
    void unused();

private:
    void addLooseFolder(const QString& folder);

    template <class Value>
    void tellRows(const QHash<QString, Value>& before, const QHash<QString, Value>& after);

    QHash<QString, ProblemTally> m_problems;  // by path, without a trailing "/"
    QHash<QString, QString> m_marks;          // likewise
    QString m_playerSocket;
};

}  // namespace Family
