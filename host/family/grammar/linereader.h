#pragma once

#include "family/grammar/filekind.h"
#include "family/grammar/groupinfo.h"
#include "family/grammar/linereport.h"
#include "family/nodes/framedata.h"

#include <QRect>
#include <QVariant>

namespace Family {

/// The context of a line: the nearest group or animation above it.
struct LineHead
{
    enum Kind : unsigned char {
        None,
        Group,
        Animation,
        Anything  ///< unknown: do not report a line as misplaced
    };

    Kind kind = None;
    const GroupInfo* group = nullptr;  ///< for `Group`
};

/// The parsed content of a line.
struct ParsedLine
{
    enum Kind : unsigned char { Nothing, Format, Group, Value, Animation, Frame, Box };

    Kind kind = Nothing;
    bool attack = false;               ///< of a box
    const GroupInfo* group = nullptr;  ///< of a group head
    const KeyInfo* key = nullptr;      ///< of a value; never the row of an old name
    QVariant value;                    ///< of a value; invalid if it could not be read
    QString argument;                  ///< of a group, or the identifier of an animation
    QString name;                      ///< of an animation
    FrameData frame;
    QRect box;
};

/// Reads one line in the context `head`. The result depends only on these arguments; the parser and
/// the checks rely on that.
ParsedLine readLine(const QString& text, const LineHead& head, FileKind file, LineReport& report);

/// An option of frame lines; a row of the table in the documentation.
struct FrameOption
{
    QLatin1String name;
    QLatin1String oldName;  ///< empty if none
    int numbers;            ///< 0: the option has another form
    bool whole;
    double minimum;
    double maximum;
    QLatin1String description;  ///< one line

    /// What must follow the name, in words; empty for nothing.
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

/// The largest group and number of a sprite.
constexpr int MostSprite = 65535;

/// The range of the coordinates of a box.
constexpr int LeastPlace = -32768;
constexpr int MostPlace = 32767;

/// "h", "v" or "hv".
QString flipText(int flip);

/// A word for `flip`, with its description. Without old words.
struct FlipChoice
{
    QLatin1String word;
    QLatin1String description;
};
QVector<FlipChoice> flipChoices();

}  // namespace Family
