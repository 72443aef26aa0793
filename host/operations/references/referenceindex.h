#pragma once

#include "family/check/diskstate.h"
#include "operations/references/filenames.h"
#include "operations/references/subject.h"

#include <QHash>

#include <memory>

namespace Operations {

/// A place that names a subject.
struct NameUse
{
    QString path;  ///< absolute
    int line;      ///< from 1; 0 for the file itself, which defines a sprite or a sound
    int column;    ///< from 1
    int length;
    bool isDefinition;
    QString text;  ///< the line, after `addTexts()`; for line 0 a description
};

/// A character or a stage, with the files that it names.
struct IndexedProject
{
    QString mainFile;
    QStringList code;  ///< absolute paths of its code files, the main file first
    QString sprites;   ///< absolute; empty if it names none
    QString sounds;
};

/// An index of all names in the files of a game, to find references.
///
/// Only changed files are read again: a file is identified by its state on disk, or by the text
/// that replaces it. Names belong to a project: animation 200 of one character is not animation 200
/// of another. But projects can share files; then a name means the same in all projects whose files
/// use it. Main thread only.
class ReferenceIndex
{
public:
    /// Reads nothing before `update()`.
    explicit ReferenceIndex(const QString& gameFolder);
    ~ReferenceIndex();

    QString gameFolder() const;

    /// From the next `update()` on, an unsaved text is used instead of its file; null for the file
    /// itself.
    void setText(const QString& path, std::shared_ptr<const Family::SourceText> text);

    /// Reads changed files on all processors, with progress. False if the user cancels; the next
    /// call continues from there.
    bool update();

    /// All places that name the subject, including its definitions, ordered by file and line. Empty
    /// if no project knows it.
    QVector<NameUse> usesOf(const Subject& subject) const;

    /// Fills in the texts of the lines.
    void addTexts(QVector<NameUse>* uses) const;

    /// The projects in which the name means the same thing, the subject's own project first.
    QVector<IndexedProject> projectsOf(const Subject& subject) const;

    /// All projects, by main file. A project without a readable main file has no code.
    const QVector<IndexedProject>& projects() const;

    /// All names in a file; null if no project uses the file.
    std::shared_ptr<const FileNames> names(const QString& path) const;

    /// The number of files read so far.
    int readCount() const;

private:
    Q_DISABLE_COPY(ReferenceIndex)
    struct Private;
    std::unique_ptr<Private> d;
};

}  // namespace Operations
