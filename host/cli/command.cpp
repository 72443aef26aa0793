#include "cli/command.h"

#include <QCoreApplication>

namespace Cli {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("Cli", text);
}

constexpr quint64 Editing = DryRun | Encoding;
constexpr quint64 Arranging = Editing | LeaveComments;
constexpr quint64 Written = Out | Format | Force;

// clang-format off
constexpr Command table[] = {
    {"check", "GAME|FILE", 1, 1, Json | Mend | DryRun, checkCommand,
     "Print every problem of a game folder, a project or a file.",
     "Each problem is printed once, sorted by place, as\n"
     "    file:line:column: error: text\n"
     "with 'error', 'warning' or 'deprecated'. GAME is a game folder, with all projects below\n"
     "it. FILE is a main file (.character, .stage), which is checked with all the files that it\n"
     "names, or another file of code, sprites or sounds. The status is 1 if there is any problem.\n"
     "With --fix what has one obvious mend is mended first: old names, misspelt keys and options,\n"
     "swapped corners, doubled options; with --dry-run the differences are printed instead."},
    {"new game", "GAME [CHARACTER [STAGE]]", 1, 3, Template, newGame,
     "Make a game with a character and a stage.",
     "GAME is a folder that is not there, or an empty one. The character can stand, walk, attack and\n"
     "be hit, with figures drawn in place of sprites: 'zorv-player GAME' plays it. Its name is\n"
     "CHARACTER, else 'fighter', that of the stage STAGE, else 'training-room'. What was made is\n"
     "printed. Either all of it is there afterwards, or nothing."},
    {"new character", "GAME NAME", 2, 2, Template, newCharacter,
     "Make a character in a game.",
     "It is the folder NAME below 'characters' of the game folder GAME, with a main file, moves,\n"
     "commands, and animations for all that an engine shows. Figures are drawn in place of sprites.\n"
     "The path of its main file is printed."},
    {"new stage", "GAME NAME", 2, 2, Template, newStage,
     "Make a stage in a game.",
     "It is the folder NAME below 'stages' of the game folder GAME. The path of its main file is\n"
     "printed."},
    {"new file", "FILE", 1, 1, Template, newFile,
     "Make a file of code, sprites, sounds or a palette.",
     "The suffix tells what it is: .character, .stage, .code, .anim, .commands, .sprites, .sounds or\n"
     ".act. A project has the file once its main file names it. What is there is not replaced."},
    {"find", "TEXT GAME|FILE...", 2, Command::Any,
     IgnoreCase | WholeWord | Expression | Kind | ReplaceBy | DryRun | Json, findText,
     "Print the lines of code files in which a text stands, or replace it.",
     "Each line is printed once, in the order of the files, as\n"
     "    file:line:column: text\n"
     "GAME is a game folder, or any folder in it, of which all code files are searched, whether a\n"
     "project names them or not; hidden folders, backups and links are left out. With --replace a\n"
     "line for each file that was changed tells, with a tab between, its name and how many places;\n"
     "all else in it stays byte for byte. The status is 1 if the text is nowhere."},
    {"tree", "FILE", 1, 1, Json | Encoding, treeCommand,
     "Print the groups, values, animations, frames and boxes of a file.",
     "A line for each, with a tab between its number in the file, what it is, and the path\n"
     "that 'get' takes. What belongs to another thing is indented below it."},
    {"get", "FILE PATH", 2, 2, Encoding, getCommand,
     "Print one value.",
     "A text comes without its quotes. A path to more than one value, as to a group, gives its\n"
     "lines. 'tree' shows the paths of a file."},
    {"set", "FILE PATH VALUE", 3, 3, Editing, setCommand,
     "Write one value.",
     "VALUE is as 'get' prints it. One line of the file changes, and its comment stays. A value\n"
     "that is there already changes nothing."},
    {"anim list", "FILE", 1, 1, Json | Encoding, listAnimations,
     "Print the animations of a file.",
     "A line for each, with a tab between its place, identifier, name, count of frames, time in\n"
     "ticks (-1: it never ends), and line in the file."},
    {"anim duplicate", "FILE ID [NEWID]", 2, 3, Arranging, duplicateAnimation,
     "Copy an animation.",
     "The copy stands behind the animation ID and is called NEWID. Without NEWID a free\n"
     "identifier is chosen and printed. Comments directly above the animation are copied too."},
    {"anim move", "FILE ID POSITION", 3, 3, Arranging, moveAnimation,
     "Move an animation to another place.",
     "It stands at POSITION afterwards, counted from 0 as in 'anim list'. Comments directly above\n"
     "it go along."},
    {"anim remove", "FILE ID...", 2, Command::Any, Arranging, removeAnimations,
     "Remove animations.",
     "If one of them is not there, none is removed. Comments directly above one go with it. What\n"
     "still names one is told."},
    {"anim sort", "FILE", 1, 1, Arranging, sortAnimations,
     "Sort the animations.",
     "Numbers are sorted by value, words without regard to case. Comments directly above an\n"
     "animation go along."},
    {"anim align", "FILE MODE X,Y [ID...]", 3, Command::Any, Editing, alignAnimations,
     "Move or scale offsets or contact boxes alike.",
     "In all frames of the animations ID, or of all animations. MODE is 'axis', the offset of\n"
     "frames moves by X,Y; 'boxes', their contact boxes do; 'top-left', the top left corner of\n"
     "boxes goes outward by X,Y; 'bottom-right', the other corner does; or 'scale', the boxes get\n"
     "X and Y percent of their place and size. If a number leaves its range, nothing is changed."},
    {"anim copy-boxes", "FILE FRAME [TO...]", 2, Command::Any, Editing | Instances, copyBoxes,
     "Copy the contact boxes of a frame to others.",
     "FRAME is an animation and the number of a frame, counted from 0, as in '200/3'. TO is\n"
     "another one, or an animation for all its frames. Boxes that these have are replaced."},
    {"anim optimize", "FILE", 1, 1, Editing, optimizeAnimations,
     "Remove the lines of animations that change nothing.",
     "These are contact boxes that a frame has twice, and frames that are like the one in front:\n"
     "that one stays for the time of both. A line with a comment or a problem stays."},
    {"anim import", "FILE SOURCE [ID[=NEWID]...]", 2, Command::Any,
     Arranging | Replace | Skip | BringSprites | Json, importAnimations,
     "Take animations of another project over.",
     "SOURCE is a main file (.character, .stage), a folder with one of them, or a single file of\n"
     "animations. Without ID all its animations come. They stand at the end of FILE, called ID or\n"
     "NEWID, with the comments directly above them. If one of that name is there, nothing is done,\n"
     "unless --replace or --skip tells what to do.\n"
     "With --sprites the sprites that they show, and their palettes, come into the sprite file that\n"
     "FILE names, or that stands beside it. A sprite whose number is taken by another one gets the\n"
     "next free number, and the frames follow. A line tells each thing that came, with a tab between\n"
     "what was done, its kind, its name or how many, and its new number."},
    {"anim gif", "FILE ID IMAGE", 3, 3, Encoding | SpriteFile | PaletteId | Force,
     writeAnimationGif,
     "Write an animation as an animated GIF.",
     "Its frames are drawn with the sprites of the sprite file that stands beside FILE. They are\n"
     "shown over and over, or once if the last one stays for ever (delay -1)."},
    {"render", "GAME|FILE ID", 2, 2,
     Target | Frame | AsGif | AsSheet | Zoom | ShowBoxes | ShowAxis | PaletteId | SpriteFile |
         Columns | Force,
     renderAnimation,
     "Draw a frame of an animation, or all of them, as the stage shows them.",
     "ID is the animation. GAME is a game folder; if several of its projects have the animation,\n"
     "FILE is the main file (.character, .stage) of the one that is meant, or a single file of\n"
     "animations with the sprites beside it. Pictures of an animation all cover the same area, so\n"
     "that they lie upon each other. With --gif it is an animated GIF, with --sheet all frames in\n"
     "rows, and their places, axis, times and boxes as JSON in a file of the same name."},
    {"boxes", "GAME|FILE", 1, 1, OneAnimation | Json, listBoxes,
     "Print the contact boxes of animations, and how they change from frame to frame.",
     "GAME is a game folder. FILE is a main file (.character, .stage), with the code files that it\n"
     "names, or another code file. A line for each animation, each of its frames and each box, with\n"
     "a tab between its place, what it is, and facts: the ticks before, with and after attack boxes\n"
     "and how far they reach; of a frame its time, the pixels that its boxes cover, and how many of\n"
     "them the next frame keeps; 'no box' where a frame has none."},
    {"frames", "GAME|FILE", 1, 1, Json, listMoves,
     "Print the frame data of moves: their ticks, and what they are worth.",
     "GAME is a game folder, FILE a main file (.character). A line for each move of each character,\n"
     "with a tab between its place, its name, the ticks before, with and after attack boxes, and by\n"
     "how many ticks the attacker is free earlier (+) or later (-) when it hits and when it is\n"
     "guarded. All of it is found by playing the move, by the rules of 'zorv-player', against\n"
     "another fighter of the same kind, who stands as near as it can."},
    {"references", "CHARACTER KIND NAME", 3, 3, Json, listReferences,
     "Print every place of a game that names something of a character or stage.",
     "CHARACTER is the main file (.character, .stage). KIND is animation, move, command, sprite,\n"
     "palette, sound or file. NAME is its name, GROUP,NUMBER of a sprite or sound, or the path of a\n"
     "file as the lines of the character have it. A line for each place, with a tab between the\n"
     "place, 'defines' or 'uses', and the text of the line. Where projects share files, the places of\n"
     "all for which the name is the same thing are there."},
    {"rename", "CHARACTER KIND NAME NEWNAME", 4, 4, DryRun | Json, renameEverywhere,
     "Give something of a character or stage another name, everywhere.",
     "CHARACTER, KIND and NAME are as those of 'references'. Every place that it prints gets NEWNAME:\n"
     "lines of all files of the game, the number in a file of sprites or sounds, the name of the file\n"
     "itself. A line for each place, with a tab between the place, what stood there and what does\n"
     "now. All files change, or none: a name that is taken already, a file that is write-protected\n"
     "or whose encoding cannot hold the name is told. What a killed program has left of a rename is\n"
     "finished by the next command on the game."},
    {"diff", "OLD NEW ID", 3, 3, Target | Zoom | ShowAxis | SpriteFile | Force | Json,
     diffAnimations,
     "Print which frames and contact boxes of an animation differ between two games.",
     "ID is the animation. OLD and NEW are game folders, or files as those of 'render'; a single\n"
     "file needs no sprites. Frames that are most alike are compared. A line for each that differs,\n"
     "and for each of its boxes, with a tab between its place in OLD, its place in NEW ('-' where it\n"
     "is not there), 'added', 'removed', 'changed' or, of a box, 'moved', and what it was and is.\n"
     "With -o the frames that differ are drawn on an image, OLD at the left and NEW at the right.\n"
     "The status is 0 if nothing differs, and 1 if something does."},
    {"run", "FILE...", 1, Command::Any, Engine | Parameters | Trust, runInEngine,
     "Start an engine on characters and stages.",
     "Each FILE is a main file (.character, .stage). Copies of the projects are put beside the\n"
     "engine, and removed when it has ended. The engine is the one that --engine names, a name of\n"
     "the settings or a program; else 'zorv-player' in the game folder, if you have agreed to it\n"
     "in the window, or with --trust; else that of the settings; without any the player that comes\n"
     "with the program, 'zorv-player'.\n"
     "In the parameters %0 is the first FILE, %1 the first too, %2 the second and so on. What\n"
     "the engine prints goes to standard output, and its status is that of the command."},
    {"backup", "GAME [NAME]", 1, 2, NoOptions, backUp,
     "Copy all characters and stages of a game aside.",
     "The copies, with the files of the game that they share, go to a new folder below 'backup'\n"
     "in the game, named after the time and NAME, which is 'Manual' if it is not given. The name\n"
     "of that folder is printed. A backup that is interrupted is removed again."},
    {"backups", "GAME", 1, 1, Json, listBackups,
     "Print the backups of a game.",
     "A line for each, the youngest first, with a tab between its folder, time, name, count of\n"
     "files and bytes."},
    {"restore", "GAME BACKUP", 2, 2, DryRun | NoSafety, restore,
     "Put a backup of a game back.",
     "BACKUP is the folder as 'backups' prints it. Its files replace those of the game; files\n"
     "that it lacks stay. First the game is copied into a backup 'Before restore', the folder of\n"
     "which is printed; with --no-safety-backup it is not. With --dry-run nothing is written: a\n"
     "line for each file tells, with a tab between, if it is 'new', 'changed' or the 'same', and\n"
     "its path in the game."},
    {"sprites list", "FILE", 1, 1, Json, listSprites,
     "Print the sprites of a sprite file.",
     "FILE is a sprite file or a folder of images. A line for each sprite, with a tab between its\n"
     "place, identifier, size, axis, palette ('-' for none), how its pixels are stored, and what\n"
     "is wrong with it, if anything is."},
    {"sprites export", "FILE PLACE", 2, 2, Select | PaletteId | Format | Force, exportSprites,
     "Write the sprites of a sprite file as images.",
     "PLACE is a folder, a pattern such as 'out/hero-*.png', or the file for a single one. The\n"
     "files are called GROUP-NUMBER.png, as 'sprites import' reads them."},
    {"sprites import", "FILE IMAGE...", 2, Command::Any,
     SheetHow | Pattern | Group | Axis | Crop | PaletteId | Recolor | Colors | Reversed | Coding | Force,
     importSprites, "Add images to a sprite file.",
     "Each goes to the group and number at the end of its name, as in hero-200-3.png. FILE is made\n"
     "if it is not there. Without --palette an image brings its own palette, unless it is there\n"
     "already; with it pixels take the nearest of its colours, and with --colours all images get a\n"
     "new one together. If one of the images cannot be read, or its sprite is there already, nothing\n"
     "is changed; with --force it is replaced.\n"
     "An IMAGE that is a JSON of a sheet brings the pictures on that. With --sheet each IMAGE is a\n"
     "sheet: 'json' cuts it as the JSON beside it tells, 'gaps' at its empty rows and columns,\n"
     "'cells=32x48' by a size and 'grid=8x4' into columns and rows; the last two with ',edge=N',\n"
     "',gap=N', ',count=N', ',down' behind. What is cut is called as the image, with a number."},
    {"sprites axis", "FILE PLACE [X,Y]", 2, 3, Select, setSpriteAxes,
     "Set the axis of sprites.",
     "PLACE is a place of the image: 'bottom' the middle of its bottom edge, 'top-left', 'top',\n"
     "'top-right', 'left', 'middle', 'right', 'bottom-left' or 'bottom-right'; or 'current', where\n"
     "the axis is. X,Y is added to that. 32,96 alone are pixels from the top left corner."},
    {"sprites renumber", "FILE TO", 2, 2, Select, renumberSprites,
     "Give sprites other groups and numbers.",
     "TO is a group such as 300, in which they keep their numbers; 300,0, where they are numbered\n"
     "from 0 on in their order; or +100 or -100, which is added to their groups. If two sprites\n"
     "would be called the same, nothing is changed. Frames that show them stay as they are: 'check'\n"
     "finds those whose sprites have gone."},
    {"sprites recolor", "FILE PALETTE", 2, 2, Select | Adapt, recolorSprites,
     "Give sprites another palette.",
     "PALETTE is the group and number of one of FILE, such as 1,2; or a palette file, which is added\n"
     "unless its colours are there. Pixels keep their indices, or with --adapt their looks; then\n"
     "sprites of true colour get indices too."},
    {"sprites sheet", "FILE IMAGE", 2, 2, Select | PaletteId | Columns | Json | Force, makeSheet,
     "Draw the sprites of a sprite file on one image.",
     "They stand in rows, in their order. With --json the place of each is printed. The sheet is\n"
     "indexed if all sprites show the same colours."},
    {"palette list", "FILE", 1, 1, Json, listPalettes,
     "Print the palettes of a sprite file, or the colours of a palette.",
     "Of a sprite file: a line for each palette, with a tab between its place, identifier, count\n"
     "of colours, and count of sprites that use it. Of a palette file or an indexed image: a line\n"
     "for each colour, with its index, red, green and blue as #rrggbb, and alpha."},
    {"palette export", "FILE PLACE", 2, 2, Select | Force, exportPalettes,
     "Write the palettes of a sprite file as palette files.",
     "PLACE is a folder, a pattern such as 'out/hero-*.act', or the file for a single one. The\n"
     "files are called GROUP-NUMBER.act."},
    {"palette apply", "PALETTE FILE...", 2, Command::Any, Select | Adapt | Written, applyPalette,
     "Show images, or the sprites of a sprite file, in other colours.",
     "PALETTE is a palette file or an indexed image. FILE is an indexed image, whose pixels keep\n"
     "their indices, or a sprite file, of which --select tells the palette that is replaced."},
    {"palette reorder", "FILE ORDER", 2, 2, Select | Slots | Descending | Costumes, reorderPalette,
     "Put the colours of a palette of a sprite file in another order; pictures stay.",
     "The pixels of all sprites that use it follow. ORDER is hue, lightness, chroma, red, green, blue\n"
     "or alpha; slot 0 and transparent colours keep their places, unless --slots names them. Or it is\n"
     "slots such as 7,3,5, which are put in this order in the places that they have together.\n"
     "--select tells which palette, if there are several; several get the order of the first. What\n"
     "remaps show instead of it goes along."},
    {"palette ramp", "FILE FIRST LAST", 3, 3, Select | Space, rampPalette,
     "Fill the slots between two colours of a palette of a sprite file with steps.",
     "The colours in the slots FIRST and LAST stay. --select tells which palette, if there are\n"
     "several."},
    {"palette uses", "FILE", 1, 1, Select | Json, listUses,
     "Print how often the colours of palettes are used.",
     "A line for each slot of a palette of a sprite file that a sprite uses, with a tab between the\n"
     "palette, the slot, its colour as #rrggbb, the count of sprites and that of their pixels."},
    {"palette convert", "FILE...", 1, Command::Any, Out | Force, convertPalettes,
     "Write palettes as ACT files.",
     "Palettes are read from .act, .pal, .aco, .ase, .txt, and from indexed images. Colour 0\n"
     "is transparent where it is used. Without --out they stand beside FILE."},
    {"image convert", "IMAGE...", 1, Command::Any, Written, convertImages,
     "Write images in another format.",
     "Formats are png, pcx, bmp and gif. An image stays indexed where the format can hold it. GIF\n"
     "takes 256 colours of an image that has more."},
    {"image crop", "IMAGE...", 1, Command::Any, Written | Background, cropImages,
     "Cut off what does not show around images.",
     "In an indexed image that is one index, and transparent colours; in any other, transparent\n"
     "pixels. With --background -1 only colours count."},
    {"image resize", "IMAGE...", 1, Command::Any, Written | Size | Factor | Filter, resizeImages,
     "Make images larger or smaller.",
     "'nearest' takes pixels as they are, 'bilinear' mixes them, 'epx' and 'hq' draw the edges of\n"
     "pixel art anew. An indexed image keeps its palette with each of them."},
    {"image rotate", "IMAGE...", 1, Command::Any, Written | Angle | Filter | Background,
     rotateImages,
     "Turn images clockwise.",
     "The result is as large as its corners need. Quarter turns are exact. An indexed image\n"
     "keeps its palette."},
    {"image quantize", "IMAGE...", 1, Command::Any, Written | Colors | Common | PaletteFile,
     quantizeImages,
     "Give images few colours.",
     "With --colours each image gets the ones that suit it best, with --common all together.\n"
     "With --palette each pixel takes the nearest colour of that file. Nothing is dithered."},
    {"sound list", "FILE", 1, 1, Json, listSounds,
     "Print the sounds of a sound file.",
     "A line for each, with a tab between its place, identifier, channels, bits a sample, frames\n"
     "a second, frames and seconds."},
    {"sound export", "FILE PLACE", 2, 2, Select | Force, exportSounds,
     "Write the sounds of a sound file as WAV files.",
     "PLACE is a folder, a pattern such as 'out/hero-*.wav', or the file for a single one. The\n"
     "files are called GROUP-NUMBER.wav."},
    {"sound import", "FILE SOUND...", 2, Command::Any, Group | Lenient | Force, importSounds,
     "Add WAV, FLAC, Ogg Vorbis or Opus files to a sound file.",
     "Each goes to the group and number at the end of its name, as in 5-0.wav. FILE is made if it\n"
     "is not there. If one of the sounds cannot be read, or is there already, nothing is changed;\n"
     "with --force it is replaced. A program that records without an end leaves wrong sizes in a\n"
     "WAV file, which lead to a part of it: that is told, and --lenient takes all."},
    {"sound info", "SOUND...", 1, Command::Any, Json | Lenient, tellOfSounds,
     "Print the form of WAV, FLAC, Ogg Vorbis or Opus files.",
     "A line for each, with a tab between its name, channels, bits a sample, frames a second,\n"
     "frames and seconds."},
    {"sound resample", "FILE", 1, 1, Select | Rate | Bits | Channels | DryRun | Json, resampleSounds,
     "Give the sounds of a sound file another sample rate, bits and channels.",
     "What is not named stays. A line for each sound that changes, as 'sound list' prints it then.\n"
     "Several channels become another number as their mean; what is too loud for 8 bits is cut off."},
    {"sound trim", "FILE", 1, 1, Select | From | To | Silence | DryRun | Json, trimSounds,
     "Keep a part of the sounds of a sound file, or cut off silence at their ends.",
     "With --from or --to all of that part stays, unless --silence is given too. A line for each\n"
     "sound that changes, as 'sound list' prints it then."},
    {"sound normalize", "FILE", 1, 1, Select | Peak | Loudness | DryRun | Json, normalizeSounds,
     "Make the sounds of a sound file equally loud.",
     "All get the same peak, or the same loudness as far as none of their peaks goes beyond --peak.\n"
     "A line for each sound that changes, with a tab between its place, identifier and by how many\n"
     "decibels it is louder. A sound below 0.4 seconds is too short for a loudness, and stays."},
    {"sound loudness", "FILE...", 1, Command::Any, Select | Lenient | Json, tellLoudness,
     "Print how loud sounds are.",
     "FILE is a sound file, or one that 'sound info' reads. A line for each sound, with a tab\n"
     "between its file, identifier ('-' if it is alone), sample peak and true peak in decibels, and loudness in LUFS\n"
     "by EBU R 128, or 'too short' below 0.4 seconds."},
    {"completer", "", 0, 0, NoOptions, completerCommand,
     "Print the words that the editor completes.",
     "They are groups, sub-groups and choices of the grammar, as the file 'completer.xml' of the\n"
     "family's data has them. A file that is changed by hand starts from here."},
    {"help", "[COMMAND]", 0, 2, NoOptions, helpCommand,
     "Print what there is, or all about a command.",
     "'zorv COMMAND --help' does the same."},
};
// clang-format on

