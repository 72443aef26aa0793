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

/// The text of a code file to be checked: a copy, which any thread may look at.
struct SourceText
{
    QString text;  ///< lines end in '\n'
    FileKind kind = FileKind::Code;

    /// The encoding, if the file does not come back from it byte for byte; else empty.
    QString unfaithfulCodec;

    SourceText() = default;
    explicit SourceText(const FamilyDocument* document);
    SourceText(const Zorv::FileText& file, FileKind fileKind);
};

/// A name at its place in a file.
struct NamedPlace
{
    QString name;
    QString file;
    int line;  ///< from 1
    int column;
    int length;
};

/// A sprite or a sound that a line names. A game has millions of them.
struct AssetUse
{
    AssetId id;
    int line;  ///< from 1
    int column;
    int length;
};

/// All that a check has to know of a code file, from its text alone.
struct FileFacts
{
    QString path;       ///< absolute; empty for a text without a file
    QString file;       ///< what the problems have for a file
    Problems problems;  ///< of its lines, and within its groups and animations
    QVector<NamedPlace> animations;
    QVector<NamedPlace> commands;
    QVector<NamedPlace> moves;
    QVector<NamedPlace> references;     ///< animations that values name
    QVector<NamedPlace> commandUses;    ///< commands that moves name
    QVector<NamedPlace> knownCommands;  ///< what an engine looks for, at the values that need it
    QVector<NamedPlace> moveUses;       ///< moves that values name
    QVector<AssetUse> sprites;
    QVector<AssetUse> sounds;
    QVector<FileReference> files;

    /// Why the file could not be read, in words for the person; empty if it could.
    QString error;
};

/// Reads a text line by line. `file` is what the problems have for a file.
FileFacts factsOf(const SourceText& source, const QString& file);

/// A problem at a place.
Problem problemAt(ProblemId id, const QStringList& arguments, const NamedPlace& place);

}  // namespace Family
