#pragma once

#include "zorv_export.h"

#include <QStringList>

namespace Zorv {

class ParentProject;
class ProjectFile;

/// Work on a file that has not gone into it yet, such as what is painted on a canvas.
///
/// An editor with such work makes one of these, which is known as long as it lives. The work counts
/// as unsaved: `ParentProject` takes it in before it runs, backs up or saves, and a host asks
/// `isUnsaved()` in place of `ProjectFile::isModified()` wherever it marks or asks about unsaved
/// files. Main thread only.
class ZORV_EXPORT FileInput
{
public:
    FileInput();
    virtual ~FileInput();

    /// The file that there is work on; null while there is none. Asked often.
    virtual ProjectFile* inputFile() const = 0;

    /// Puts the work into the file, as one step of undo. False, with a reason in `error`, if it
    /// has no place there any more; it stays where it is then.
    virtual bool takeInput(QString* error) = 0;

    /// Gives the work up, for what the file has. Nothing without any.
    virtual void dropInput() = 0;

    /// @name All of them together
    /// @{

    /// True if there is such work on the file.
    static bool isOn(const ProjectFile* file);

    /// True for that, and for a file that is modified itself. False for null.
    static bool isUnsaved(const ProjectFile* file);

    /// Takes in what there is on a file. False if some of it stays; `errors`, if not null, gets
    /// the reasons.
    static bool take(const ProjectFile* file, QStringList* errors = nullptr);

    /// The same for all files of the open projects of a game; what cannot be taken in stays.
    static void takeOf(const ParentProject* game);

    /// Drops what there is on a file.
    static void drop(const ProjectFile* file);
    /// @}

private:
    Q_DISABLE_COPY(FileInput)
};

}  // namespace Zorv
