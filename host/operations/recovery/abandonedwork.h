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

/// A recovery copy left by a dead process, and the ways to handle it.
struct AbandonedWork
{
    enum State {
        Applicable,   ///< its file has not changed since the work began, or was never saved
        FileChanged,  ///< the file has changed since
        FileGone,
        Damaged  ///< `copy` is empty, `fault` has the reason
    };

    QString path;       ///< of the copy
    RecoveryCopy copy;  ///< without `assets`, which are only read when needed
    State state = Damaged;
    QString fault;  ///< why a damaged copy cannot be read

    /// The copy, and the current content of its file, as lines for comparison. A text file is
    /// decoded in the encoding of the copy.
    QString unsavedLines() const;
    QString fileLines() const;

    /// Checks the file again.
    bool isStillApplicable() const;

    /// Deletes the copy; false if that fails.
    bool discard() const;

    /// Writes the work to a file. On failure the file keeps its old content. False, with `error`,
    /// then.
    bool saveElsewhere(const QString& fileName, QString* error) const;

    /// Applies the copy to a document or collection of its file as unsaved changes: one undo step.
    /// False, with `error`, for a file of another kind, for a canvas, or if the copy is damaged
    /// now.
    bool restore(Zorv::ProjectFile* file, QString* error) const;

    /// Reads a canvas; only an editor can restore it. False with `error` if that fails.
    bool readCanvas(CanvasCopy* canvas, QString* error) const;
};

/// The copies of all dead processes. They are locked: no other process finds them while this object
/// lives. Copies that were not discarded are found again afterwards. Copies equal to their file are
/// removed at once.
class AbandonedWorks
{
public:
    /// Searches `root`. With a game folder (with "/" at its end), only for copies of that game.
    explicit AbandonedWorks(const QString& root, const QString& gameFolder = {});
    ~AbandonedWorks();

    const QList<AbandonedWork>& all() const { return m_works; }

private:
    void read(const QString& path, const QString& gameFolder);

    std::vector<std::unique_ptr<SessionFolder>> m_folders;
    QList<AbandonedWork> m_works;
};

/// Sets the text of a document as an unsaved change: one undo step. Also sets the codec of that
/// name, if it exists.
void applyText(Zorv::CodeDocument* document, const QString& text, const QString& codec);

}  // namespace Operations
