#pragma once

#include "zorv_export.h"

#include <QString>
#include <QVariant>

#include <memory>

namespace Zorv {

class Archive;
class Messages;
class Project;
class ProjectFilePrivate;

/// The common base of everything that a project contains.
///
/// The flag `asCopy` always means: the content is transferred, but the file keeps its identity.
/// After `fromFile()` with `asCopy` the file keeps its name and archive and counts as modified.
/// After `toFile()` with `asCopy` its name, archive and modified state are unchanged. Main thread
/// only.
class ZORV_EXPORT ProjectFile
{
public:
    ProjectFile();

    /// Releases the file's own archive if it differs from the project's. A file without a project
    /// must not have an archive.
    virtual ~ProjectFile();

    /// The archive the file came from. By default `FileSystemArchive`.
    virtual Archive* archive() const;

    /// The project in which the file is registered, or null.
    virtual Project* project() const;

    /// The parser's messages about the file; never null.
    virtual Messages* messages() const;

    /// The number of problems in the file.
    virtual int checkErrors() = 0;

    /// Bit 0 means that the file is never saved on its own.
    virtual int capabilities() const;

    /// True if the file can be written now.
    virtual bool canSave() const;

    /// True if there are unsaved changes.
    virtual bool isModified() const;

    /// True if the file has no content.
    virtual bool isEmpty() const = 0;

    /// Removes the content and the name.
    virtual void reset();

    /// Writes the file. On false nothing on disk has changed; `errorString()` gives the reason.
    virtual bool toFile(Archive& archive, const QString& fileName, bool asCopy);

    /// Reads the file. On false the content in memory is unchanged; `errorString()` gives the
    /// reason.
    virtual bool fromFile(Archive& archive, const QString& fileName, bool asCopy);

    /// The path of the file, empty if it has none yet.
    virtual QString fileName() const;

    /// Start and end an undo step that combines several edits. `title` is the name of the step.
    virtual void beginChange(const QString& title);
    virtual void endChange();

    virtual void undo();
    virtual void redo();

    /// True if there is a step to undo or redo. Always false for files without a history.
    virtual bool canUndo() const;
    virtual bool canRedo() const;

    /// The title of that step, as passed to `beginChange()`. Empty for a step without a title.
    virtual QString undoTitle() const;
    virtual QString redoTitle() const;

    /// Gives up the file. The host decides how the object is deleted.
    virtual void release() = 0;

    /// True if the file must be checked again when its project's main document changes. The library
    /// does not use this.
    virtual bool dependsOnMain() const;

    /// The reason why the last `fromFile()` or `toFile()` failed, in words for the user (what,
    /// where, what to do). Empty after a success.
    QString errorString() const;

    /// A setting: the file's own value, otherwise the project's, otherwise the host's.
    QVariant option(const QString& key) const;

    /// Stores a setting; a null value removes it. With `inProject`, and if the file is in a
    /// project, it is stored in the project (with `global` also in the host). Otherwise it is
    /// stored in the file itself.
    void setOption(const QString& key, const QVariant& value, bool inProject, bool global);

protected:
    /// Sets the file's own archive; null means `FileSystemArchive`. Not owned.
    void setArchive(Archive* archive);

    /// For the `fromFile()` and `toFile()` of derived classes.
    void setErrorString(const QString& text);

private:
    friend class Project;
    Archive* m_archive = nullptr;
    std::unique_ptr<ProjectFilePrivate> d;
};

}  // namespace Zorv
