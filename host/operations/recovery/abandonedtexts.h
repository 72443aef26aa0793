#pragma once

#include "operations/recovery/recoverycopy.h"

#include <QList>
#include <QString>

#include <memory>
#include <vector>

namespace Zorv {
class CodeDocument;
}

namespace Operations {

class SessionFolder;

/// A copy that a process left behind, and what can be done with it.
struct AbandonedText
{
    enum State {
        Applicable,   ///< its file is what it was when the text was read, or was never saved
        FileChanged,  ///< the file was changed after the text was read
        FileGone,
        Damaged  ///< `copy` is empty, `fault` tells why
    };

    QString path;  ///< of the copy
    RecoveryCopy copy;
    State state = Damaged;
    QString fault;  ///< why a damaged copy cannot be read

    /// What the file holds now, in the encoding of the copy.
    QString fileText() const;

    /// Looks at the file again.
    bool isStillApplicable() const;

    /// Removes the copy for good; false if that fails.
    bool discard() const;

    /// Writes the text to a file, which keeps its old content if that fails. False
    /// with `error` then.
    bool saveElsewhere(const QString& fileName, QString* error) const;
};

/// The copies of all processes that are gone. As long as the object lives no
/// other process finds them; those that are not discarded are found again
/// afterwards. Copies that say what their file says are removed at once.
class AbandonedTexts
{
public:
    /// Looks below `root`; with a game folder (with "/" at its end) only for
    /// copies of that game.
    explicit AbandonedTexts(const QString& root, const QString& gameFolder = {});
    ~AbandonedTexts();

    const QList<AbandonedText>& all() const { return m_texts; }

private:
    void read(const QString& path, const QString& gameFolder);

    std::vector<std::unique_ptr<SessionFolder>> m_folders;
    QList<AbandonedText> m_texts;
};

/// Gives a document a text as unsaved changes: one step of undo. The codec of
/// that name is set if there is one.
void applyText(Zorv::CodeDocument* document, const QString& text, const QString& codec);

}  // namespace Operations
