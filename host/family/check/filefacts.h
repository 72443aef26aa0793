#pragma once

#include "family/assets/assetid.h"
#include "family/check/problem.h"
#include "family/grammar/filekind.h"
#include "family/project/filereference.h"

namespace Zorv {
struct FileText;
}

namespace Family {

class FamilyDocument;

/// The text of a code file to check: a copy that any thread may use.
struct SourceText
{
    QString text;  ///< lines end in '\n'
    FileKind kind = FileKind::Code;

    /// The encoding, if writing the text would not reproduce the file byte for byte; otherwise
    /// empty.
    QString unfaithfulCodec;

    SourceText() = default;
    explicit SourceText(const FamilyDocument* document);
    SourceText(const Zorv::FileText& file, FileKind fileKind);
};

/// A name and its position in a file.
struct NamedPlace
{
    QString name;
    QString file;
    int line;  ///< from 1
    int column;
    int length;
};

/// A sprite or sound used by a line. Kept small, because a game has millions of them.
struct AssetUse
{
    AssetId id;
    int line;  ///< from 1
    int column;
    int length;
};

/// All that a check needs to know about a code file, from its text alone.
struct FileFacts
{
    QString path;       ///< absolute; empty for a text without a file
    QString file;       ///< file name in problems
    Problems problems;  ///< of its lines, and within its groups and animations
    QVector<NamedPlace> animations;
    QVector<NamedPlace> commands;
    QVector<NamedPlace> moves;
    QVector<NamedPlace> references;     ///< animations used by values
    QVector<NamedPlace> commandUses;    ///< commands used by moves
    QVector<NamedPlace> knownCommands;  ///< known to engines, at the values that need them
    QVector<NamedPlace> moveUses;       ///< moves used by values
    QVector<AssetUse> sprites;
    QVector<AssetUse> sounds;
    QVector<FileReference> files;

    /// Why the file could not be read, as a text for the user; empty on success.
    QString error;
};

/// Reads a text line by line. `file` is the file name in problems.
FileFacts factsOf(const SourceText& source, const QString& file);

/// A problem at a position.
Problem problemAt(ProblemId id, const QStringList& arguments, const NamedPlace& place);

}  // namespace Family
