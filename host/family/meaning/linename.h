#pragma once

#include "family/assets/assetid.h"
#include "family/grammar/linereader.h"

namespace Family {

/// The kind of thing that a name belongs to.
enum class NameKind : unsigned char {
    None,
    Animation,
    Move,
    Command,
    Palette,
    Sprite,
    Sound,
    File
};

/// A name that a line defines or refers to. A line has at most one.
struct LineName
{
    NameKind kind = NameKind::None;
    bool isDefinition = false;
    QString name;  ///< of a file its path, as the line has it without quotes; of sprites and
                   ///< sounds empty
    AssetId id;    ///< of sprites and sounds

    /// The columns of the word, from 0, including quotes.
    int start = 0;
    int end = 0;

    bool isNone() const { return kind == NameKind::None; }

    /// The text shown to the user: the name, or "200,0".
    QString shown() const;
};

/// The name in a line. `details` must come from reading that line. None for a part that could not
/// be read. This is the single place that defines what refers to what.
LineName nameOf(const QString& text, const ParsedLine& line, const LineHead& head,
                const LineDetails& details);

/// The form of values that refer to this kind of thing. `Form::Any` for sprites and sounds, which
/// are number pairs, and for palettes, to which no value refers.
Form formNaming(NameKind kind);

/// Converts a kind to its word on the command line ("animation") and back.
QString nameKindWord(NameKind kind);
NameKind nameKindOf(const QString& word);
QStringList nameKindWords();

/// The title of a kind in the program's language: "Animation".
QString nameKindTitle(NameKind kind);

}  // namespace Family
