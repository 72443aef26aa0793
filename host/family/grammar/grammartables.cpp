#include "grammar/grammar.h"

namespace Family {

namespace {

using L = QLatin1String;

constexpr double speed = 64;
constexpr double sprite = 65535;
constexpr double place = 32768;

// The rows of a table, by what they need to tell.

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
    with(key("name", Form::Text, "The name that people see"), required),
    key("author", Form::Text, "Who made it"),
    key("version", Form::Text, "Version of the work"),
    key("created", Form::Date, "Day of the first version"),
    key("changed", Form::Date, "Day of the last change"),
    key("resolution", Form::Pair, 1, 8192, "Width and height of the screen that it was made for"),
    key("colour", Form::Colour, "Colour in lists"),
    key("licence", Form::Text, "What others may do with it"),
    key("note", Form::Text, "Anything else"),
    old("date", "created"),
    old("color", "colour"),
};

const KeyInfo filesKeys[] = {
    key("sprites", Form::Path, "Sprite file"),
    key("sounds", Form::Path, "Sound file"),
    with(key("code", Form::Path, "Further code file"), repeatable),
    with(key("animations", Form::Path, "File of animations"), repeatable),
    with(key("commands", Form::Path, "File of commands"), repeatable),
    old("anim", "animations"),
};

const KeyInfo constantsKeys[] = {
    with(key("life", Form::Int, 1, 9999, "Life at the start"), required),
    key("power", Form::Int, 0, 9999, "Most power"),
    key("attack", Form::Percent, 0, 1000, "Strength of attacks"),
    key("defence", Form::Percent, 0, 1000, "Strength of the defence"),
    key("gravity", Form::Real, 0, 16, "Fall, in pixels a tick for each tick"),
    key("scale", Form::RealPair, 0.01, 16, "Stretch of all sprites"),
    key("tint", Form::RealTriple, 0, 1, "Red, green and blue by which colours are multiplied"),
    choice("stance", "orthodox|southpaw", "Side of the stronger hand"),
    choice("turns", "yes|no", "Faces the opponent of its own accord", "true=yes|false=no"),
    key("shadow", Form::Colour, "Colour of the shadow"),
    key("sparks", Form::Colours, "Colours of its hit sparks"),
    key("combo", Form::Ints, 0, 100, "Percent of damage for each further hit of a combo"),
    key("recovery", Form::Reals, 0, 1, "Share of life given back at the end of each round"),
    old("lifebar", "life"),
    old("defense", "defence"),
};

const KeyInfo walkKeys[] = {
    with(key("forward", Form::Real, -speed, speed, "Speed forward"), required),
    with(key("back", Form::Real, -speed, speed, "Speed back"), required),
    key("animation", Form::AnimationName, "Shown while walking"),
};

const KeyInfo runKeys[] = {
    key("forward", Form::RealPoint, -speed, speed, "Speed forward"),
    key("back", Form::RealPoint, -speed, speed, "Speed back"),
    key("animation", Form::AnimationName, "Shown while running"),
};

const KeyInfo jumpKeys[] = {
    key("neutral", Form::RealPoint, -speed, speed, "Speed at the start, straight up"),
    key("forward", Form::RealPoint, -speed, speed, "Speed at the start, forward"),
    key("back", Form::RealPoint, -speed, speed, "Speed at the start, back"),
    key("ticks", Form::Pair, 1, 600, "Ticks before the start and after the landing"),
};

const KeyInfo bodyKeys[] = {
    key("push", Form::Quad, "The box that keeps fighters apart"),
    key("head", Form::Point, "Place of the head"),
    key("middle", Form::Point, "Place of the middle"),
    key("height", Form::Int, 1, 4096, "Height"),
    key("widths", Form::Pair, 0, 4096, "Width to the back and to the front"),
};

const KeyInfo commandsKeys[] = {
    with(key("", Form::Text, "The motion of a command"), KeyInfo::Free | repeatable),
};

const KeyInfo defaultsKeys[] = {
    key("time", Form::Int, 1, 600, "Ticks for the whole motion"),
    key("buffer", Form::Int, 1, 60, "Ticks for which a command stays true"),
};

const KeyInfo moveKeys[] = {
    key("command", Form::Name, "The command that starts the move"),
    with(key("animation", Form::AnimationName, "Shown during the move"), required),
    choice("air", "no|yes|only", "Where it can be started"),
    key("priority", Form::Count, 1, 7, "Which of two attacks wins"),
    key("velocity", Form::RealPoint, -speed, speed, "Speed at the start"),
    key("cancels", Form::Name, "The move that it can be cancelled into"),
    key("note", Form::Text, "For the person"),
};

const KeyInfo costKeys[] = {
    key("power", Form::Int, 0, 9999, "Power that it takes"),
    key("life", Form::Int, 0, 9999, "Life that it takes"),
};

const KeyInfo hitKeys[] = {
    with(key("damage", Form::Pair, 0, 9999, "Damage when hit and when guarded"), required),
    choice("level", "high|middle|low|throw", "How it has to be guarded", "mid=middle"),
    key("stun", Form::Count, 0, 600, "Ticks for which the other cannot act"),
    key("push", Form::RealPoint, -speed, speed, "Speed given to the other"),
    key("spark", Form::Point, "Place of the spark"),
    key("shake", Form::Ints, 0, 64, "Pixels by which the screen shakes, tick by tick"),
};

const KeyInfo soundKeys[] = {
    key("hit", Form::Pair, 0, sprite, "Group and number of the sound of a hit"),
    key("guard", Form::Pair, 0, sprite, "Group and number of the sound of a guarded hit"),
    key("volume", Form::Percent, 0, 200, "Volume"),
};

const KeyInfo paletteKeys[] = {
    key("file", Form::Path, "Palette file"),
    key("shades", Form::Colours, "Colours that replace the first ones of the file"),
    choice("keys", "light|medium|heavy|start", "The button that selects it"),
    key("brightness", Form::Percent, 0, 200, "Brightness"),
};

const KeyInfo arenaKeys[] = {
    with(key("left", Form::Int, -place, place - 1, "Left end"), required),
    with(key("right", Form::Int, -place, place - 1, "Right end"), required),
    with(key("floor", Form::Int, -place, place - 1, "Height of the floor"), required),
    key("camera", Form::Quad, -place, place - 1, "Where the middle of the screen can go"),
    key("zoom", Form::RealPair, 0.1, 10, "Smallest and largest zoom"),
    key("gravity", Form::Real, 0, 16, "Factor on the gravity of characters"),
    key("shadow", Form::Colour, "Colour of shadows"),
};

const KeyInfo startKeys[] = {
    key("first", Form::Point, "Place of the first fighter"),
    key("second", Form::Point, "Place of the second fighter"),
    choice("facing", "inward|outward", "Which way they look"),
};

const KeyInfo layerKeys[] = {
    key("sprite", Form::Pair, 0, sprite, "Group and number of a sprite"),
    key("animation", Form::AnimationName, "Shown in place of a sprite"),
    key("offset", Form::Point, "Place"),
    key("follow", Form::RealPair, -16, 16, "How far it follows the camera, across and down"),
    key("velocity", Form::RealPoint, -speed, speed, "Its own speed"),
    key("tint", Form::RealTriple, 0, 1, "Red, green and blue by which colours are multiplied"),
    key("opacity", Form::Percent, 0, 100, "Opacity"),
    choice("blend", "none|add|subtract|multiply", "How it is mixed with what lies behind"),
    key("order", Form::Int, -100, 100, "Below 0 behind the fighters"),
};

const KeyInfo repeatKeys[] = {
    choice("along", "none|x|y|both", "Where it is repeated"),
    key("count", Form::Pair, 0, 1000, "How often, across and down; 0 is without end"),
    key("gap", Form::Point, "Pixels between"),
};

const KeyInfo musicKeys[] = {
    key("file", Form::Path, "Sound file"),
    key("volume", Form::Percent, 0, 200, "Volume"),
    key("loop", Form::Pair, 0, 2147483647, "First and last sample of the repeated part"),
    key("fade", Form::Real, 0, 60, "Seconds for which it fades in"),
};

const KeyInfo anyKeys[] = {
    with(key("", Form::Any, "A value that is kept and not looked into"),
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
    return {number,
            parent,
            L(),
            flags | GroupInfo::Unknown | GroupInfo::FreeKeys,
            everywhere,
            anyKeys,
            1,
            L(),
            L("An unknown group")};
}

constexpr int none = GroupInfo::NoFlags;
constexpr int named = GroupInfo::TakesArgument;

const GroupInfo groupRows[] = {
    main(Info, "info", none, C | S, infoKeys, "What it is and who made it"),
    main(Files, "files", none, C | S, filesKeys, "The further files of the project"),
    main(Constants, "constants", none, C | K, constantsKeys, "The fixed numbers of a character"),
    sub(Walk, Constants, "walk", walkKeys, "Walking"),
    sub(Run, Constants, "run", runKeys, "Running"),
    sub(Jump, Constants, "jump", jumpKeys, "Jumping"),
    sub(Body, Constants, "body", bodyKeys, "Sizes of the body"),
    main(Commands, "commands", GroupInfo::FreeKeys, C | M, commandsKeys, "Commands and motions"),
    sub(Defaults, Commands, "defaults", defaultsKeys, "What counts for all commands"),
    main(Move, "move", named, C | K, moveKeys, "One move"),
    sub(Cost, Move, "cost", costKeys, "What the move takes"),
    sub(Hit, Move, "hit", hitKeys, "What a hit does"),
    sub(Sound, Move, "sound", soundKeys, "Sounds of the move"),
    main(PaletteGroup, "palette", named, C | K, paletteKeys, "One palette"),
    main(Arena, "arena", none, S, arenaKeys, "The extent of a stage"),
    sub(Start, Arena, "start", startKeys, "Where fighters begin"),
    main(Layer, "layer", named, S | K, layerKeys, "One picture of a stage"),
    sub(Repeat, Layer, "repeat", repeatKeys, "How the picture is repeated"),
    main(Music, "music", none, S, musicKeys, "The music of a stage"),
    {Constants, 0, L("data"), none, C | K, constantsKeys,
     int(sizeof constantsKeys / sizeof *constantsKeys), L("constants"),
     L("The fixed numbers of a character")},
};

const GroupInfo unknownGroup = unknown(Grammar::UnknownGroup, 0, none);

/// The unknown sub-groups of every main group, by its number, 0 for none.
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
