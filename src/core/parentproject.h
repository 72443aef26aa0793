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

/// One game folder: a tree of the paths in it, as an item model, and the projects that are open.
///
/// The tree shows folders. Under each open project it shows the files that the project's main
/// document currently refers to. A host derives from this class for each engine family and adds the
/// folders to list. The host owns the object, which lives as long as the game folder is open. The
/// object owns the tree but no project. Main thread only.
class ZORV_EXPORT ParentProject : public QAbstractItemModel
{
    Q_OBJECT

public:
    /// What a folder of the tree reads from disk and lists.
    enum PathTypeFlag {
        ListNothing = 0,  ///< shows only what is added to it, and is not watched
        ListFolders = 1,  ///< its sub-folders: each one is a project
        ListFiles = 2     ///< its files that match the filters: each one is a project
    };
    Q_DECLARE_FLAGS(PathType, PathTypeFlag)

    /// A node of the tree, as a host sees it. Owned by the tree.
    class ZORV_EXPORT Path
    {
    public:
        virtual ~Path();

        /// The full path, with "/" at the end for a folder. A listed file that belongs to no open
        /// project returns the path of its folder.
        virtual QString absolutePath() const = 0;

        /// The last component.
        virtual QString pathName() const = 0;

        virtual bool isDirectory() const = 0;

        /// True if the node is a project, open or not: a folder or file that its parent folder
        /// lists. Files of an open project are not projects.
        virtual bool isProject() const = 0;

        /// True for a file that an open project refers to.
        virtual bool isFile() const = 0;

        /// The kinds of such a file; 0 for all other nodes.
        virtual FileID fileID() const = 0;
    };

    /// Creates a tree for the folder `rootPath`, with or without a slash at the end. The archive is
    /// not owned.
    ParentProject(const QString& rootPath, Archive& archive);
    ~ParentProject() override;

    /// The model of this engine family.
    virtual EngineModel* engineModel() const = 0;

    /// The icon for a kind of file. If it is null, `data()` chooses one.
    virtual QIcon fileIcon(FileID id) const;

    /// Appends all files of the project at `path`, relative to the root. That project is not open.
    virtual void projectFiles(const QString& path, QStringList& files) = 0;

    /// The parameter string for starting an engine with this kind of project.
    virtual QString runParameters(int kind) const = 0;

    /// The folder for a temporary copy of a project, relative to the engine's folder; empty if the
    /// project cannot run there. Set `*wholeFolder` to true if the folder itself is temporary; it
    /// must not exist yet then. `name` is the future name of the copied main file.
    virtual QString runPath(int kind, const QString& name, bool* wholeFolder) const = 0;

    /// The folder in which the copies for an executable (full path) are made. It must exist. By
    /// default it is the folder of the executable. In another folder, the parameters use full paths
    /// of the copies.
    virtual QString runFolder(const QString& executable) const;

    /// A copy made by `run()`: the copied main file, the original (empty if it was never saved) and
    /// the kind of the project.
    struct RunCopy
    {
        QString copy;
        QString original;
        int kind = 0;
    };

    /// The arguments passed to an executable. By default this is `arguments`, which were built from
    /// the parameter string. A host can add what else the engine must know about the copies. All
    /// paths in `copies` are full paths.
    virtual QStringList runArguments(const QString& executable, const QStringList& arguments,
                                     const QVector<RunCopy>& copies) const;

    /// Called when the last project has been released. The host may delete this object later, but
    /// not inside the call.
    virtual void lastReferenceGone() = 0;

    /// Called by `run()` when all copies are made, right before it starts an executable (full
    /// path). False cancels the run as if the user had done so; the host must explain why. True by
    /// default.
    virtual bool mayStart(const QString& executable);

    /// Registers the project of a main document in that document's folder, which is added if it is
    /// missing. A document without a file name goes to the root.
    ///
    /// From then on the tree follows the files that the document refers to, and changes only when
    /// they change. When the project is released, its node is removed. A listed folder or file is
    /// then shown as a closed project again. The first project creates the backup "Auto" if the
    /// setting "backup_onload" is true and the document has a file name.
    void addRef(CodeDocument* main);

    /// Adds a folder and every missing folder on the way, all with `type` and `filters`. Returns
    /// its node; null for the root itself. A path that does not begin with the root is relative to
    /// it. An existing folder is not changed.
    Path* addPath(const QString& path, PathType type, const QStringList& filters);

    /// Removes a folder and everything below it; does nothing if it is unknown. What belongs to an
    /// open project stays until that project is released. The rest is removed, and nothing is
    /// listed there any more.
    void removePath(const QString& path);

    /// The node of an index; null for an invalid index.
    Path* itemPath(const QModelIndex& index) const;

    /// The index of the node at `path`; invalid if there is none.
    QModelIndex indexOf(const QString& path) const;

    QList<Project*> openedProjects() const;
    Archive* archive() const;

    /// The root folder, with "/" at its end. `basePath()` is the same.
    QString absolutePath() const;
    QString basePath() const;

    /// True if the root contains the engine's executable: a whole game, not just a project.
    bool isGame() const;

    /// Appends the paths, relative to the root, of all projects that are not open.
    void listProjects(QStringList& list) const;

