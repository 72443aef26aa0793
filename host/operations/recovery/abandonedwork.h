#pragma once

#include "operations/recovery/recoverycopy.h"

#include <QList>
#include <QString>

#include <memory>
#include <vector>

namespace Zorv {
class CodeDocument;
class ProjectFile;
}  // namespace Zorv

namespace Operations {

class SessionFolder;
struct CanvasCopy;

/// A copy that a process left behind, and what can be done with it.
struct AbandonedWork
{
    enum State {
        Applicable,   ///< its file is what it was when the work began, or was never saved
        FileChanged,  ///< the file was changed since
        FileGone,
        Damaged  ///< `copy` is empty, `fault` tells why
    };

    QString path;       ///< of the copy
    RecoveryCopy copy;  ///< without `assets`, which stay on the disk
    State state = Damaged;
    QString fault;  ///< why a damaged copy cannot be read

    /// The copy, and what its file holds now, as lines that can be compared. A text is read in the
    /// encoding of the copy.
    QString unsavedLines() const;
    QString fileLines() const;

    /// Looks at the file again.
    bool isStillApplicable() const;

    /// Removes the copy for good; false if that fails.
    bool discard() const;

    /// Writes the work to a file, which keeps its old content if that fails. False
    /// with `error` then.
    bool saveElsewhere(const QString& fileName, QString* error) const;

    /// Gives it to a document or collection of that file as unsaved changes: one step of undo.
    /// False, with `error`, for a file of another kind, a canvas, or if the copy is damaged by now.
    bool restore(Zorv::ProjectFile* file, QString* error) const;

    /// Reads a canvas, which only an editor can restore. False with `error` if that fails.
    bool readCanvas(CanvasCopy* canvas, QString* error) const;
};

/// The copies of all processes that are gone. As long as the object lives no
/// other process finds them; those that are not discarded are found again
/// afterwards. Copies that say what their file says are removed at once.
class AbandonedWorks
{
public:
    /// Looks below `root`; with a game folder (with "/" at its end) only for
    /// copies of that game.
    explicit AbandonedWorks(const QString& root, const QString& gameFolder = {});
    ~AbandonedWorks();

    const QList<AbandonedWork>& all() const { return m_works; }

private:
    void read(const QString& path, const QString& gameFolder);

    std::vector<std::unique_ptr<SessionFolder>> m_folders;
    QList<AbandonedWork> m_works;
};

/// Gives a document a text as unsaved changes: one step of undo. The codec of
/// that name is set if there is one.
void applyText(Zorv::CodeDocument* document, const QString& text, const QString& codec);

}  // namespace Operations
