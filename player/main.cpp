#include "family/project/familyparentproject.h"
#include "rules/gamereader.h"
#include "rules/tick.h"
#include "script/description.h"
#include "script/script.h"

#include <zorv/code/codecs/filetext.h>
#include <zorv/core/filesystemarchive.h>

#include <QCoreApplication>
#include <QFileInfo>

#include <clocale>
#include <cstdio>

#include <signal.h>

namespace {

enum Status { Fine = 0, WrongUsage = 2, NotDone = 3 };

const char usage[] =
    "usage: zorv-player GAME [CHARACTER [CHARACTER]] [--stage STAGE] [--intro] --script FILE\n"
    "                   [--json]\n"
    "       zorv-player --character FILE [--character FILE] ...\n"
    "\n"
    "Plays a match of a game as FILE tells the inputs, and prints a line for each tick: its\n"
    "number, a hash of the state, the phase, and of both fighters place, life and what they do.\n"
    "CHARACTER and STAGE are names of folders or files of the game, or paths.\n";

struct Request
{
    QString game;
    QStringList characters;
    QString stage;
    QString script;
    bool hasIntro = false;
    bool json = false;
};

int complain(const QString& text, Status status)
{
    fprintf(stderr, "zorv-player: %s\n", qPrintable(text));
    return status;
}

bool readRequest(const QStringList& arguments, Request* request, QString* error)
{
    QStringList operands;
    for (int i = 0; i < arguments.size(); ++i) {
        const QString& argument = arguments.at(i);
        const bool hasValue = argument == QLatin1String("--character") ||
                              argument == QLatin1String("--stage") ||
                              argument == QLatin1String("--script");
        const QString value = hasValue ? arguments.value(i + 1) : QString();
        i += hasValue;
        if (hasValue && value.isEmpty()) {
            *error = QStringLiteral("Expected a name behind '%1'.").arg(argument);
        } else if (argument == QLatin1String("--character")) {
            request->characters.append(value);
        } else if (argument == QLatin1String("--stage")) {
            request->stage = value;
        } else if (argument == QLatin1String("--script")) {
            request->script = value;
        } else if (argument == QLatin1String("--json")) {
            request->json = true;
        } else if (argument == QLatin1String("--intro")) {
            request->hasIntro = true;
        } else if (argument.startsWith(QLatin1String("--"))) {
            *error = QStringLiteral("There is no option '%1'.").arg(argument);
        } else {
            operands.append(argument);
        }
    }
    if (!operands.isEmpty()) {
        request->game = operands.takeFirst();
    } else if (!request->characters.isEmpty() || !request->stage.isEmpty()) {
        request->game =
            Family::FamilyParentProject::folderOf(request->characters.value(0, request->stage));
    }
    request->characters += operands;
    if (error->isEmpty() && request->game.isEmpty()) {
        *error = QStringLiteral("Expected the folder of a game.");
    } else if (error->isEmpty() && request->characters.size() > 2) {
        *error = QStringLiteral("Two characters play; found a third, '%1'.")
                     .arg(request->characters.at(2));
    } else if (error->isEmpty() && request->script.isEmpty()) {
        *error = QStringLiteral("Expected '--script FILE', what is played.");
    }
    return error->isEmpty();
}

/// A game without a stage is played on a bare one.
bool readGame(const Request& request, Rules::Game* game, QString* error)
{
    Rules::GameReader reader(request.game);
    for (int i = 0; i < 2; ++i) {
        const QString name = request.characters.value(i, request.characters.value(0));
        const QString file =
            Rules::findMainFile(request.game, QStringLiteral(".character"), name, i, error);
        if (file.isEmpty() || !reader.readFighter(file, &game->fighters[i], error)) {
            return false;
        }
    }
    const QString stage =
        Rules::findMainFile(request.game, QStringLiteral(".stage"), request.stage, 0, error);
    if (stage.isEmpty() && request.stage.isEmpty()) {
        error->clear();
    } else if (stage.isEmpty() || !reader.readStage(stage, &game->stage, error)) {
        return false;
    }
    game->hasIntro = request.hasIntro;
    Rules::completeGame(game);
    const QStringList notes = reader.notes();
    for (const QString& note : notes) {
        complain(note, Fine);
    }
    return true;
}

int play(const Request& request)
{
    Rules::Game game;
    Player::Script script;
    Zorv::FileText text;
    QString error;
    if (!QFileInfo(request.game).isDir()) {
        return complain(QStringLiteral("There is no folder '%1'.").arg(request.game), NotDone);
    }
    if (!readGame(request, &game, &error) ||
        !text.read(*Zorv::FileSystemArchive::instance(), request.script, -1, &error)) {
        return complain(error, NotDone);
    }
    if (!script.read(text.text, &error)) {
        return complain(request.script + QLatin1String(": ") + error, NotDone);
    }
    Rules::State state = Rules::firstState(game);
    bool isWritten = true;
    script.run(game, &state, [&](const Rules::State& now) {
        const QByteArray line =
            (request.json ? Player::jsonOf(game, now) : Player::textOf(game, now)) + '\n';
        isWritten = fwrite(line.constData(), 1, size_t(line.size()), stdout) == size_t(line.size());
        return isWritten;
    });
    isWritten = fflush(stdout) == 0 && isWritten;
    return isWritten ? Fine
                     : complain(QStringLiteral("Cannot write the output. Check where it goes to."),
                                NotDone);
}

}  // namespace

int main(int argc, char** argv)
{
    // A reader that goes away is a failed write and not the end.
    signal(SIGPIPE, SIG_IGN);
    setlocale(LC_CTYPE, "");
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.contains(QLatin1String("--help")) || arguments.contains(QLatin1String("-h"))) {
        fputs(usage, stdout);
        return Fine;
    }
    if (arguments == QStringList(QStringLiteral("--version"))) {
        puts("zorv-player " ZORV_VERSION);
        return Fine;
    }
    Request request;
    QString error;
    if (!readRequest(arguments, &request, &error)) {
        complain(error, WrongUsage);
        fputs(usage, stderr);
        return WrongUsage;
    }
    return play(request);
}
