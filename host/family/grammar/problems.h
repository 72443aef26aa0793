#pragma once

#include <QString>
#include <QStringList>

namespace Family {

/// The severity of a problem.
enum class Level : unsigned char { Error = 0, Warning = 1, Deprecated = 2 };

/// All kinds of problems, in the order of the documentation.
enum class ProblemId : unsigned char {
    // Found in a single line, by itself or in its context.
    LineUnknown,
    TextBehind,
    FormatLate,
    FormatVersion,
    HeadName,
    HeadNotClosed,
    GroupUnknown,
    GroupOld,
    GroupMisplaced,
    ArgumentMissing,
    ArgumentExtra,
    SubGroupAlone,
    SubGroupUnknown,
    ValueOutside,
    KeyUnknown,
    KeyOld,
    EqualsMissing,
    ValueMissing,
    TextExpected,
    TextNotClosed,
    EscapeUnknown,
    PathBackslash,
    NameExpected,
    ChoiceUnknown,
    ChoiceOld,
    DateExpected,
    WholeExpected,
    RealExpected,
    CountExpected,
    PercentExpected,
    ColourExpected,
    CommaMissing,
    CountOfNumbers,
    OutOfRange,
    MotionUnknown,
    AnimationIdentifier,
    FrameOutside,
    FrameSprite,
    OptionUnknown,
    OptionOld,
    OptionTwice,
    DelayZero,
    BoxOutside,
    BoxReversed,

    // Found in a whole file or project.
    GroupTwice,
    KeyTwice,
    KeyRequired,
    AnimationTwice,
    AnimationEmpty,
    BoxesWithoutFrame,
    LoopMissing,
    LoopTwice,
    FrameNeverShown,
    FileMissing,
    FileUnreadable,
    FileOutside,
    FileItself,
    FileTwice,
    AnimationMissing,
    CommandMissing,
    MoveMissing,
    AnimationsNeeded,
    FileBroken,
    RecordBroken,
    SpriteMissing,
    SoundMissing,
    SpritesUnused,
    PalettesUnused,
    SoundsUnused,
    ColoursLost,
    EncodingUnfaithful
};

constexpr int ProblemCount = int(ProblemId::EncodingUnfaithful) + 1;
constexpr ProblemId FirstFileProblem = ProblemId::GroupTwice;

/// One kind of problem: a row of the table.
struct ProblemInfo
{
    ProblemId id;
    const char* name;  ///< "key-unknown": a stable name for `--json` and scripts
    Level level;
    const char* text;     ///< with "%1" and so on for parts of the line
    const char* example;  ///< lines of a file with this problem and no other
};

const ProblemInfo& problemInfo(ProblemId id);

/// The message of a problem for the user.
QString problemText(ProblemId id, const QStringList& arguments = {});

/// "error", "warning" or "deprecated".
QString levelName(Level level);

}  // namespace Family
