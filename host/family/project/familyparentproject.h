#pragma once

#include "family/check/problem.h"

#include <zorv/core/parentproject.h>

#include <QHash>

namespace Family {

/// A game folder. Projects lie in its folders: the tree lists the main files of
/// each folder below "characters" and "stages", and of the root.
class FamilyParentProject final : public Zorv::ParentProject
{
    Q_OBJECT

public:
    /// `rootPath` is the game folder; the files are read through `FileSystemArchive`.
    explicit FamilyParentProject(const QString& rootPath);

    /// The main files below a folder, as absolute paths in order. Hidden
    /// folders, those of backups and copies for an engine are left out, links
    /// are not followed.
    static QStringList mainFiles(const QString& folder);

    /// True if projects are looked for in a folder of this name that is not hidden; `depth` is 0
    /// for those of the game folder itself.
    static bool isProjectFolder(const QString& name, int depth);

    /// The game folder that a file or a folder belongs to, as an absolute path: the innermost one
    /// around it, or the folder itself, whose "characters" or "stages" leads there or holds
    /// projects. Without one it is the folder itself, or that of the file.
    static QString folderOf(const QString& path);

    Zorv::EngineModel* engineModel() const override;
    void projectFiles(const QString& path, QStringList& files) override;

    /// "--character %0" or "--stage %0".
    QString runParameters(int kind) const override;

    /// A folder beside the engine with a name that no other has, temporary as a whole.
    QString runPath(int kind, const QString& name, bool* wholeFolder) const override;

    /// For the player a folder of the person's own cache; any other engine finds them beside it.
    QString runFolder(const QString& executable) const override;

    /// The player is told the game and what each copy was made of, unless the person has written
    /// parameters for it; and by what name it reaches the editor.
    QStringList runArguments(const QString& executable, const QStringList& arguments,
                             const QVector<RunCopy>& copies) const override;

    /// The name of the local socket on which the player that is started next finds the editor;
    /// empty for none.
    void setPlayerSocket(const QString& name) { m_playerSocket = name; }
    void lastReferenceGone() override;

    /// False, and told through `Dialogs`, for a program of the game folder that is not any more
    /// what `FamilyEngineModel::gameProgram()` says.
    bool mayStart(const QString& executable) override;

    /// What is wrong with the files of the tree, by absolute path. Folders show what lies in them.
    void setProblems(const QHash<QString, Problems>& problems);

    /// The number of errors, and of warnings, of a row.
    enum Role { ErrorRole = Qt::UserRole + 1, WarningRole };

    /// What stands behind the names of files in the tree, by path; others have nothing there.
    void setFileMarks(const QHash<QString, QString>& marks);

    /// With the marks behind names, and what is wrong in the tool tip, and as
    /// `Qt::AccessibleDescriptionRole`.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

signals:
    /// The last project has gone; the host may delete this object later.
    void unused();

private:
    void addLooseFolder(const QString& folder);

    template <class Value>
    void tellRows(const QHash<QString, Value>& before, const QHash<QString, Value>& after);

    QHash<QString, ProblemTally> m_problems;  // by path, without "/" at its end
    QHash<QString, QString> m_marks;          // likewise
    QString m_playerSocket;
};

}  // namespace Family
