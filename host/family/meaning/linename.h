#pragma once

#include "family/assets/assetid.h"
#include "family/grammar/linereader.h"

namespace Family {

/// What a name of a line belongs to.
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

/// The name that a line gives to something, or by which it refers to something else. A line has one
/// at most.
struct LineName
{
    NameKind kind = NameKind::None;
    bool isDefinition = false;
    QString name;  ///< of a file its path, as the line has it without quotes; of sprites and
                   ///< sounds empty
    AssetId id;    ///< of sprites and sounds

    /// The columns of the word, from 0, with the quotes of a text.
    int start = 0;
    int end = 0;

    bool isNone() const { return kind == NameKind::None; }

    /// What the person calls it: the name, or "200,0".
    QString shown() const;
};

/// What a line names. `details` is what reading it has reported. None for a part that could not be
/// read. This is the one list of what refers to what.
LineName nameOf(const QString& text, const ParsedLine& line, const LineHead& head,
                const LineDetails& details);

/// The form of the values that refer to things of a kind; `Form::Any` for sprites and sounds,
/// which are pairs, and for palettes, to which no value refers.
Form formNaming(NameKind kind);

/// The word for a kind on the command line, "animation", and the kind of a word.
QString nameKindWord(NameKind kind);
NameKind nameKindOf(const QString& word);
QStringList nameKindWords();

/// The same for the person, in the language of the program: "Animation".
QString nameKindTitle(NameKind kind);

}  // namespace Family