    /// @name All projects at once
    /// These functions show their progress and finish in the main thread, unless the user cancels.
    /// After cancelling, finished work is kept and every file is complete. Then `failedFiles()`
    /// lists what could not be written.
    /// @{

    /// Copies all open projects, with their unsaved changes, to a new folder below "backup/", named
    /// after the time and `name`. Always returns true. Pending work (`FileInput`) is stored first,
    /// here and in `save()`, `saveAs()` and `run()`.
    ///
    /// The folder gets this name only when it contains every file that exists. A backup that is
    /// cancelled, fails or whose process ends does not count, and leaves at most files that the
    /// next backup removes. If a backup with the same name and second exists, the files are added
    /// to it.
    bool backup(const QString& name);

    /// Like `backup()`, but returns the name of the folder; empty if no backup was made. After all
    /// files are copied, `isComplete` (if given) is called with the folder, which ends in "/". It
    /// may add files. Its result replaces the rule above for what counts as complete.
    QString makeBackup(const QString& name,
                       const std::function<bool(const QString& folder)>& isComplete = {});

    /// Copies all files of a folder below "backup/" over those of the game and reloads the open
    /// projects. Unsaved changes are lost. Files that are not in the backup stay as they are.
    /// Returns false, without doing anything, if the archive is read-only or `folderName` is not a
    /// plain folder name. Otherwise returns true, even if files failed.
    bool restoreBackup(const QString& folderName);

    /// The folders below "backup/" that can be passed to `restoreBackup()`, newest first.
    QStringList backups() const;

    /// The time of a backup, from the name of its folder; invalid if the name has another form.
    /// `name` (if given) receives the name of the backup.
    static QDateTime backupTime(const QString& folderName, QString* name = nullptr);

    /// The files that `restoreBackup()` would copy, relative to the game: everything in that folder
    /// except hidden or unreadable files and links.
    QStringList backupFiles(const QString& folderName) const;

    /// Saves every modified file of the open projects. If a file has no name or no longer exists on
    /// disk, its `FileEditor` asks for a name.
    void save();

    /// Saves everything to a new place, where work then continues. If one project is open and it
    /// belongs to no game, `newRoot` is the new name of its main file. Otherwise `newRoot` is a
    /// folder, with "/" at its end, and all projects of the game are saved there, open or not. If a
    /// file of an open project cannot be written or the user cancels, the root stays and all files
    /// get their old names back. Files already written to the new place stay there.
    void saveAs(const QString& newRoot);

    /// What the last of these operations could not write or copy. Paths are relative to the game,
    /// or for `save()` to the project. A project without a file is listed by its title, a backup
    /// that could not be started by its folder. Empty on success.
    QStringList failedFiles() const;

    /// True if the user cancelled the last of these operations.
    bool wasCanceled() const;
    /// @}

    /// @name The engine
    /// @{

    /// Starts an engine on the current state of the work. The projects named in its parameter
    /// string are written as temporary copies, which are removed when the engine ends. Existing
    /// files in the engine's folder are not changed.
    ///
    /// Runs the executable in the game folder, if there is one. Otherwise the user chooses one
    /// of the configured engines. In the parameters, "%0" stands for the current project and "%1"
    /// and up for the open projects. The engine receives the path of the copied main file, relative
    /// to the engine's folder, which is also its working folder. Blanks separate arguments, but a
    /// path always remains one argument. Errors are shown through `Dialogs`.
    ///
    /// Returns when the engine has ended. Events are processed meanwhile. Even deleting the tree is
    /// allowed; it ends the engine like `stopEngine()`.
    void run();

    /// True while an engine is running.
    bool isRunning() const;

    /// Writes a temporary copy of an open project, with its unsaved changes, for the engine that is
    /// already running, as `run()` does for "%0". The host must then notify the engine of `*copy`
    /// itself. The previous copy stays because the engine may still be reading it; older ones are
    /// removed. Pending work (`FileInput`) is left out, unless the host stores it first.
    ///
    /// `*failed` receives the files that could not be copied, relative to the game. Returns false
    /// if no engine is running or if there is no main file to pass to it. Events may be processed.
    bool copyForEngine(Project* project, RunCopy* copy, QStringList* failed);

    /// How the last `run()` ended.
    RunResult runResult() const;

    /// Ends the engine: asks it to quit first, and kills it if it is still there after a few
    /// seconds. Returns at once; does nothing if no engine is running. A host must call it when it
    /// closes, because `run()` would keep the program alive until the user ends the engine.
    void stopEngine();
    /// @}

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;

    /// The name, tool tip and icon of a node.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    using QAbstractItemModel::headerData;
    using QObject::parent;

signals:
    /// The engine was started as `program` with `arguments`.
    void engineStarted(const QString& program, const QStringList& arguments);

    /// Output of the engine, from stdout or stderr; at most 64 KB. The engine waits until it has
    /// been handled, so no backlog builds up.
    void engineOutput(const QByteArray& bytes);

    /// The engine has ended or could not be started; see `runResult()`. The temporary copies have
    /// been removed.
    void engineFinished();

private:
    friend class ParentProjectPrivate;
    friend class Project;
    std::unique_ptr<ParentProjectPrivate> d;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(ParentProject::PathType)

}  // namespace Zorv