/// Parses the option at `*index` and its value.
bool parseOption(const Command& command, const QStringList& arguments, int* index,
                 Invocation* invocation, QString* error)
{
    const QString& name = arguments.at(*index);
    const OptionInfo* option = findOption(command.options, name);
    if (!option) {
        *error = tr("'%1' has no option '%2'. Write '--' in front of a text that begins so.")
                     .arg(QLatin1String(command.name), name);
    } else if (option->value && ++*index == arguments.size()) {
        *error = tr("Expected a text behind '%1'.").arg(name);
    } else {
        *error = option->take(option->value ? arguments.at(*index) : QString(), *invocation);
    }
    return error->isEmpty();
}

bool checkOperands(const Command& command, const Invocation& invocation, QString* error)
{
    const int count = invocation.operands.size();
    if (count < command.fewest) {
        const QStringList needed = QString::fromLatin1(command.operands)
                                       .remove(QLatin1String("..."))
                                       .split(QLatin1Char(' '));
        *error =
            tr("'%1' needs %2.")
                .arg(QLatin1String(command.name), needed.mid(0, command.fewest).join(tr(" and ")));
    } else if (count > command.most) {
        *error = tr("'%1' takes no '%2'. Put a text with blanks in quotes.")
                     .arg(QLatin1String(command.name), invocation.operands.at(command.most));
    }
    return error->isEmpty();
}

}  // namespace

