#pragma once

#include "zorv_export.h"

#include <QStringList>

namespace Zorv {

class ParentProject;
class ProjectFile;

/// Work that an editor has not yet stored in the file, such as strokes on a canvas.
///
/// An editor with such work creates one of these objects. It is registered for as long as it lives.
/// The work counts as unsaved: `ParentProject` stores it before it runs, backs up or saves. To mark
/// unsaved files or ask about them, a host must call `isUnsaved()` instead of
/// `ProjectFile::isModified()`. Main thread only.
class ZORV_EXPORT FileInput
{
public:
    FileInput();
    virtual ~FileInput();

    /// The file being worked on; null if there is no pending work. Called often.
    virtual ProjectFile* inputFile() const = 0;

    /// Stores the work in the file, as one undo step. Returns false, with the reason in `error`, if
    /// the file has no place for it any more. The work is then kept.
    virtual bool takeInput(QString* error) = 0;

    /// Discards the work and goes back to the content of the file. Does nothing if there is no
    /// work.
    virtual void dropInput() = 0;

    /// @name All objects together
    /// @{

    /// True if there is pending work on the file.
    static bool isOn(const ProjectFile* file);

    /// True if there is pending work or the file itself is modified. False for null.
    static bool isUnsaved(const ProjectFile* file);

    /// Stores all pending work on a file. Returns false if some of it could not be stored; `errors`
    /// (if not null) receives the reasons.
    static bool take(const ProjectFile* file, QStringList* errors = nullptr);

    /// The same for all files of the open projects of a game. Work that cannot be stored is kept.
    static void takeOf(const ParentProject* game);

    /// Discards all pending work on a file.
    static void drop(const ProjectFile* file);
    /// @}

private:
    Q_DISABLE_COPY(FileInput)
};

}  // namespace Zorv
