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
/// The class manages the registration of files by kind, the settings between file and host, and
/// saving all files at once. It knows no file format. A host derives from it, decides which files
/// belong to a project and creates them. The project owns the registered files in this sense:
/// `release()` and `removeFile()` call `ProjectFile::release()` on them. The host deletes the
/// project itself. Main thread only.
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

    /// Creates a project for its main document and registers the document under `id`. The
    /// document's settings "parseCode" and "highlightCode" move to the project, so that all its
    /// files share them.
    Project(ParentProject* parent, CodeDocument* mainDocument, FileID id);
    ~Project() override;

    /// The display name of the project.
    virtual QString title() const = 0;

    /// Closes the project: releases its own archive, unregisters from the `ParentProject` and
    /// releases all files.
    virtual void release();

    /// True if every file is empty, or if there are no files.
    virtual bool isEmpty() const;

    /// Loads the files that the main document refers to and that are not yet registered.
    virtual void loadFiles() = 0;

    /// The kinds of file that this project can hold.
    virtual FileID fileTypes() const = 0;

    /// Creates and registers an empty file of a kind. Null if that kind cannot be created.
    virtual ProjectFile* newFile(FileID::Type type) = 0;

    /// Resolves a `path` in the main document to a path relative to the project's folder.
    virtual QString resolvePath(const QString& path) const = 0;

    /// The display name of file number `index` of this kind. `index` may be -1.
    virtual QString fileTitle(FileID::Type type, int index) const = 0;

    /// The selected file of a kind. The first one if the selection is out of range, null if there
    /// is none. `file(FileID::MainCode)` is the main document.
    virtual ProjectFile* file(FileID::Type type) const;

    /// Appends every file that the main document refers to, loaded or not.
    virtual void fileInfos(QList<FileInfo>& list) = 0;

    /// The screen size of the game in pixels, and the size of its pixels relative to sprite pixels
    /// in x and y. Empty and 0 by default, which means unknown.
    virtual QSize gameSize() const;
    virtual QPointF scale() const;

    /// Writes the whole project below the folder `path`, which ends with a separator. The project
    /// keeps its place relative to the parent's folder.
    ///
    /// With `asCopy` all files keep their identity: modified files are written from memory, and
    /// everything else the project refers to is copied byte by byte. Without it all files move to
    /// the new place, except the main document, which the caller must write. Files outside the
    /// project's folder are neither written nor copied. `files` (if given) gets the relative paths
    /// of all files appended. Several files of one kind are all kept.
    virtual void saveAll(const QString& path, bool asCopy, QStringList* files);

    /// The relative paths of the files that the last `saveAll()` could not write or copy.
    QStringList failedFiles() const;

    /// Reloads every file that exists on disk.
    virtual void reload();

    /// Registers a file under the kinds of `id`, in addition to the ones it has. Its messages are
    /// added to the project's, once per call. A file is removed from its previous project, if that
    /// is another one. A file that is destroyed removes itself.
    void addFile(ProjectFile* file, FileID id);

    /// Removes a file from all lists and returns it. Its messages stay in the project's list until
    /// the file is destroyed.
    ProjectFile* takeFile(ProjectFile* file);

    /// Removes a file and releases it.
    void removeFile(ProjectFile* file);

    /// Removes a file from one list. Releases it if it has no other kind.
    void removeFile(FileID::Type type, unsigned index);

    /// Moves a file within the list of a kind. Does nothing if an index is out of range.
    void moveFile(FileID::Type type, unsigned from, unsigned to);

    QList<ProjectFile*> files() const;
    const QMap<ProjectFile*, FileID>& filesWithIDs() const;

    /// The files of one kind in their order; empty for an unknown kind.
    QList<ProjectFile*> filesByType(FileID::Type type) const;

    /// The kinds of a file; 0 if it is not registered here.
    FileID fileID(ProjectFile* file) const;

    unsigned selectedFile(FileID::Type type) const;
    void setSelectedFile(FileID::Type type, unsigned index);

    /// The path of the main document.
    QString fileName() const;

    /// The folder of the main document, with "/" at its end.
    QString absolutePath() const;

    /// The project's folder relative to the parent's folder. It removes as many characters from
    /// `absolutePath()` as the parent's path has, without comparing them.
    QString basePath() const;

    /// The messages of all files.
    MessageList* messages() const;

    ParentProject* parent() const;

    /// The `projectKind()` of the main document at construction time.
    int kind() const;

    /// The archive with the project's files. Not owned.
    Archive* archive() const;
    void setArchive(Archive* archive);

    /// Registers the project in its parent's tree. The host calls it after registering the files.
    void addToParent();

    /// A setting: the project's own value if it has one, otherwise the host's.
    QVariant option(const QString& key) const;

    /// Stores a setting in the project; with `global` also in the host, first. A null value removes
    /// it.
    void setOption(const QString& key, const QVariant& value, bool global);

protected:
    /// For a `saveAll()` that writes more files: reports a file that failed, by its path relative
    /// to the project.
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

/// Sorts files by path, case-sensitive.
struct CompareProjectFile
{
    bool operator()(const Project::FileInfo& a, const Project::FileInfo& b) const
    {
        return a.path < b.path;
    }
};

}  // namespace Zorv
