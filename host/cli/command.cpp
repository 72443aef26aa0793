#include "command.h"

#include "code/codecs/textcodecs.h"

#include <QCoreApplication>
#include <QTextCodec>

namespace Cli {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("Cli", text);
}

const int Editing = Command::DryRun | Command::Encoding;

// clang-format off
constexpr Command table[] = {
    {"check", "GAME|FILE", 1, 1, Command::Json, checkCommand,
     "Print every problem of a game folder, a project or a file.",
     "Each problem is printed once, sorted by place, as\n"
     "    file:line:column: error: text\n"
     "with 'error', 'warning' or 'deprecated'. GAME is a game folder, with all projects below\n"
     "it. FILE is a main file (.character, .stage), which is checked with all the files that it\n"
     "names, or another code file. The status is 1 if there is any problem."},
    {"tree", "FILE", 1, 1, Command::Json | Command::Encoding, treeCommand,
     "Print the groups, values, animations, frames and boxes of a file.",
     "A line for each, with a tab between its number in the file, what it is, and the path\n"
     "that 'get' takes. What belongs to another thing is indented below it."},
    {"get", "FILE PATH", 2, 2, Command::Encoding, getCommand,
     "Print one value.",
     "A text comes without its quotes. A path to more than one value, as to a group, gives its\n"
     "lines. 'tree' shows the paths of a file."},
    {"set", "FILE PATH VALUE", 3, 3, Editing, setCommand,
     "Write one value.",
     "VALUE is as 'get' prints it. One line of the file changes, and its comment stays. A value\n"
     "that is there already changes nothing."},
    {"anim list", "FILE", 1, 1, Command::Json | Command::Encoding, listAnimations,
     "Print the animations of a file.",
     "A line for each, with a tab between its place, identifier, name, count of frames, time in\n"
     "ticks (-1: it never ends), and line in the file."},
    {"anim duplicate", "FILE ID [NEWID]", 2, 3, Editing, duplicateAnimation,
     "Copy an animation.",
     "The copy stands behind the animation ID and is called NEWID. Without NEWID a free\n"
     "identifier is chosen and printed."},
    {"anim move", "FILE ID POSITION", 3, 3, Editing, moveAnimation,
     "Move an animation to another place.",
     "It stands at POSITION afterwards, counted from 0 as in 'anim list'."},
    {"anim remove", "FILE ID...", 2, Command::Any, Editing, removeAnimations,
     "Remove animations.",
     "If one of them is not there, none is removed."},
    {"anim sort", "FILE", 1, 1, Editing, sortAnimations,
     "Sort the animations.",
     "Numbers are sorted by value, words without regard to case."},
    {"run", "FILE...", 1, Command::Any, Command::Engine, runInEngine,
     "Start an engine on characters and stages.",
     "Each FILE is a main file (.character, .stage). Copies of the projects are put beside the\n"
     "engine, and removed when it has ended. The engine is that of the game folder, else the\n"
     "one that --engine names, a name of the settings or a program, else that of the settings.\n"
     "In the parameters %0 is the first FILE, %1 the first too, %2 the second and so on. What\n"
     "the engine prints goes to standard output, and its status is that of the command."},
    {"backup", "GAME [NAME]", 1, 2, Command::NoOptions, backUp,
     "Copy all characters and stages of a game aside.",
     "The copies, with the files of the game that they share, go to a new folder below 'backup'\n"
     "in the game, named after the time and NAME, which is 'Manual' if it is not given. The name\n"
     "of that folder is printed. A backup that is interrupted is removed again."},
    {"backups", "GAME", 1, 1, Command::Json, listBackups,
     "Print the backups of a game.",
     "A line for each, the youngest first, with a tab between its folder, time, name, count of\n"
     "files and bytes."},
    {"restore", "GAME BACKUP", 2, 2, Command::DryRun | Command::NoSafety, restore,
     "Put a backup of a game back.",
     "BACKUP is the folder as 'backups' prints it. Its files replace those of the game; files\n"
     "that it lacks stay. First the game is copied into a backup 'Before restore', the folder of\n"
     "which is printed; with --no-safety-backup it is not. With --dry-run nothing is written: a\n"
     "line for each file tells, with a tab between, if it is 'new', 'changed' or the 'same', and\n"
     "its path in the game."},
    {"completer", "", 0, 0, Command::NoOptions, completerCommand,
     "Print the words that the editor completes.",
     "They are groups, sub-groups and choices of the grammar, as the file 'completer.xml' of the\n"
     "family's data has them. A file that is changed by hand starts from here."},
    {"help", "[COMMAND]", 0, 2, Command::NoOptions, helpCommand,
     "Print what there is, or all about a command.",
     "'zorv COMMAND --help' does the same."},
};
// clang-format on

bool parseEncoding(const QString& name, Invocation* invocation, QString* error)
{
    const QTextCodec* codec = QTextCodec::codecForName(name.toUtf8());
    invocation->codec = codec ? Zorv::TextCodecs::index(codec->name().constData()) : 0;
    if (invocation->codec == 0) {
        *error = tr("Expected an encoding such as UTF-8, windows-1252 or Shift_JIS; found '%1'.")
                     .arg(name);
    }
    return invocation->codec != 0;
}

/// The text of an option that stands behind it.
bool takeText(const QStringList& arguments, int* index, QString* text, QString* error)
{
    if (++*index == arguments.size()) {
        *error = tr("Expected a text behind '%1'.").arg(arguments.last());
        return false;
    }
    *text = arguments.at(*index);
    return true;
}

/// Takes the option that stands at `*index`, with what belongs to it.
bool parseOption(const Command& command, const QStringList& arguments, int* index,
                 Invocation* invocation, QString* error)
{
    const QString& name = arguments.at(*index);
    const auto is = [&](Command::Option option, const char* text) {
        return (command.options & option) && name == QLatin1String(text);
    };
    if (is(Command::Json, "--json")) {
        invocation->json = true;
    } else if (is(Command::DryRun, "--dry-run")) {
        invocation->dryRun = true;
    } else if (is(Command::Encoding, "--encoding")) {
        return parseEncoding(arguments.value(++*index), invocation, error);
    } else if (is(Command::NoSafety, "--no-safety-backup")) {
        invocation->noSafetyBackup = true;
    } else if (is(Command::Engine, "--engine")) {
        return takeText(arguments, index, &invocation->engine, error);
    } else if (is(Command::Engine, "--parameters")) {
        return takeText(arguments, index, &invocation->parameters, error);
    } else {
        *error = tr("'%1' has no option '%2'. Write '--' in front of a text that begins so.")
                     .arg(QLatin1String(command.name), name);
        return false;
    }
    return true;
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
    if (options & Json) {
        text += QLatin1String(" [--json]");
    }
    if (options & DryRun) {
        text += QLatin1String(" [--dry-run]");
    }
    if (options & NoSafety) {
        text += QLatin1String(" [--no-safety-backup]");
    }
    if (options & Encoding) {
        text += QLatin1String(" [--encoding NAME]");
    }
    if (options & Engine) {
        text += QLatin1String(" [--engine NAME] [--parameters TEXT]");
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
        // A single dash is the sign of a number.
        if (!readsOptions || !argument.startsWith(QLatin1String("--"))) {
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
