#pragma once

#include "core/fileid.h"
#include "core/run/runresult.h"
#include "zorv_export.h"

#include <QAbstractItemModel>
#include <QDateTime>
#include <QFlags>
#include <QIcon>
#include <QList>
#include <QStringList>

#include <functional>
#include <memory>

namespace Zorv {

class Archive;
class CodeDocument;
class EngineModel;
class ParentProjectPrivate;
class Project;

/// One game folder: a tree of paths below it as an item model, and the projects
/// open in it.
///
/// The tree shows folders and, under each open project, the files that its main
/// document refers to at the moment. A host derives from it for each engine
/// family, and adds the folders that it wants listed. It is the host's: it
/// lives as long as the folder is open, and owns the tree but no project. Main
/// thread only.
class ZORV_EXPORT ParentProject : public QAbstractItemModel
{
    Q_OBJECT

public:
    /// What a folder of the tree lists of its own accord.
    enum PathTypeFlag {
        ListNothing = 0,  ///< shows only what is added to it, and is not watched
        ListFolders = 1,  ///< its sub-folders: each stands for a project
        ListFiles = 2     ///< its files that match the filters: each stands for a project
    };
    Q_DECLARE_FLAGS(PathType, PathTypeFlag)

    /// A node of the tree as a host sees it. Owned by the tree.
    class ZORV_EXPORT Path
    {
    public:
        virtual ~Path();

        /// The full path; a folder's ends in "/". A listed file that belongs
        /// to no open project gives that of its folder.
        virtual QString absolutePath() const = 0;

        /// The last component.
        virtual QString pathName() const = 0;

        virtual bool isDirectory() const = 0;

        /// True if the node stands for a project, open or not: a folder or a
        /// file that its folder lists. A file of an open project is none.
        virtual bool isProject() const = 0;

        /// True for a file that an open project refers to.
        virtual bool isFile() const = 0;

        /// The kinds of such a file; 0 for any other node.
        virtual FileID fileID() const = 0;
    };

    /// A tree on the folder `rootPath`, with or without a slash at its end. The
    /// archive is not owned.
    ParentProject(const QString& rootPath, Archive& archive);
    ~ParentProject() override;

    /// The model of this engine family.
    virtual EngineModel* engineModel() const = 0;

    /// The icon of a kind of file; a null icon lets `data()` choose.
    virtual QIcon fileIcon(FileID id) const;

    /// Appends, relative to the root, all files of the project at `path`, which
    /// is not open.
    virtual void projectFiles(const QString& path, QStringList& files) = 0;

    /// The parameter string with which an engine is started for a kind of project.
    virtual QString runParameters(int kind) const = 0;

    /// The folder, relative to the engine's, for a temporary copy of a project;
    /// empty if it cannot be run there. `*wholeFolder` is set to true when that
    /// folder is temporary as a whole; it must not be there yet then. `name` is what
    /// the copy of the main file will be called.
    virtual QString runPath(int kind, const QString& name, bool* wholeFolder) const = 0;

    /// The folder in which the copies for an executable (its full path) are made; it has to be
    /// there. That of the executable, unless a host says otherwise: parameters name copies in
    /// another one by their full paths.
    virtual QString runFolder(const QString& executable) const;

    /// A copy that `run()` has made: its main file, that of the project, which is empty if it was
    /// never saved, and the kind of the project.
    struct RunCopy
    {
        QString copy;
        QString original;
        int kind = 0;
    };

    /// What is passed to an executable: `arguments`, as the parameters give them, unless a host
    /// knows what else it has to be told of the copies. Their paths are full ones.
    virtual QStringList runArguments(const QString& executable, const QStringList& arguments,
                                     const QVector<RunCopy>& copies) const;

    /// Called when the last project has gone; the host may delete this object
    /// later, not in the call.
    virtual void lastReferenceGone() = 0;

    /// Asked by `run()` right before it starts an executable (its full path), when all copies are
    /// made: false ends the run, as if the person had given it up. The host tells why. True, unless
    /// a host says otherwise.
    virtual bool mayStart(const QString& executable);

    /// Registers the project of a main document in the folder of that, which is
    /// added if it is missing; a document without a file name goes to the root.
    ///
    /// From then on the tree follows the files that the document refers to, and
    /// is touched only when they change. When the project is released its node
    /// goes; a listed folder or file is then shown as a closed project again.
    /// The first project makes the backup "Auto", if the setting
    /// "backup_onload" is true and the document has a file name.
    void addRef(CodeDocument* main);

    /// Adds a folder, with every missing one on the way, which all get `type`
    /// and `filters`; gives its node. A path that does not begin with the root
    /// counts as relative to it. A folder that is there already stays as it is.
    /// Null for the root itself.
    Path* addPath(const QString& path, PathType type, const QStringList& filters);

    /// Removes a folder with all below it; nothing for an unknown one. What
    /// belongs to an open project stays until that is released; the rest goes,
    /// and nothing there is listed any more.
    void removePath(const QString& path);

    /// The node of an index; null for an invalid one.
    Path* itemPath(const QModelIndex& index) const;

    /// The index of the node at `path`; invalid if there is none.
    QModelIndex indexOf(const QString& path) const;

    QList<Project*> openedProjects() const;
    Archive* archive() const;

    /// The root folder, with "/" at its end. `basePath()` is the same.
    QString absolutePath() const;
    QString basePath() const;