QString Command::usage() const
{
    QString text =
        QStringLiteral("zorv %1 %2").arg(QLatin1String(name), QLatin1String(operands)).trimmed();
    for (const OptionInfo& option : Cli::options()) {
        if (option.option & options) {
            text += QLatin1String(" [") + optionForm(option) + QLatin1Char(']');
        }
    }
    return text;
}

const QVector<Command>& commands()
{
    static const QVector<Command> rows(std::begin(table), std::end(table));
    return rows;
}

const Command* findCommand(const QStringList& arguments, int* words)
{
    for (const Command& command : table) {
        const QStringList name = QString::fromLatin1(command.name).split(QLatin1Char(' '));
        if (arguments.mid(0, name.size()) == name) {
            *words = name.size();
            return &command;
        }
    }
    return nullptr;
}

bool parseArguments(const Command& command, const QStringList& arguments, Invocation* invocation,
                    QString* error)
{
    bool readsOptions = true;
    for (int i = 0; i < arguments.size(); ++i) {
        const QString& argument = arguments.at(i);
        // A single dash may be the sign of a number.
        const bool isOption =
            argument.startsWith(QLatin1String("--")) ||
            (argument == QLatin1String("-o") && findOption(command.options, argument));
        if (!readsOptions || !isOption) {
            invocation->operands.append(argument);
        } else if (argument == QLatin1String("--")) {
            readsOptions = false;
        } else if (!parseOption(command, arguments, &i, invocation, error)) {
            return false;
        }
    }
    return checkOperands(command, *invocation, error);
}

}  // namespace Cli
