#include "cli/cli.h"
#include "cli/command.h"
#include "cli/output.h"

#include <QCoreApplication>

namespace Cli {

namespace {

const int NameWidth = 18;
const int OptionWidth = 20;

QString tr(const char* text)
{
    return QCoreApplication::translate("Cli", text);
}

QString overview()
{
    QString text =
        tr("zorv edits the code files of characters and stages, and their sprites, palettes and\n"
           "sounds.\n"
           "\n"
           "usage: zorv [GAME]               open a window, with the folder GAME\n"
           "       zorv COMMAND ...          work without a display\n"
           "       zorv help [COMMAND]       tell all about a command\n"
           "       zorv --version\n"
           "\n"
           "Commands:\n");
    for (const Command& command : commands()) {
        text += QStringLiteral("  %1%2\n")
                    .arg(QString::fromLatin1(command.name).leftJustified(NameWidth),
                         tr(command.summary));
    }
    return text +
           tr("\n"
              "'zorv help COMMAND' tells the options of a command. What follows '--' is no "
              "option.\n"
              "\n"
              "Status: 0 fine, 1 problems found, 2 wrong usage, 3 the work could not be done.\n"
              "That of 'run' is the status of the engine.\n");
}

QString optionLines(const Command& command)
{
    QString text;
    for (const OptionInfo& option : options()) {
        if (option.option & command.options) {
            text += QStringLiteral("  %1%2\n")
                        .arg(optionForm(option).leftJustified(OptionWidth), tr(option.summary));
        }
    }
    return text.isEmpty() ? text : tr("\nOptions:\n") + text;
}

QString details(const Command& command)
{
    return QStringLiteral("%1\n\nusage: %2\n\n%3\n")
               .arg(tr(command.summary), command.usage(), tr(command.details)) +
           optionLines(command);
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
