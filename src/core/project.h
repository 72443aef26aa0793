#pragma once

#include "core/fileid.h"
#include "zorv_export.h"

#include <QList>
#include <QMap>
#include <QObject>
#include <QPointF>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>

namespace Zorv {

class Archive;
class CodeDocument;
class MessageList;
class ParentProject;
class ProjectFile;
class ProjectPrivate;

/// One editable unit of a game folder: a main code document and its files.
///
/// The class keeps the registration of files by kind, the settings between file
/// and host, and the save of all files at once. It knows no file format: a host
/// derives from it, says which files belong to a project and makes them. The
/// registered files are owned by the project in this sense: `release()` and
/// `removeFile()` hand them back through `ProjectFile::release()`. The project
/// itself is the host's to delete. Main thread only.
class ZORV_EXPORT Project : public QObject
{
    Q_OBJECT

public:
    using FileID = Zorv::FileID;

    /// A file that a project refers to.
    struct FileInfo
    {
        FileID id;
        QString path;  ///< relative to the project's folder
    };

    /// Makes a project on its main document and registers it under `id`. The
    /// settings "parseCode" and "highlightCode" of the document move to the
    /// project, so that all its files share them.
    Project(ParentProject* parent, CodeDocument* mainDocument, FileID id);
    ~Project() override;

    /// The name of the project for the person.
    virtual QString title() const = 0;

    /// Ends the project: its own archive is released, the `ParentProject`
    /// forgets it, and every file is released.
    virtual void release();

    /// True if every file is empty, and for no file at all.
    virtual bool isEmpty() const;

    /// Loads the files that the main document refers to and that are not
    /// registered yet.
    virtual void loadFiles() = 0;

    /// The kinds of file that this project can hold.
    virtual FileID fileTypes() const = 0;

    /// Makes and registers an empty file of a kind; null if that kind cannot be made.
    virtual ProjectFile* newFile(FileID::Type type) = 0;

    /// Where a file that the main document names by `path` lies: relative to
    /// the project's folder.
    virtual QString resolvePath(const QString& path) const = 0;

    /// The name under which the file at that place of the list of that kind is
    /// shown to the person. `index` may be -1.
    virtual QString fileTitle(FileID::Type type, int index) const = 0;

    /// The selected file of a kind, the first one if the selection is stale,
    /// null if there is none. `file(FileID::MainCode)` is the main document.
    virtual ProjectFile* file(FileID::Type type) const;

    /// Appends every file that the main document refers to, loaded or not.
    virtual void fileInfos(QList<FileInfo>& list) = 0;

    /// The screen of the game in pixels, and by how much its pixels are larger than those of
    /// sprites in x and y. As they stand here, empty and 0: nothing is known.
    virtual QSize gameSize() const;
    virtual QPointF scale() const;

    /// Writes the whole project below the folder `path`, which ends in a
    /// separator, keeping the project's place below its parent folder.
    ///
    /// With `asCopy` files keep their identity: what is modified is written
    /// from memory, everything else that the project refers to travels as
    /// bytes. Without it every file moves to the new place, except the main
    /// document, which the caller writes. A file outside of the project's
    /// folder is neither written nor copied. `files`, if given, takes the
    /// relative path of every file, at its end. Several files of one kind are
    /// all kept.
    virtual void saveAll(const QString& path, bool asCopy, QStringList* files);

    /// The files of which the last `saveAll()` could not write or copy the
    /// target, as relative paths.
    QStringList failedFiles() const;

    /// Reads every file again that exists on disk.
    virtual void reload();

    /// Registers a file under the kinds of `id`, beside those that it has. Its
    /// messages join those of the project: once more for each call. A file of
    /// another project leaves that one; a file that dies leaves its project.
    void addFile(ProjectFile* file, FileID id);

    /// Takes a file out of every list and returns it. Its messages stay in the
    /// project's list, and go when the file dies.
    ProjectFile* takeFile(ProjectFile* file);

    /// Takes a file out and releases it.
    void removeFile(ProjectFile* file);

    /// Takes a file out of one list; releases it if that was its only kind.
    void removeFile(FileID::Type type, unsigned index);

    /// Moves a file inside the list of a kind; nothing if an index is out of range.
    void moveFile(FileID::Type type, unsigned from, unsigned to);

    QList<ProjectFile*> files() const;
    const QMap<ProjectFile*, FileID>& filesWithIDs() const;

    /// The files of one kind in their order; empty for an unknown kind.
    QList<ProjectFile*> filesByType(FileID::Type type) const;

    /// The kinds of a file; 0 for a stranger.
    FileID fileID(ProjectFile* file) const;

    unsigned selectedFile(FileID::Type type) const;
    void setSelectedFile(FileID::Type type, unsigned index);

    /// The path of the main document.
    QString fileName() const;

    /// The folder of the main document, with "/" at its end.
    QString absolutePath() const;

    /// The project's folder relative to the parent's: `absolutePath()` without
    /// as many characters as that of the parent has. The text is not compared.
    QString basePath() const;

    /// The messages of all files.
    MessageList* messages() const;

    ParentProject* parent() const;

    /// The `projectKind()` of the main document, as it was at construction.
    int kind() const;

    /// Where the project's files live. Not owned.
    Archive* archive() const;
    void setArchive(Archive* archive);

    /// Registers the project in the tree of its parent. The host calls it once
    /// the files are registered.
    void addToParent();

    /// A setting: the project's own value, else the host's.
    QVariant option(const QString& key) const;

    /// Stores a setting in the project, and with `global` in the host first; a
    /// null value removes it.
    void setOption(const QString& key, const QVariant& value, bool global);

protected:
    /// For a `saveAll()` that writes more files: takes up one that failed, by its path
    /// relative to the project.
    void addFailedFile(const QString& path);

private:
    friend class ParentProjectPrivate;
    friend class ProjectFile;
    class Place;
    void forgetFile(ProjectFile* file);

    int m_kind;
    std::unique_ptr<ProjectPrivate> d;
    Archive* m_archive;
};

/// Orders files by path, with case.
struct CompareProjectFile
{
    bool operator()(const Project::FileInfo& a, const Project::FileInfo& b) const
    {
        return a.path < b.path;
    }
};

}  // namespace Zorv
