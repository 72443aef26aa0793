#include "family/grammar/grammar.h"

#include <QCoreApplication>

namespace Family {

namespace {

using L = QLatin1String;

constexpr double speed = 64;
constexpr double sprite = 65535;
constexpr double place = 32768;

// Functions that build the rows of a table, one per combination of columns.

constexpr KeyInfo key(const char* name, Form form, const char* description)
{
    return {L(name), form, KeyInfo::NoFlags, 0, 0, L(), L(), L(), L(description)};
}

constexpr KeyInfo key(const char* name, Form form, double minimum, double maximum,
                      const char* description)
{
    return {L(name), form, KeyInfo::NoFlags, minimum, maximum, L(), L(), L(), L(description)};
}

constexpr KeyInfo choice(const char* name, const char* choices, const char* description,
                         const char* oldChoices = "")
{
    return {L(name),       Form::Choice, KeyInfo::NoFlags, 0, 0, L(choices),
            L(oldChoices), L(),          L(description)};
}

constexpr KeyInfo old(const char* name, const char* replacement)
{
    return {L(name), Form::Any, KeyInfo::NoFlags, 0, 0, L(), L(), L(replacement), L()};
}

constexpr KeyInfo with(KeyInfo row, int flags)
{
    row.flags = flags;
    return row;
}

constexpr int required = KeyInfo::Required;
constexpr int repeatable = KeyInfo::Repeatable;

const KeyInfo infoKeys[] = {
    with(key("name", Form::Text, QT_TRANSLATE_NOOP("Grammar", "The name that people see")),
         required),
    key("author", Form::Text, QT_TRANSLATE_NOOP("Grammar", "Who made it")),
    key("version", Form::Text, QT_TRANSLATE_NOOP("Grammar", "Version of the work")),
    key("created", Form::Date, QT_TRANSLATE_NOOP("Grammar", "Day of the first version")),
    key("changed", Form::Date, QT_TRANSLATE_NOOP("Grammar", "Day of the last change")),
    key("resolution", Form::Pair, 1, 8192,
        QT_TRANSLATE_NOOP("Grammar", "Width and height of the screen that it was made for")),
    key("colour", Form::Colour, QT_TRANSLATE_NOOP("Grammar", "Colour in lists")),
    key("licence", Form::Text, QT_TRANSLATE_NOOP("Grammar", "What others may do with it")),
    key("note", Form::Text, QT_TRANSLATE_NOOP("Grammar", "Anything else")),
    old("date", "created"),
    old("color", "colour"),
};

const KeyInfo filesKeys[] = {
    key("sprites", Form::Path, QT_TRANSLATE_NOOP("Grammar", "Sprite file")),
    key("sounds", Form::Path, QT_TRANSLATE_NOOP("Grammar", "Sound file")),
    with(key("code", Form::Path, QT_TRANSLATE_NOOP("Grammar", "Further code file")), repeatable),
    with(key("animations", Form::Path, QT_TRANSLATE_NOOP("Grammar", "File of animations")),
         repeatable),
    with(key("commands", Form::Path, QT_TRANSLATE_NOOP("Grammar", "File of commands")), repeatable),
    old("anim", "animations"),
};

const KeyInfo constantsKeys[] = {
    with(key("life", Form::Int, 1, 9999, QT_TRANSLATE_NOOP("Grammar", "Life at the start")),
         required),
    key("power", Form::Int, 0, 9999, QT_TRANSLATE_NOOP("Grammar", "Most power")),
    key("attack", Form::Percent, 0, 1000, QT_TRANSLATE_NOOP("Grammar", "Strength of attacks")),
    key("defence", Form::Percent, 0, 1000, QT_TRANSLATE_NOOP("Grammar", "Strength of the defence")),
    key("gravity", Form::Real, 0, 16,
        QT_TRANSLATE_NOOP("Grammar", "Fall, in pixels a tick for each tick")),
    key("scale", Form::RealPair, 0.01, 16, QT_TRANSLATE_NOOP("Grammar", "Stretch of all sprites")),
    key("tint", Form::RealTriple, 0, 1,
        QT_TRANSLATE_NOOP("Grammar", "Red, green and blue by which colours are multiplied")),
    choice("stance", "orthodox|southpaw",
           QT_TRANSLATE_NOOP("Grammar", "Side of the stronger hand")),
    choice("turns", "yes|no", QT_TRANSLATE_NOOP("Grammar", "Faces the opponent of its own accord"),
           "true=yes|false=no"),
    key("shadow", Form::Colour, QT_TRANSLATE_NOOP("Grammar", "Colour of the shadow")),
    key("sparks", Form::Colours, QT_TRANSLATE_NOOP("Grammar", "Colours of its hit sparks")),
    key("combo", Form::Ints, 0, 100,
        QT_TRANSLATE_NOOP("Grammar", "Percent of damage for each further hit of a combo")),
    key("recovery", Form::Reals, 0, 1,
        QT_TRANSLATE_NOOP("Grammar", "Share of life given back at the end of each round")),
    old("lifebar", "life"),
    old("defense", "defence"),
};

const KeyInfo walkKeys[] = {
    with(key("forward", Form::Real, -speed, speed, QT_TRANSLATE_NOOP("Grammar", "Speed forward")),
         required),
    with(key("back", Form::Real, -speed, speed, QT_TRANSLATE_NOOP("Grammar", "Speed back")),
         required),
    key("animation", Form::AnimationName, QT_TRANSLATE_NOOP("Grammar", "Shown while walking")),
};

const KeyInfo runKeys[] = {
    key("forward", Form::RealPoint, -speed, speed, QT_TRANSLATE_NOOP("Grammar", "Speed forward")),
    key("back", Form::RealPoint, -speed, speed, QT_TRANSLATE_NOOP("Grammar", "Speed back")),
    key("animation", Form::AnimationName, QT_TRANSLATE_NOOP("Grammar", "Shown while running")),
};

const KeyInfo jumpKeys[] = {
    key("neutral", Form::RealPoint, -speed, speed,
        QT_TRANSLATE_NOOP("Grammar", "Speed at the start, straight up")),
    key("forward", Form::RealPoint, -speed, speed,
        QT_TRANSLATE_NOOP("Grammar", "Speed at the start, forward")),
    key("back", Form::RealPoint, -speed, speed,
        QT_TRANSLATE_NOOP("Grammar", "Speed at the start, back")),
    key("ticks", Form::Pair, 1, 600,
        QT_TRANSLATE_NOOP("Grammar", "Ticks before the start and after the landing")),
};

const KeyInfo bodyKeys[] = {
    key("push", Form::Quad, QT_TRANSLATE_NOOP("Grammar", "The box that keeps fighters apart")),
    key("head", Form::Point, QT_TRANSLATE_NOOP("Grammar", "Place of the head")),
    key("middle", Form::Point, QT_TRANSLATE_NOOP("Grammar", "Place of the middle")),
    key("height", Form::Int, 1, 4096, QT_TRANSLATE_NOOP("Grammar", "Height")),
    key("widths", Form::Pair, 0, 4096,
        QT_TRANSLATE_NOOP("Grammar", "Width to the back and to the front")),
};

const KeyInfo commandsKeys[] = {
    with(key("", Form::MotionText, QT_TRANSLATE_NOOP("Grammar", "The motion of a command")),
         KeyInfo::Free | repeatable),
};

const KeyInfo defaultsKeys[] = {
    key("time", Form::Int, 1, 600, QT_TRANSLATE_NOOP("Grammar", "Ticks for the whole motion")),
    key("buffer", Form::Int, 1, 60,
        QT_TRANSLATE_NOOP("Grammar", "Ticks for which a command stays true")),
};

const KeyInfo moveKeys[] = {
    key("command", Form::CommandName,
        QT_TRANSLATE_NOOP("Grammar", "The command that starts the move")),
    with(key("animation", Form::AnimationName,
             QT_TRANSLATE_NOOP("Grammar", "Shown during the move")),
         required),
    choice("air", "no|yes|only", QT_TRANSLATE_NOOP("Grammar", "Where it can be started")),
    choice("from", "any|stand|crouch|run|guard|fall",
           QT_TRANSLATE_NOOP("Grammar", "The state that it starts from")),
    key("priority", Form::Count, 1, 7, QT_TRANSLATE_NOOP("Grammar", "Which of two attacks wins")),
    key("velocity", Form::RealPoint, -speed, speed,
        QT_TRANSLATE_NOOP("Grammar", "Speed at the start")),
    with(key("cancels", Form::MoveName,
             QT_TRANSLATE_NOOP("Grammar", "The move that it can be cancelled into")),
         repeatable),
    key("note", Form::Text, QT_TRANSLATE_NOOP("Grammar", "For the person")),
};

const KeyInfo costKeys[] = {
    key("power", Form::Int, 0, 9999, QT_TRANSLATE_NOOP("Grammar", "Power that it takes")),
    key("life", Form::Int, 0, 9999, QT_TRANSLATE_NOOP("Grammar", "Life that it takes")),
};

const KeyInfo hitKeys[] = {
    with(key("damage", Form::Pair, 0, 9999,
             QT_TRANSLATE_NOOP("Grammar", "Damage when hit and when guarded")),
         required),
    choice("level", "high|middle|low|throw",
           QT_TRANSLATE_NOOP("Grammar", "How it has to be guarded"), "mid=middle"),
    key("hits", Form::Count, 1, 100, QT_TRANSLATE_NOOP("Grammar", "How often the move hits")),
    key("stop", Form::Count, 0, 60,
        QT_TRANSLATE_NOOP("Grammar", "Ticks for which both stand still")),
    key("stun", Form::Count, 0, 600,
        QT_TRANSLATE_NOOP("Grammar", "Ticks for which the other cannot act")),
    key("guard-stun", Form::Count, 0, 600,
        QT_TRANSLATE_NOOP("Grammar", "Ticks for which the other cannot act after a guarded hit")),
    key("push", Form::RealPoint, -speed, speed,
        QT_TRANSLATE_NOOP("Grammar", "Speed given to the other")),
    choice("falls", "yes|no", QT_TRANSLATE_NOOP("Grammar", "Whether the other falls")),
    key("gain", Form::Pair, 0, 9999,
        QT_TRANSLATE_NOOP("Grammar", "Power gained when it hits and when it is guarded")),
    key("spark", Form::Point, QT_TRANSLATE_NOOP("Grammar", "Place of the spark")),
    key("shake", Form::Ints, 0, 64,
        QT_TRANSLATE_NOOP("Grammar", "Pixels by which the screen shakes, tick by tick")),
};

const KeyInfo soundKeys[] = {
    key("hit", Form::Pair, 0, sprite,
        QT_TRANSLATE_NOOP("Grammar", "Group and number of the sound of a hit")),
    key("guard", Form::Pair, 0, sprite,
        QT_TRANSLATE_NOOP("Grammar", "Group and number of the sound of a guarded hit")),
    key("volume", Form::Percent, 0, 200, QT_TRANSLATE_NOOP("Grammar", "Volume")),
};

const KeyInfo paletteKeys[] = {
    key("file", Form::Path, QT_TRANSLATE_NOOP("Grammar", "Palette file")),
    key("shades", Form::Colours,
        QT_TRANSLATE_NOOP("Grammar", "Colours that replace the first ones of the file")),
    choice("keys", "light|medium|heavy|start",
           QT_TRANSLATE_NOOP("Grammar", "The button that selects it")),
    key("brightness", Form::Percent, 0, 200, QT_TRANSLATE_NOOP("Grammar", "Brightness")),
};

const KeyInfo arenaKeys[] = {
    with(key("left", Form::Int, -place, place - 1, QT_TRANSLATE_NOOP("Grammar", "Left end")),
         required),
    with(key("right", Form::Int, -place, place - 1, QT_TRANSLATE_NOOP("Grammar", "Right end")),
         required),
    with(key("floor", Form::Int, -place, place - 1,
             QT_TRANSLATE_NOOP("Grammar", "Height of the floor")),
         required),
    key("camera", Form::Quad, -place, place - 1,
        QT_TRANSLATE_NOOP("Grammar", "Where the middle of the screen can go")),
    key("zoom", Form::RealPair, 0.1, 10, QT_TRANSLATE_NOOP("Grammar", "Smallest and largest zoom")),
    key("gravity", Form::Real, 0, 16,
        QT_TRANSLATE_NOOP("Grammar", "Factor on the gravity of characters")),
    key("shadow", Form::Colour, QT_TRANSLATE_NOOP("Grammar", "Colour of shadows")),
    key("rounds", Form::Count, 1, 9, QT_TRANSLATE_NOOP("Grammar", "Rounds that win a match")),
    key("time", Form::Count, 0, 999,
        QT_TRANSLATE_NOOP("Grammar", "Seconds of a round; 0 is without end")),
};

const KeyInfo startKeys[] = {
    key("first", Form::Point, QT_TRANSLATE_NOOP("Grammar", "Place of the first fighter")),
    key("second", Form::Point, QT_TRANSLATE_NOOP("Grammar", "Place of the second fighter")),
    choice("facing", "inward|outward", QT_TRANSLATE_NOOP("Grammar", "Which way they look")),
};

const KeyInfo layerKeys[] = {
    key("sprite", Form::Pair, 0, sprite,
        QT_TRANSLATE_NOOP("Grammar", "Group and number of a sprite")),
    key("animation", Form::AnimationName,
        QT_TRANSLATE_NOOP("Grammar", "Shown in place of a sprite")),
    key("offset", Form::Point, QT_TRANSLATE_NOOP("Grammar", "Place")),
    key("follow", Form::RealPair, -16, 16,
        QT_TRANSLATE_NOOP("Grammar", "How far it follows the camera, across and down")),
    key("velocity", Form::RealPoint, -speed, speed, QT_TRANSLATE_NOOP("Grammar", "Its own speed")),
    key("tint", Form::RealTriple, 0, 1,
        QT_TRANSLATE_NOOP("Grammar", "Red, green and blue by which colours are multiplied")),
    key("opacity", Form::Percent, 0, 100, QT_TRANSLATE_NOOP("Grammar", "Opacity")),
    choice("blend", "none|add|subtract|multiply",
           QT_TRANSLATE_NOOP("Grammar", "How it is mixed with what lies behind")),
    key("order", Form::Int, -100, 100, QT_TRANSLATE_NOOP("Grammar", "Below 0 behind the fighters")),
};

const KeyInfo repeatKeys[] = {
    choice("along", "none|x|y|both", QT_TRANSLATE_NOOP("Grammar", "Where it is repeated")),
    key("count", Form::Pair, 0, 1000,
        QT_TRANSLATE_NOOP("Grammar", "How often, across and down; 0 is without end")),
    key("gap", Form::Point, QT_TRANSLATE_NOOP("Grammar", "Pixels between")),
};

const KeyInfo musicKeys[] = {
    key("file", Form::Path, QT_TRANSLATE_NOOP("Grammar", "Sound file")),
    key("volume", Form::Percent, 0, 200, QT_TRANSLATE_NOOP("Grammar", "Volume")),
    key("loop", Form::Pair, 0, 2147483647,
        QT_TRANSLATE_NOOP("Grammar", "First and last sample of the repeated part")),
    key("fade", Form::Real, 0, 60, QT_TRANSLATE_NOOP("Grammar", "Seconds for which it fades in")),
};

const KeyInfo anyKeys[] = {
    with(key("", Form::Any,
             QT_TRANSLATE_NOOP("Grammar", "A value that is kept and not looked into")),
         KeyInfo::Free | repeatable),
};

enum Number : unsigned {
    Info = 1,
    Files = 2,
    Constants = 3,
    Commands = 4,
    Move = 5,
    PaletteGroup = 6,
    Arena = 7,
    Layer = 8,
    Music = 9,
    Walk = 20,
    Run = 21,
    Jump = 22,
    Body = 23,
    Defaults = 24,
    Cost = 25,
    Hit = 26,
    Sound = 27,
    Start = 28,
    Repeat = 29,
    UnknownSub = 200
};

constexpr int bit(FileKind kind)
{
    return 1 << int(kind);
}

constexpr int C = bit(FileKind::Character);
constexpr int S = bit(FileKind::Stage);
constexpr int K = bit(FileKind::Code);
constexpr int M = bit(FileKind::Commands);
constexpr int everywhere = C | S | K | M | bit(FileKind::Animations);

template <int Count>
GroupInfo main(unsigned number, const char* name, int flags, int files,
               const KeyInfo (&keys)[Count], const char* description)
{
    return {number, 0, L(name), flags, files, keys, Count, L(), L(description)};
}

template <int Count>
GroupInfo sub(unsigned number, unsigned parent, const char* name, const KeyInfo (&keys)[Count],
              const char* description)
{
    return {number, parent, L(name), GroupInfo::SubGroup, everywhere,
            keys,   Count,  L(),     L(description)};
}

GroupInfo unknown(unsigned number, unsigned parent, int flags)
{
    return {number,  parent, L(), flags | GroupInfo::Unknown | GroupInfo::FreeKeys,   everywhere,
            anyKeys, 1,      L(), L(QT_TRANSLATE_NOOP("Grammar", "An unknown group"))};
}

constexpr int none = GroupInfo::NoFlags;
constexpr int named = GroupInfo::TakesArgument;

const GroupInfo groupRows[] = {
    main(Info, "info", none, C | S, infoKeys,
         QT_TRANSLATE_NOOP("Grammar", "What it is and who made it")),
    main(Files, "files", none, C | S, filesKeys,
         QT_TRANSLATE_NOOP("Grammar", "The further files of the project")),
    main(Constants, "constants", none, C | K, constantsKeys,
         QT_TRANSLATE_NOOP("Grammar", "The fixed numbers of a character")),
    sub(Walk, Constants, "walk", walkKeys, QT_TRANSLATE_NOOP("Grammar", "Walking")),
    sub(Run, Constants, "run", runKeys, QT_TRANSLATE_NOOP("Grammar", "Running")),
    sub(Jump, Constants, "jump", jumpKeys, QT_TRANSLATE_NOOP("Grammar", "Jumping")),
    sub(Body, Constants, "body", bodyKeys, QT_TRANSLATE_NOOP("Grammar", "Sizes of the body")),
    main(Commands, "commands", GroupInfo::FreeKeys, C | M, commandsKeys,
         QT_TRANSLATE_NOOP("Grammar", "Commands and motions")),
    sub(Defaults, Commands, "defaults", defaultsKeys,
        QT_TRANSLATE_NOOP("Grammar", "What counts for all commands")),
    main(Move, "move", named, C | K, moveKeys, QT_TRANSLATE_NOOP("Grammar", "One move")),
    sub(Cost, Move, "cost", costKeys, QT_TRANSLATE_NOOP("Grammar", "What the move takes")),
    sub(Hit, Move, "hit", hitKeys, QT_TRANSLATE_NOOP("Grammar", "What a hit does")),
    sub(Sound, Move, "sound", soundKeys, QT_TRANSLATE_NOOP("Grammar", "Sounds of the move")),
    main(PaletteGroup, "palette", named, C | K, paletteKeys,
         QT_TRANSLATE_NOOP("Grammar", "One palette")),
    main(Arena, "arena", none, S, arenaKeys, QT_TRANSLATE_NOOP("Grammar", "The extent of a stage")),
    sub(Start, Arena, "start", startKeys, QT_TRANSLATE_NOOP("Grammar", "Where fighters begin")),
    main(Layer, "layer", named, S | K, layerKeys,
         QT_TRANSLATE_NOOP("Grammar", "One picture of a stage")),
    sub(Repeat, Layer, "repeat", repeatKeys,
        QT_TRANSLATE_NOOP("Grammar", "How the picture is repeated")),
    main(Music, "music", none, S, musicKeys, QT_TRANSLATE_NOOP("Grammar", "The music of a stage")),
    {Constants, 0, L("data"), none, C | K, constantsKeys,
     int(sizeof constantsKeys / sizeof *constantsKeys), L("constants"),
     L(QT_TRANSLATE_NOOP("Grammar", "The fixed numbers of a character"))},
};

const GroupInfo unknownGroup = unknown(Grammar::UnknownGroup, 0, none);

/// The row for unknown sub-groups of each main group, by its number; 0: without a main group.
const QVector<GroupInfo>& unknownSubRows()
{
    static const QVector<GroupInfo> rows = [] {
        QVector<GroupInfo> result;
        for (unsigned parent = 0; parent <= Grammar::UnknownGroup; ++parent) {
            result += unknown(UnknownSub + parent, parent, GroupInfo::SubGroup);
        }
        return result;
    }();
    return rows;
}

}  // namespace

const KeyInfo* GroupInfo::key(const QStringRef& keyName) const
{
    for (const KeyInfo& row : *this) {
        if (row.isFree() || keyName == row.name) {
            return &row;
        }
    }
    return nullptr;
}

const QVector<const GroupInfo*>& Grammar::groups()
{
    static const QVector<const GroupInfo*> all = [] {
        QVector<const GroupInfo*> result;
        for (const GroupInfo& row : groupRows) {
            result += &row;
        }
        return result;
    }();
    return all;
}

const GroupInfo* Grammar::group(unsigned number)
{
    for (const GroupInfo& row : groupRows) {
        if (row.number == number) {
            return &row;
        }
    }
    if (number >= UnknownSub && number <= UnknownSub + UnknownGroup) {
        return &unknownSubRows().at(int(number - UnknownSub));
    }
    return &unknownGroup;
}

const GroupInfo* Grammar::find(const QStringRef& name, unsigned parent)
{
    for (const GroupInfo& row : groupRows) {
        if (row.parent == parent && name == row.name) {
            return &row;
        }
    }
    return nullptr;
}

unsigned Grammar::unknownSubGroup(unsigned parent)
{
    return UnknownSub + parent;
}

unsigned Grammar::mainGroup(unsigned number)
{
    const GroupInfo* info = group(number);
    return info->isSubGroup() ? info->parent : info->number;
}

const KeyInfo* Grammar::unknownKey()
{
    return anyKeys;
}

}  // namespace Family
