#pragma once

#include "family/grammar/filekind.h"
#include "family/grammar/groupinfo.h"
#include "family/grammar/linereport.h"
#include "family/nodes/framedata.h"

#include <QRect>
#include <QVariant>

namespace Family {

/// What a line stands under: the nearest group or animation above it.
struct LineHead
{
    enum Kind : unsigned char {
        None,
        Group,
        Animation,
        Anything  ///< not known: nothing is said about the place of the line
    };

    Kind kind = None;
    const GroupInfo* group = nullptr;  ///< of a `Group`
};

/// What a line says.
struct ParsedLine
{
    enum Kind : unsigned char { Nothing, Format, Group, Value, Animation, Frame, Box };

    Kind kind = Nothing;
    bool attack = false;               ///< of a box
    const GroupInfo* group = nullptr;  ///< of a group head
    const KeyInfo* key = nullptr;      ///< of a value; never that of an old name
    QVariant value;                    ///< of a value; invalid if it could not be read
    QString argument;                  ///< of a group, or the identifier of an animation
    QString name;                      ///< of an animation
    FrameData frame;
    QRect box;
};

/// Reads one line under its head. Nothing else than these two, and the kind of
/// file, decides what comes out: the parser and the checks rely on it.
ParsedLine readLine(const QString& text, const LineHead& head, FileKind file, LineReport& report);

/// An option of frame lines, as in the table of the docs.
struct FrameOption
{
    QLatin1String name;
    QLatin1String oldName;  ///< empty if there is none
    int numbers;            ///< 0 for an option of another form
    bool whole;
    double minimum;
    double maximum;
    QLatin1String description;  ///< one line

    /// What stands behind the name, in words; empty for nothing.
    QString expectation() const;
};

/// The options in the order of `Grammar::frameOptions()`.
enum FrameOptionIndex {
    OffsetOption,
    DelayOption,
    FlipOption,
    ScaleOption,
    AngleOption,
    LoopOption
};
constexpr int FrameOptionCount = LoopOption + 1;
const FrameOption& frameOption(int index);

/// The range of the group and number of a sprite.
constexpr int MostSprite = 65535;

/// The range of the coordinates of a box.
constexpr int LeastPlace = -32768;
constexpr int MostPlace = 32767;

/// "h", "v" or "hv".
QString flipText(int flip);

/// A word for `flip`, with its description. Old words are left out.
struct FlipChoice
{
    QLatin1String word;
    QLatin1String description;
};
QVector<FlipChoice> flipChoices();

}  // namespace Family
