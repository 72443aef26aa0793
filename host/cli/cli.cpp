#include "cli/cli.h"

#include "cli/command.h"
#include "cli/commanddialogs.h"
#include "cli/endingsignals.h"
#include "cli/output.h"
#include "family/grammar/grammar.h"
#include "family/project/familyparentproject.h"
#include "operations/hostinterface.h"
#include "operations/rename/changeset.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace Cli {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("Cli", text);
}

QStringList commandNames()
{
    QStringList names;
    for (const Command& command : commands()) {
        names.append(QLatin1String(command.name));
    }
    return names;
}

bool isGroupOfCommands(const QString& word)
{
    const QStringList names = commandNames();
    return std::any_of(names.begin(), names.end(), [&word](const QString& name) {
        return name.startsWith(word + QLatin1Char(' '));
    });
}

int refuse(const QString& error, const QString& usage)
{
    complain(error);
    complain(usage.isEmpty() ? tr("'zorv help' tells what there is.") : tr("usage: %1").arg(usage));
    return WrongUsage;
}

int refuseUnknown(const QStringList& arguments)
{
    const QString first = arguments.first();
    if (first.startsWith(QLatin1Char('-'))) {
        return refuse(tr("There is no option '%1' in the place of a command.").arg(first), {});
    }
    if (isGroupOfCommands(first)) {
        const QString second = arguments.value(1);
        const QString whole = first + QLatin1Char(' ') + second;
        return refuse(second.isEmpty() ? tr("Expected what to do behind '%1'.").arg(first)
                                       : tr("There is no command '%1'. %2")
                                             .arg(whole, Family::nameHint(whole, commandNames())),
                      {});
    }
    const QString near = Family::nearName(first, commandNames());
    return refuse(
        near.isEmpty()
            ? tr("There is no command, folder or file '%1'.").arg(first)
            : tr("There is no command, folder or file '%1'. Did you mean '%2'?").arg(first, near),
        {});
}

/// True if an argument is the value of the option before it.
bool isValue(const Command& command, const QStringList& arguments, int place)
{
    const OptionInfo* option = findOption(command.options, arguments.value(place - 1));
    return option && option->value;
}

/// Accepts help in place of a command, or anywhere after one.
QStringList withHelpInFront(const QStringList& arguments)
{
    const QString help = QStringLiteral("help");
    const QString first = arguments.value(0);
    if (first == QLatin1String("--help") || first == QLatin1String("-h")) {
        return QStringList(help) + arguments.mid(1);
    }
    int words = 0;
    const Command* command = findCommand(arguments, &words);
    const int end = arguments.indexOf(QStringLiteral("--"));
    for (int i = 1; i < (end < 0 ? arguments.size() : end); ++i) {
        if (arguments.at(i) != QLatin1String("--help")) {
            continue;
        }
        if (command && !isValue(*command, arguments, i)) {
            return QStringList(help) + arguments.mid(0, words);
        }
        if (!command && isGroupOfCommands(first)) {
            return {help, first};
        }
    }
    return arguments;
}

/// Finishes an interrupted change of several files before any other work.
void settleGameOf(const QString& operand)
{
    if (operand.isEmpty() || !QFileInfo::exists(operand)) {
        return;
    }
    const QStringList lines =
        Operations::settleChanges(Family::FamilyParentProject::folderOf(operand));
    for (const QString& line : lines) {
        complain(line);
    }
}

int run(const Command& command, const QStringList& arguments, Output& output)
{
    Invocation invocation;
    QString error;
    if (!parseArguments(command, arguments, &invocation, &error)) {
        return refuse(error, command.usage());
    }
    EndingSignals::watch();
    Operations::HostInterface host;
    Operations::startHost(&host);
    CommandDialogs dialogs;
    settleGameOf(invocation.operands.value(0));
    const int status = command.run(invocation, output);
    return dialogs.wasShown() ? NotDone : status;
}

}  // namespace

bool isCommand(const QStringList& arguments)
{
    if (arguments.isEmpty()) {
        return false;
    }
    const QString first = arguments.first();
    if (first.startsWith(QLatin1Char('-'))) {
        // Options with one dash belong to Qt, except this one.
        return first == QLatin1String("-h") ||
               (first.startsWith(QLatin1String("--")) && first != QLatin1String("--screenshot"));
    }
    int words = 0;
    return isGroupOfCommands(first) || findCommand(arguments, &words) != nullptr ||
           !QFileInfo::exists(first);
}

int runCommand(const QStringList& arguments)
{
    Output output;
    int status = Fine;
    int words = 0;
    const QStringList given = withHelpInFront(arguments);
    if (given.value(0) == QLatin1String("--version")) {
        output.write(QStringLiteral("zorv " ZORV_VERSION "\n"));
    } else if (const Command* command = findCommand(given, &words)) {
        status = run(*command, given.mid(words), output);
    } else {
        status = refuseUnknown(given);
    }
    if (!output.finish()) {
        if (!output.isReaderGone()) {
            complain(tr("Cannot write the output: %1. Check where it goes to.")
                         .arg(output.errorString()));
        }
        return NotDone;
    }
    return status;
}

}  // namespace Cli
