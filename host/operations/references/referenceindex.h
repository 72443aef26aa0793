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
    QString text;  ///< of the line, once `addTexts()` has been called; of line 0 what it is there
};

/// A character or a stage with the files that it names.
struct IndexedProject
{
    QString mainFile;
    QStringList code;  ///< absolute paths of its code files, the main file first
    QString sprites;   ///< absolute; empty if it names none
    QString sounds;
};

/// The names of all files of a game, and who refers to them.
///
/// Only what has changed since is read again: each file is known by its state on the disk, or by
/// the text that stands in its place. Names belong to a project: the animation 200 of one character
/// is not that of another. But files can be shared, and then a name is the same thing for all
/// projects whose files say it. Main thread only.
class ReferenceIndex
{
public:
    /// Nothing is read before `update()`.
    explicit ReferenceIndex(const QString& gameFolder);
    ~ReferenceIndex();

    QString gameFolder() const;

    /// A text that is not saved stands in the place of its file until the next `update()`.
    void setText(const QString& path, std::shared_ptr<const Family::SourceText> text);

    /// Reads what has changed, on all processors, with progress. False if the person gives up:
    /// the next one goes on where this has ended.
    bool update();

    /// All places that name the subject, in the order of files and lines, those that define it
    /// too. Empty if no project knows it.
    QVector<NameUse> usesOf(const Subject& subject) const;

    /// Adds the texts of their lines.
    void addTexts(QVector<NameUse>* uses) const;

    /// The projects for which the name is the same thing, that of the subject first.
    QVector<IndexedProject> projectsOf(const Subject& subject) const;

    /// All projects, by their main files. One without a main file that can be read has no code.
    const QVector<IndexedProject>& projects() const;

    /// All that a file names, null for one that no project names.
    std::shared_ptr<const FileNames> names(const QString& path) const;

    /// How many files have been read.
    int readCount() const;

private:
    Q_DISABLE_COPY(ReferenceIndex)
    struct Private;
    std::unique_ptr<Private> d;
};

}  // namespace Operations
