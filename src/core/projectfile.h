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

/// The common face of everything that a project holds.
///
/// The flag `asCopy` has one meaning everywhere: the content moves, but the
/// file keeps its identity. After `fromFile()` with it the file keeps its name
/// and archive and counts as modified; after `toFile()` with it name, archive
/// and modified state are as they were. Main thread only.
class ZORV_EXPORT ProjectFile
{
public:
    ProjectFile();

    /// Releases the file's own archive if it differs from its project's. A
    /// file without a project must have none.
    virtual ~ProjectFile();

    /// Where the file came from; `FileSystemArchive` if it has no other.
    virtual Archive* archive() const;

    /// The project that the file is registered in, or null.
    virtual Project* project() const;

    /// What the grammar says about the file; never null.
    virtual Messages* messages() const;

    /// The number of problems of the file.
    virtual int checkErrors() = 0;

    /// Bit 0 marks a file that is never saved on its own.
    virtual int capabilities() const;

    /// True if the file can be written now.
    virtual bool canSave() const;

    /// True if there is something to save.
    virtual bool isModified() const;

    /// True if there is nothing in the file.
    virtual bool isEmpty() const = 0;

    /// Empties the file and takes its name away.
    virtual void reset();

    /// Writes the file. On false nothing on disk has changed; `errorString()`
    /// tells why.
    virtual bool toFile(Archive& archive, const QString& fileName, bool asCopy);

    /// Reads the file. On false the content in memory is as it was;
    /// `errorString()` tells why.
    virtual bool fromFile(Archive& archive, const QString& fileName, bool asCopy);

    /// The path of the file, empty if it has none yet.
    virtual QString fileName() const;

    /// Opens and closes a step of undo that holds several edits. `title` is
    /// the name of the step.
    virtual void beginChange(const QString& title);
    virtual void endChange();

    virtual void undo();
    virtual void redo();

    /// True if there is a step to undo or redo. A file without a history has none.
    virtual bool canUndo() const;
    virtual bool canRedo() const;

    /// The title of that step, as `beginChange()` was given it; empty for a step without one.
    virtual QString undoTitle() const;
    virtual QString redoTitle() const;

    /// Gives the file up; how its object dies is the host's.
    virtual void release() = 0;

    /// True if the file must be looked at again when its project's main
    /// document changes; the library does not ask.
    virtual bool dependsOnMain() const;

    /// Why the last `fromFile()` or `toFile()` failed, in words for the person
    /// (what, where, what to do); empty after a success.
    QString errorString() const;

    /// A setting: the file's own value, else the project's, else the host's.
    QVariant option(const QString& key) const;

    /// Stores a setting, a null value removes it. With `inProject`, and in a
    /// project, it goes to the project (and with `global` to the host too);
    /// otherwise to the file itself.
    void setOption(const QString& key, const QVariant& value, bool inProject, bool global);

protected:
    /// Sets the file's own archive; null for `FileSystemArchive`. Not owned.
    void setArchive(Archive* archive);

    /// For `fromFile()` and `toFile()` of a derived class.
    void setErrorString(const QString& text);

private:
    friend class Project;
    Archive* m_archive = nullptr;
    std::unique_ptr<ProjectFilePrivate> d;
};

}  // namespace Zorv
