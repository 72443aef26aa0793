#include "family/grammar/problems.h"

#include "family/tableorder.h"

#include <QCoreApplication>

namespace Family {

namespace {

using Id = ProblemId;
constexpr Level E = Level::Error;
constexpr Level W = Level::Warning;
constexpr Level D = Level::Deprecated;

// clang-format off
constexpr ProblemInfo rows[] = {
    {Id::LineUnknown, "line-unknown", E,
     QT_TRANSLATE_NOOP("Family", "Expected a group such as '[constants]', 'key = value', 'animation', 'frame' or a box; found %1. Put '#' in front to make it a comment."),
     "what is this"},
    {Id::TextBehind, "text-behind", E,
     QT_TRANSLATE_NOOP("Family", "Expected the end of the line; found %1. Remove it, or put '#' in front of it."),
     "[info]\nname = \"Ryn\" x"},
    {Id::FormatLate, "format-late", E,
     QT_TRANSLATE_NOOP("Family", "The format line stands above the first group or animation. Move it to the top."),
     "[info]\nname = \"Ryn\"\nzorv 1"},
    {Id::FormatVersion, "format-version", E,
     QT_TRANSLATE_NOOP("Family", "Expected '1' behind 'zorv'; found %1. This program reads format 1."),
     "zorv 2"},
    {Id::HeadName, "head-name", E,
     QT_TRANSLATE_NOOP("Family", "Expected the name of a group behind '['."),
     "[]"},
    {Id::HeadNotClosed, "head-not-closed", E,
     QT_TRANSLATE_NOOP("Family", "Expected ']' at the end of the group head."),
     "[constants\nlife = 1000"},
    {Id::GroupUnknown, "group-unknown", E,
     QT_TRANSLATE_NOOP("Family", "There is no group '%1'. %2"),
     "[musik]"},
    {Id::GroupOld, "group-old", D,
     QT_TRANSLATE_NOOP("Family", "'%1' is the old name of the group '%2'. Write '%2'."),
     "[data]\nlife = 1000"},
    {Id::GroupMisplaced, "group-misplaced", W,
     QT_TRANSLATE_NOOP("Family", "The group '%1' has no effect in a %2 file. Move it to a %3 file."),
     "[arena]\nleft = -100\nright = 100\nfloor = 0"},
    {Id::ArgumentMissing, "argument-missing", E,
     QT_TRANSLATE_NOOP("Family", "Expected a name behind '%1', as in '[%1 first]'."),
     "[move]\nanimation = 1\nanimation 1\nframe 0,0 loop"},
    {Id::ArgumentExtra, "argument-extra", E,
     QT_TRANSLATE_NOOP("Family", "The group '%1' takes no name. Remove '%2'."),
     "[info hero]\nname = \"Ryn\""},
    {Id::SubGroupAlone, "subgroup-alone", E,
     QT_TRANSLATE_NOOP("Family", "A sub-group belongs to the group above it; here is none. Write the group's head first."),
     "[.walk]"},
    {Id::SubGroupUnknown, "subgroup-unknown", E,
     QT_TRANSLATE_NOOP("Family", "The group '%1' has no sub-group '%2'. %3"),
     "[constants]\nlife = 1000\n[.wlak]"},
    {Id::ValueOutside, "value-outside", E,
     QT_TRANSLATE_NOOP("Family", "A value stands in a group. Write a group such as '[constants]' above it."),
     "life = 1000"},
    {Id::KeyUnknown, "key-unknown", E,
     QT_TRANSLATE_NOOP("Family", "The group '%1' has no key '%2'. %3"),
     "[constants]\nlife = 1000\npowr = 3000"},
    {Id::KeyOld, "key-old", D,
     QT_TRANSLATE_NOOP("Family", "'%1' is the old name of '%2'. Write '%2'."),
     "[constants]\nlifebar = 1000"},
    {Id::EqualsMissing, "equals-missing", E,
     QT_TRANSLATE_NOOP("Family", "Expected '=' behind the key '%1'."),
     "[constants]\nlife = 1000\npower 3000"},
    {Id::ValueMissing, "value-missing", E,
     QT_TRANSLATE_NOOP("Family", "Expected %1 behind '='."),
     "[constants]\nlife = 1000\npower ="},
    {Id::TextExpected, "text-expected", E,
     QT_TRANSLATE_NOOP("Family", "Expected a text in double quotes; found %1."),
     "[info]\nname = Ryn"},
    {Id::TextNotClosed, "text-not-closed", E,
     QT_TRANSLATE_NOOP("Family", "Expected a double quote at the end of the text."),
     "[info]\nname = \"Ryn"},
    {Id::EscapeUnknown, "escape-unknown", W,
     QT_TRANSLATE_NOOP("Family", "'\\%1' means nothing in a text. Expected '\\\"', '\\\\' or '\\n'; for a backslash write '\\\\'."),
     "[info]\nname = \"R\\yn\""},
    {Id::PathBackslash, "path-backslash", D,
     QT_TRANSLATE_NOOP("Family", "Backslashes in paths are old. Write '/'."),
     "[palette blue]\nfile = \"palettes\\\\blue.act\""},
    {Id::NameExpected, "name-expected", E,
     QT_TRANSLATE_NOOP("Family", "Expected a name of letters, digits, '_' and '-'; found %1."),
     "[move jab]\nanimation = 1\ncancels = ?\nanimation 1\nframe 0,0 loop"},
    {Id::ChoiceUnknown, "choice-unknown", E,
     QT_TRANSLATE_NOOP("Family", "Expected one of %1; found %2."),
     "[constants]\nlife = 1000\nstance = left"},
    {Id::ChoiceOld, "choice-old", D,
     QT_TRANSLATE_NOOP("Family", "'%1' is the old word for '%2'. Write '%2'."),
     "[constants]\nlife = 1000\nturns = true"},
    {Id::DateExpected, "date-expected", E,
     QT_TRANSLATE_NOOP("Family", "Expected a day such as 2024-05-31; found %1."),
     "[info]\nname = \"Ryn\"\ncreated = 2024-02-30"},
    {Id::WholeExpected, "whole-expected", E,
     QT_TRANSLATE_NOOP("Family", "Expected a whole number; found %1."),
     "[constants]\nlife = full"},
    {Id::RealExpected, "real-expected", E,
     QT_TRANSLATE_NOOP("Family", "Expected a number such as 0.5; found %1."),
     "[constants]\nlife = 1000\ngravity = low"},
    {Id::CountExpected, "count-expected", E,
     QT_TRANSLATE_NOOP("Family", "Expected a whole number without sign; found %1."),
     "[move jab]\nanimation = 1\npriority = -1\nanimation 1\nframe 0,0 loop"},
    {Id::PercentExpected, "percent-expected", E,
     QT_TRANSLATE_NOOP("Family", "Expected a percentage such as 80%; found %1."),
     "[constants]\nlife = 1000\nattack = 100"},
    {Id::ColourExpected, "colour-expected", E,
     QT_TRANSLATE_NOOP("Family", "Expected a colour such as 0xff8040; found %1."),
     "[constants]\nlife = 1000\nshadow = red"},
    {Id::CommaMissing, "comma-missing", E,
     QT_TRANSLATE_NOOP("Family", "Expected ',' between two numbers."),
     "[constants]\nlife = 1000\n[.body]\nhead = -5 -90"},
    {Id::CountOfNumbers, "count-of-numbers", E,
     QT_TRANSLATE_NOOP("Family", "Expected %1 numbers; found %2."),
     "[constants]\nlife = 1000\n[.body]\nhead = -5"},
    {Id::OutOfRange, "out-of-range", E,
     QT_TRANSLATE_NOOP("Family", "Expected a number from %1 to %2; found %3."),
     "[constants]\nlife = 0"},
    {Id::MotionUnknown, "motion-unknown", W,
     QT_TRANSLATE_NOOP("Family", "%1 means nothing in a motion. Expected directions such as DF and buttons such as L, with '+' between what is done together, '~' in front of what is let go, and commas between the steps."),
     "[commands]\nwave = \"D, X, L\""},
    {Id::AnimationIdentifier, "animation-identifier", E,
     QT_TRANSLATE_NOOP("Family", "Expected the number or name of the animation, as in 'animation 200'."),
     "animation \"Jab\"\nframe 0,0 loop"},
    {Id::FrameOutside, "frame-outside", E,
     QT_TRANSLATE_NOOP("Family", "A frame stands in an animation. Write a line such as 'animation 200' above it."),
     "frame 0,0"},
    {Id::FrameSprite, "frame-sprite", E,
     QT_TRANSLATE_NOOP("Family", "Expected the group and number of a sprite, as in 'frame 200,0'."),
     "animation 1\nframe loop"},
    {Id::OptionUnknown, "option-unknown", E,
     QT_TRANSLATE_NOOP("Family", "A frame has no option '%1'. %2"),
     "animation 1\nframe 0,0 dely 4 loop"},
    {Id::OptionOld, "option-old", D,
     QT_TRANSLATE_NOOP("Family", "'%1' is the old name of the option '%2'. Write '%2'."),
     "animation 1\nframe 0,0 time 4 loop"},
    {Id::OptionTwice, "option-twice", E,
     QT_TRANSLATE_NOOP("Family", "The option '%1' stands twice. Remove one."),
     "animation 1\nframe 0,0 delay 4 delay 5 loop"},
    {Id::DelayZero, "delay-zero", W,
     QT_TRANSLATE_NOOP("Family", "A frame with delay 0 is never seen. Write 1 or more, or -1 for one that stays."),
     "animation 1\nframe 0,0 delay 0 loop"},
    {Id::BoxOutside, "box-outside", E,
     QT_TRANSLATE_NOOP("Family", "A contact box stands in an animation, in front of its frame. Write a line such as 'animation 200' above it."),
     "attack 0,0, 10,10"},
    {Id::BoxReversed, "box-reversed", W,
     QT_TRANSLATE_NOOP("Family", "Expected left before right and top before bottom. Swap the numbers."),
     "animation 1\nattack 10,0, 0,10\nframe 0,0 loop"},
    {Id::GroupTwice, "group-twice", W,
     QT_TRANSLATE_NOOP("Family", "'[%1]' stands already in line %2. Join the two, or remove one."),
     "[constants]\nlife = 1000\n[constants]\nlife = 900"},
    {Id::KeyTwice, "key-twice", W,
     QT_TRANSLATE_NOOP("Family", "'%1' is set already in line %2; only the first counts. Remove one."),
     "[constants]\nlife = 1000\nlife = 900"},
    {Id::KeyRequired, "key-required", E,
     QT_TRANSLATE_NOOP("Family", "The group '%1' needs the key '%2'. Add '%2 = ' and %3."),
     "[constants]\npower = 3000"},
    {Id::AnimationTwice, "animation-twice", E,
     QT_TRANSLATE_NOOP("Family", "The animation '%1' stands already in %2 line %3. Give one of them another name."),
     "animation 1\nframe 0,0 loop\nanimation 1\nframe 0,1 loop"},
    {Id::AnimationEmpty, "animation-empty", W,
     QT_TRANSLATE_NOOP("Family", "The animation '%1' has no frame. Add a line such as 'frame 0,0', or remove it."),
     "animation 1"},
    {Id::BoxesWithoutFrame, "boxes-without-frame", W,
     QT_TRANSLATE_NOOP("Family", "No frame follows this contact box. Add a frame behind it, or remove it."),
     "animation 1\nframe 0,0 loop\nattack 0,0, 10,10"},
    {Id::LoopMissing, "loop-missing", W,
     QT_TRANSLATE_NOOP("Family", "The animation '%1' does not tell where it starts again. Put 'loop' at a frame, or 'delay -1' at the last."),
     "animation 1\nframe 0,0 delay 4\nframe 0,1 delay 4"},
    {Id::LoopTwice, "loop-twice", W,
     QT_TRANSLATE_NOOP("Family", "The animation '%1' has its 'loop' already in line %2. Remove one."),
     "animation 1\nframe 0,0 loop\nframe 0,1 loop"},
    {Id::FrameNeverShown, "frame-never-shown", W,
     QT_TRANSLATE_NOOP("Family", "This frame is never shown: the one in line %1 stays for ever (delay -1)."),
     "animation 1\nframe 0,0 delay -1\nframe 0,1"},
    {Id::FileMissing, "file-missing", E,
     QT_TRANSLATE_NOOP("Family", "There is no file '%1'. Correct the path, or put the file there."),
     "[palette blue]\nfile = \"missing.act\""},
    {Id::FileUnreadable, "file-unreadable", E,
     QT_TRANSLATE_NOOP("Family", "Cannot read '%1': %2. Check its permissions."),
     "[palette blue]\nfile = \"folder\""},
    {Id::FileOutside, "file-outside", E,
     QT_TRANSLATE_NOOP("Family", "The path '%1' leaves the game folder. Copy the file into the folder and write its path there."),
     "[palette blue]\nfile = \"../../../elsewhere.act\""},
    {Id::FileItself, "file-itself", E,
     QT_TRANSLATE_NOOP("Family", "The file names itself. Remove the line."),
     "[files]\ncode = \"example.character\""},
    {Id::FileTwice, "file-twice", W,
     QT_TRANSLATE_NOOP("Family", "The file '%1' is named already in line %2. Remove one."),
     "[files]\ncode = \"moves.code\"\ncode = \"moves.code\""},
    {Id::AnimationMissing, "animation-missing", E,
     QT_TRANSLATE_NOOP("Family", "There is no animation '%1'. %2"),
     "[move jab]\nanimation = 7"},
    {Id::CommandMissing, "command-missing", E,
     QT_TRANSLATE_NOOP("Family", "There is no command '%1'. %2"),
     "[move jab]\ncommand = light\nanimation = 1\nanimation 1\nframe 0,0 loop"},
    {Id::MoveMissing, "move-missing", E,
     QT_TRANSLATE_NOOP("Family", "There is no move '%1'. %2"),
     "[move jab]\nanimation = 1\ncancels = uppercut\nanimation 1\nframe 0,0 loop"},
    {Id::AnimationsNeeded, "animations-needed", W,
     QT_TRANSLATE_NOOP("Family", "The character has commands and a stance, but lacks animations that every match shows: %1. Add them."),
     "[commands]\nlight = \"L\"\nanimation 10\nframe 0,0 loop"},
    {Id::FileBroken, "file-broken", E,
     QT_TRANSLATE_NOOP("Family", "'%1' is no %2 file, or its first bytes are damaged. Name another file, or take this one from a backup."),
     "[files]\nsprites = \"moves.code\""},
    {Id::RecordBroken, "record-broken", E,
     QT_TRANSLATE_NOOP("Family", "A part of '%1' is broken. %2"),
     "[files]\nsounds = \"damaged.sounds\""},
    {Id::SpriteMissing, "sprite-missing", E,
     QT_TRANSLATE_NOOP("Family", "There is no sprite %1 in '%2'. Correct the numbers, or add the sprite."),
     "[files]\nsprites = \"example.sprites\"\nanimation 1\nframe 0,0 loop\nframe 7,0"},
    {Id::SoundMissing, "sound-missing", E,
     QT_TRANSLATE_NOOP("Family", "There is no sound %1 in '%2'. Correct the numbers, or add the sound."),
     "[files]\nsounds = \"example.sounds\"\n[move jab]\nanimation = 1\n[.sound]\nhit = 0,0\nguard = 7,0\nanimation 1\nframe 0,0 loop"},
    {Id::SpritesUnused, "sprites-unused", W,
     QT_TRANSLATE_NOOP("Family", "No frame and no layer shows these sprites of '%1': %2. Remove them, or use them."),
     "[files]\nsprites = \"example.sprites\""},
    {Id::PalettesUnused, "palettes-unused", W,
     QT_TRANSLATE_NOOP("Family", "No sprite has these palettes of '%1': %2. Remove them, or give them to sprites."),
     "[files]\nsprites = \"palettes.sprites\"\nanimation 1\nframe 0,0 loop"},
    {Id::SoundsUnused, "sounds-unused", W,
     QT_TRANSLATE_NOOP("Family", "Nothing plays these sounds of '%1': %2. Remove them, or use them."),
     "[files]\nsounds = \"example.sounds\""},
    {Id::ColoursLost, "colours-lost", W,
     QT_TRANSLATE_NOOP("Family", "These palettes of '%1' have more than 32 colours, but all their sprites are stored as LZ5, which keeps the first 32: %2. Store the sprites in another codec."),
     "[files]\nsprites = \"colours.sprites\"\nanimation 1\nframe 0,0 loop"},
    {Id::EncodingUnfaithful, "encoding-unfaithful", W,
     QT_TRANSLATE_NOOP("Family", "The file does not come back byte for byte from its encoding, %1. Open it in another encoding before it is saved."),
     ""},
};
// clang-format on

static_assert(sizeof rows / sizeof *rows == ProblemCount && isInOrder(rows, &ProblemInfo::id),
              "a row for each kind of problem, in the order of the kinds");

}  // namespace

const ProblemInfo& problemInfo(ProblemId id)
{
    return rows[int(id)];
}

QString problemText(ProblemId id, const QStringList& arguments)
{
    QString text = QCoreApplication::translate("Family", problemInfo(id).text);
    // Replaces all marks in one pass, so that a mark inside an argument is not replaced again.
    QString result;
    result.reserve(text.size() + 40);
    for (int i = 0; i < text.size(); ++i) {
        const int number = i + 1 < text.size() ? text.at(i + 1).digitValue() : -1;
        if (text.at(i) == QLatin1Char('%') && number > 0 && number <= arguments.size()) {
            result += arguments.at(number - 1);
            ++i;
        } else {
            result += text.at(i);
        }
    }
    return result;
}

QString levelName(Level level)
{
    static const char* const names[] = {"error", "warning", "deprecated"};
    return QLatin1String(names[int(level)]);
}

}  // namespace Family