    /// True if the root holds the engine's executable: a whole game, not a
    /// loose project.
    bool isGame() const;

    /// Appends the paths, relative to the root, of all projects that are not open.
    void listProjects(QStringList& list) const;

    /// @name All projects at once
    /// All of these show their progress and run to the end in the main thread,
    /// unless the person gives them up: what is done then stays, and every file
    /// is whole. Afterwards `failedFiles()` tells what could not be written.
    /// @{

    /// Copies all open projects, with their unsaved changes, into a new folder
    /// below "backup/", named after the time and `name`. True in every case.
    /// What has not gone into its file yet (`FileInput`) is taken in before, here and
    /// in `save()`, `saveAs()` and `run()`.
    ///
    /// The folder has that name only once it is complete: all files are in it
    /// that were there. One that is given up, that fails or whose process ends
    /// is no backup and leaves nothing, or nothing that the next one does not remove.
    /// If there is a backup of this name and second, the files join it then.
    bool backup(const QString& name);

    /// As `backup()`, and gives the name of the folder; empty if there is none. When
    /// all is copied `isComplete`, if given, is called with the folder, which
    /// ends in "/": it may add files, and decides in place of the rule above.
    QString makeBackup(const QString& name,
                       const std::function<bool(const QString& folder)>& isComplete = {});

    /// Copies all files of a folder below "backup/" over those of the game, and
    /// reads the open projects again; unsaved changes are lost. What the backup
    /// lacks stays as it is. False, with nothing done, if the archive is read
    /// only or `folderName` is no name of one folder; else true, whatever failed.
    bool restoreBackup(const QString& folderName);

    /// The folders below "backup/" that may be given to `restoreBackup()`, the
    /// youngest first.
    QStringList backups() const;

    /// When a backup was made, from the name of its folder; invalid for a folder of
    /// another form. `name`, if given, takes the name of the backup.
    static QDateTime backupTime(const QString& folderName, QString* name = nullptr);

    /// The files, relative to the game, that `restoreBackup()` would copy: all in
    /// that folder but hidden and unreadable ones and links.
    QStringList backupFiles(const QString& folderName) const;

    /// Writes every modified file of the open projects. One without a name is
    /// given to its `FileEditor`, which asks for one.
    void save();

    /// Saves everything under a new place, where the work goes on. With one open
    /// project that belongs to no game `newRoot` is the new name of its main file;
    /// else it is a folder, with "/" at its end, and all projects of the game go
    /// there, open or not. If a file of an open project cannot be written there, or
    /// the person gives up, the root stays, all files have their old names again,
    /// and what was written stays at the new place.
    void saveAs(const QString& newRoot);

    /// What the last of these could not write or copy: paths relative to the
    /// game, or for `save()` to the project; the title for a project that has no
    /// file yet, the folder for a backup that could not be begun. Empty if all went
    /// well.
    QStringList failedFiles() const;

    /// True if the person gave the last of these up.
    bool wasCanceled() const;
    /// @}

    /// @name The engine
    /// @{

    /// Starts an engine on the work in progress: the projects that its parameter
    /// string asks for are written as temporary copies beside it, which go when
    /// it ends. What the engine's folder held before stays as it is.
    ///
    /// The executable is that of the game folder, else one of the configured
    /// engines, which the person chooses. "%0" in the parameters stands for the
    /// project in front, "%1" and up for the open ones; the engine gets the path
    /// of the copy of the main file, relative to the engine's folder, in which it
    /// is started. Blanks separate arguments; a path stays one. Failures are told
    /// through `Dialogs`.
    ///
    /// Returns when the engine has ended. Events are processed meanwhile, and the
    /// tree may even be deleted, which ends the engine as `stopEngine()` does.
    void run();

    /// True while an engine runs.
    bool isRunning() const;

    /// Writes a temporary copy of an open project for the engine that runs already, with its
    /// unsaved changes, as `run()` does for "%0". The host then tells the engine of `*copy`, by a
    /// way of its own. The copy before this one stays, for the engine may be reading it; older
    /// ones are removed. What has not gone into its file yet (`FileInput`) is left out, unless
    /// the host takes it in before.
    ///
    /// `*failed` gets what could not be copied, relative to the game. False if no engine runs, or
    /// there is no main file to be told of. Events may be processed.
    bool copyForEngine(Project* project, RunCopy* copy, QStringList* failed);

    /// How the last `run()` ended.
    RunResult runResult() const;

    /// Ends the engine: asks it first, and kills it if it does not go within
    /// seconds. Returns at once; nothing if none runs. A host that closes calls it,
    /// for `run()` would keep the program until the person ends the engine.
    void stopEngine();
    /// @}

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;

    /// Name, tool tip and icon of a node.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    using QAbstractItemModel::headerData;
    using QObject::parent;

signals:
    /// The engine has been started as `program` with `arguments`.
    void engineStarted(const QString& program, const QStringList& arguments);

    /// The engine has printed something, on either of its two channels: at most
    /// 64 KB. It waits while this is taken in, so nothing piles up.
    void engineOutput(const QByteArray& bytes);

    /// The engine has ended, or could not be started; see `runResult()`. The
    /// temporary copies are gone.
    void engineFinished();

private:
    friend class ParentProjectPrivate;
    friend class Project;
    std::unique_ptr<ParentProjectPrivate> d;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(ParentProject::PathType)

}  // namespace Zorv
