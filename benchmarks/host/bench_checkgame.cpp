// Checking and copying aside a game of 5,000 small projects: the time that passes against that of
// the processor, and against a game of 500, project by project.

#include "family/check/check.h"
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
    return 0;
}
