#include "family/project/familyparentproject.h"
#include "operations/hostinterface.h"
#include "operations/language.h"
#include "operations/settingsformat.h"
#include "picture/loadedmatch.h"
#include "rules/tick.h"
#include "script/description.h"
#include "script/script.h"
#include "window/playwindow.h"

#include <zorv/code/codecs/filetext.h>
#include <zorv/core/filesystemarchive.h>

#include <QFileInfo>
#include <QGuiApplication>
#include <QSettings>

#include <algorithm>
#include <clocale>
#include <cstdio>
#include <cstring>
#include <memory>

#include <signal.h>

namespace {

enum Status { Fine = 0, WrongUsage = 2, NotDone = 3 };

const char usage[] =
    "usage: zorv-player GAME [CHARACTER [CHARACTER]] [--stage STAGE]\n"
    "       zorv-player GAME ... [--intro] --script FILE [--json]\n"
    "       zorv-player --character FILE [--character FILE] ...\n"
    "\n"
    "Plays a match of a game in a window, for two people at one keyboard; F1 shows the keys.\n"
    "With '--script' it needs no display: it plays as FILE tells the inputs, and prints a line\n"
    "for each tick: its number, a hash of the state, the phase, and of both fighters place, life\n"
    "and what they do.\n"
    "CHARACTER and STAGE are names of folders or files of the game, or paths.\n"
    "'--original FILE' tells what a character or stage was copied from: when that is saved, it\n"
    "takes the place of the copy. '--editor SOCKET' tells where the editor that made it listens.\n";

struct Request
{
    Player::MatchRequest match;
    QString script;
    QString editor;
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
    Player::MatchRequest& match = request->match;
    match.hasIntro = false;
    for (int i = 0; i < arguments.size(); ++i) {
        const QString& argument = arguments.at(i);
        const bool hasValue =
            argument == QLatin1String("--character") || argument == QLatin1String("--stage") ||
            argument == QLatin1String("--original") || argument == QLatin1String("--editor") ||
            argument == QLatin1String("--script");
        const QString value = hasValue ? arguments.value(i + 1) : QString();
        i += hasValue;
        if (hasValue && value.isEmpty()) {
            *error = QStringLiteral("Expected a name behind '%1'.").arg(argument);
        } else if (argument == QLatin1String("--character")) {
            match.characters.append(value);
        } else if (argument == QLatin1String("--stage")) {
            match.stage = value;
        } else if (argument == QLatin1String("--original")) {
            match.original = value;
        } else if (argument == QLatin1String("--editor")) {
            request->editor = value;
        } else if (argument == QLatin1String("--script")) {
            request->script = value;
        } else if (argument == QLatin1String("--json")) {
            request->json = true;
        } else if (argument == QLatin1String("--intro")) {
            match.hasIntro = true;
        } else if (argument.startsWith(QLatin1String("--"))) {
            *error = QStringLiteral("There is no option '%1'.").arg(argument);
        } else {
            operands.append(argument);
        }
    }
    if (!operands.isEmpty()) {
        match.game = operands.takeFirst();
    } else if (!match.characters.isEmpty() || !match.stage.isEmpty()) {
        match.game = Family::FamilyParentProject::folderOf(match.characters.value(0, match.stage));
    }
    match.characters += operands;
    if (error->isEmpty() && match.game.isEmpty()) {
        *error = QStringLiteral("Expected the folder of a game.");
    } else if (error->isEmpty() && match.characters.size() > 2) {
        *error =
            QStringLiteral("Two characters play; found a third, '%1'.").arg(match.characters.at(2));
    }
    match.hasIntro = match.hasIntro || request->script.isEmpty();
    return error->isEmpty();
}

int playScript(const Request& request)
{
    Player::LoadedMatch match;
    Player::Script script;
    Zorv::FileText text;
    QString error;
    if (!match.load(request.match, &error) ||
        !text.read(*Zorv::FileSystemArchive::instance(), request.script, -1, &error)) {
        return complain(error, NotDone);
    }
    if (!script.read(text.text, &error)) {
        return complain(request.script + QLatin1String(": ") + error, NotDone);
    }
    for (const QString& note : qAsConst(match.notes)) {
        complain(note, Fine);
    }
    Rules::State state = Rules::firstState(match.game);
    bool isWritten = true;
    script.run(match.game, &state, [&](const Rules::State& now) {
        const QByteArray line =
            (request.json ? Player::jsonOf(match.game, now) : Player::textOf(match.game, now)) +
            '\n';
        isWritten = fwrite(line.constData(), 1, size_t(line.size()), stdout) == size_t(line.size());
        return isWritten;
    });
    isWritten = fflush(stdout) == 0 && isWritten;
    return isWritten ? Fine
                     : complain(QStringLiteral("Cannot write the output. Check where it goes to."),
                                NotDone);
}

/// The language of the editor.
QString chosenLanguage()
{
    const QSettings settings(Operations::settingsFormat(), QSettings::UserScope,
                             QStringLiteral("zorv"), QStringLiteral("zorv"));
    return settings.value(QStringLiteral("language")).toString();
}

int playInWindow(const Request& request)
{
    Operations::Language::use(chosenLanguage());
    auto match = std::make_unique<Player::LoadedMatch>();
    QString error;
    if (!match->load(request.match, &error)) {
        return complain(error, NotDone);
    }
    Player::PlayWindow window(std::move(match), request.match);
    if (!request.editor.isEmpty()) {
        window.setEditor(request.editor);
    }
    window.begin();
    return QGuiApplication::exec();
}

bool hasDisplay()
{
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

int run(const QStringList& arguments)
{
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
    if (!request.script.isEmpty()) {
        return playScript(request);
    }
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance())) {
        return complain(
            QStringLiteral("There is no display for the window. '--script' needs none."), NotDone);
    }
    return playInWindow(request);
}

}  // namespace

int main(int argc, char** argv)
{
    // A reader that closes the pipe must cause a failed write, not kill the program.
    signal(SIGPIPE, SIG_IGN);
    setlocale(LC_CTYPE, "");
    QCoreApplication::setApplicationName(QStringLiteral("zorv-player"));
    const bool needsWindow = std::none_of(argv + 1, argv + argc, [](const char* argument) {
        return strcmp(argument, "--script") == 0 || strcmp(argument, "--help") == 0;
    });
    std::unique_ptr<QCoreApplication> application;
    if (needsWindow && hasDisplay()) {
        application = std::make_unique<QGuiApplication>(argc, argv);
    } else {
        application = std::make_unique<QCoreApplication>(argc, argv);
    }
    Operations::HostInterface host;
    Operations::startHost(&host);
    return run(QCoreApplication::arguments().mid(1));
}
