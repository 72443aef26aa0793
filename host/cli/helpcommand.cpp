#include "cli.h"
#include "command.h"
#include "output.h"

#include <QCoreApplication>

namespace Cli {

namespace {

const int NameWidth = 16;

QString tr(const char* text)
{
    return QCoreApplication::translate("Cli", text);
}

QString overview()
{
    QString text = tr("zorv edits the code files of characters and stages.\n"
                      "\n"
                      "usage: zorv [GAME]               open a window, with the folder GAME\n"
                      "       zorv COMMAND ...          work without a display\n"
                      "       zorv help [COMMAND]       tell all about a command\n"
                      "       zorv --version\n"
                      "\n"
                      "Commands:\n");
    for (const Command& command : commands()) {
        text += QStringLiteral("  %1%2\n")
                    .arg(QLatin1String(command.name), -NameWidth)
                    .arg(tr(command.summary));
    }
    return text +
           tr("\n"
              "Options:\n"
              "  --json            (check, tree, anim list, backups) print JSON\n"
              "  --dry-run         (set, anim, restore) print what would change, write nothing\n"
              "  --encoding NAME   (tree, get, set, anim) the encoding of FILE, instead of the "
              "one\n"
              "                    that seems to be in use; it is kept when FILE is written\n"
              "  --engine NAME     (run) an engine of the settings, or a program\n"
              "  --parameters TEXT (run) what the engine gets, with %0, %1 for the projects\n"
              "  --no-safety-backup\n"
              "                    (restore) do not copy the game aside first\n"
              "  --                what follows is no option\n"
              "\n"
              "Status: 0 fine, 1 problems found, 2 wrong usage, 3 the work could not be done.\n"
              "That of 'run' is the status of the engine.\n");
}

QString details(const Command& command)
{
    return QStringLiteral("%1\n\nusage: %2\n\n%3\n")
        .arg(tr(command.summary), command.usage(), tr(command.details));
}

}  // namespace

int helpCommand(const Invocation& invocation, Output& output)
{
    const QString name = invocation.operands.join(QLatin1Char(' '));
    QStringList found;
    for (const Command& command : commands()) {
        const QString candidate = QLatin1String(command.name);
        if (candidate == name || candidate.startsWith(name + QLatin1Char(' '))) {
            found.append(details(command));
        }
    }
    if (name.isEmpty()) {
        output.write(overview());
    } else if (found.isEmpty()) {
        complain(tr("There is no command '%1'. 'zorv help' tells what there is.").arg(name));
        return WrongUsage;
    } else {
        output.write(found.join(QLatin1Char('\n')));
    }
    return Fine;
}

}  // namespace Cli
