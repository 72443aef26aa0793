// Checking and copying aside a game of 5,000 small projects: the time that passes against that of
// the processor, and against a game of 500, project by project. And what an edit costs the check of
// a game of 20,000 files, against checking all of it.

#include "family/check/check.h"
#include "family/check/gamecheck.h"
#include "family/project/familyparentproject.h"
#include "operations/backups.h"
#include "operations/hostinterface.h"
#include "support/bench.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <ctime>

using namespace Family;
using namespace Operations;

namespace {

constexpr int Rounds = 3;
constexpr int Many = 5000;
constexpr int Few = 500;
constexpr int FilesOfProject = 40;
constexpr int Sharing = 5;

void write(const QString& path, const QByteArray& text)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
        std::printf("cannot write %s\n", qPrintable(path));
    }
}

void makeGame(const QString& folder, int projects)
{
    for (int i = 0; i < projects; ++i) {
        const QString place = QStringLiteral("%1/characters/c%2/").arg(folder).arg(i);
        write(place + QStringLiteral("c.character"),
              "[info]\r\nname = \"One of many\"\r\n[files]\r\ncode = \"c.code\"\r\n"
              "[constants]\r\nlife = 1000\r\n");
        write(place + QStringLiteral("c.code"), "[move jab]\r\nanimation = 0\r\n");
    }
}

/// A game of 500 projects and 20,000 files, of which a few projects share one more.
void makeLargeGame(const QString& folder)
{
    const QByteArray animations =
        QByteArray("animation %\r\nbody -9,-90, 9,0\r\nattack 9,-60, 40,-40\r\n") +
        QByteArray("frame 0,0  delay 4\r\n").repeated(20) + "frame 0,1  loop\r\n";
    write(folder + QStringLiteral("/shared/common.code"), "[move common]\r\nanimation = 1\r\n");
    for (int i = 0; i < Few; ++i) {
        const QString place = QStringLiteral("%1/characters/c%2/").arg(folder).arg(i);
        QByteArray main =
            "[info]\r\nname = \"One of many\"\r\n[constants]\r\nlife = 1000\r\n[files]\r\n";
        if (i < Sharing) {
            main += "code = \"../../shared/common.code\"\r\n";
        }
        for (int n = 1; n < FilesOfProject; ++n) {
            const QByteArray number = QByteArray::number(n);
            main += "animations = \"a" + number + ".anim\"\r\n";
            write(place + QStringLiteral("a%1.anim").arg(n),
                  QByteArray(animations).replace('%', number));
        }
        write(place + QStringLiteral("c.character"), main);
    }
}

/// Milliseconds of one call, by the clock and of the processor.
struct Times
{
    template <class Function>
    explicit Times(Function function)
    {
        const std::clock_t start = std::clock();
        passed = Bench::once(function);
        worked = 1000.0 * double(std::clock() - start) / CLOCKS_PER_SEC;
    }

    double passed;
    double worked;
};

void check(const QString& folder)
{
    QString error;
    checkGame(folder, &error);
}

void backUp(const QString& folder)
{
    FamilyParentProject game(folder);
    QStringList errors;
    const QList<FamilyProject*> projects = openAllProjects(&game, &errors);
    makeBackup(&game, QStringLiteral("Bench"));
    closeProjects(projects);
}

template <class Function>
void compare(const char* waiting, const char* growing, const QTemporaryDir& many,
             const QTemporaryDir& few, Function function)
{
    const auto workOf = [&function](const QTemporaryDir& game) {
        return Bench::medianOf(Rounds,
                               [&] { return Times([&] { function(game.path()); }).worked; });
    };
    const Times times([&] { function(many.path()); });
    Bench::ratio(waiting, times.passed, times.worked, 1.5);
    Bench::ratio(growing, workOf(many) / Many, workOf(few) / Few, 1.5);
}

void finish(GameCheck* check)
{
    while (!check->isDone()) {
        check->check();
    }
    check->takeNews();
}

/// An edit that brings a problem, in a text that is not saved.
double timeOfEdit(GameCheck* check, const QString& path, int round)
{
    SourceText source;
    source.kind = fileKindOf(path);
    source.text = QStringLiteral("nonsense\n").repeated(round + 1);
    return Bench::once([&] {
        check->setText(path, std::make_shared<const SourceText>(source));
        finish(check);
    });
}

void checkEdits()
{
    const QTemporaryDir game;
    makeLargeGame(game.path());
    GameCheck check(game.path());
    const double whole = Bench::once([&] {
        check.look();
        finish(&check);
    });
    int round = 0;
    const auto edit = [&](const char* file) {
        return Bench::medianOf(Rounds, [&] {
            return timeOfEdit(&check, check.folder() + QLatin1Char('/') + QLatin1String(file),
                              ++round);
        });
    };
    Bench::ratio("20,000 files: checking after an edit in one project / all",
                 edit("characters/c250/a7.anim"), whole, 0.05);
    Bench::ratio("20,000 files: checking after an edit that five share / all",
                 edit("shared/common.code"), whole, 0.05);
    Bench::ratio("20,000 files: looking at the disk / checking all",
                 Bench::median(Rounds, [&] { check.look(); }), whole);
}

}  // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    HostInterface host;
    startHost(&host);
    const QTemporaryDir many;
    const QTemporaryDir few;
    makeGame(many.path(), Many);
    makeGame(few.path(), Few);
    compare("checking 5,000 projects: time passed / of the processor",
            "checking a project of 5,000 / of 500", many, few, check);
    compare("backing up 5,000 projects: time passed / of the processor",
            "backing up a project of 5,000 / of 500", many, few, backUp);
    checkEdits();
    return 0;
}
