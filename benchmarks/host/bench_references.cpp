// The uses of one animation in a game of 500 projects, from an index that is kept, against reading
// all of them.

#include "operations/hostinterface.h"
#include "operations/references/referenceindex.h"
#include "support/bench.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

using Operations::ReferenceIndex;
using Operations::Subject;

namespace {

constexpr int Rounds = 5;
constexpr int Projects = 500;
constexpr int Moves = 60;

void write(const QString& path, const QByteArray& text)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
        std::printf("cannot write %s\n", qPrintable(path));
    }
}

/// Each project has a file of moves and one of animations, of some 60 KB, and all share one.
void makeGame(const QString& folder)
{
    QByteArray moves, animations;
    for (int i = 0; i < Moves; ++i) {
        const QByteArray number = QByteArray::number(i);
        moves += "[move m" + number + "]\r\nanimation = " + number + "\r\ncancels = m0\r\n";
        animations += "animation " + number + "\r\nbody -9,-90, 9,0\r\n" +
                      QByteArray("frame 0,0  delay 4  offset 2,0\r\n").repeated(30) +
                      "frame 0,1  loop\r\n";
    }
    for (int i = 0; i < Projects; ++i) {
        const QString place = QStringLiteral("%1/characters/c%2/").arg(folder).arg(i);
        write(place + QStringLiteral("c.character"),
              "[files]\r\ncode = \"c.code\"\r\ncode = \"../../shared/all.code\"\r\n"
              "animations = \"c.anim\"\r\n");
        write(place + QStringLiteral("c.code"), moves);
        write(place + QStringLiteral("c.anim"), animations);
    }
    write(folder + QStringLiteral("/shared/all.code"), "[move throw]\r\nanimation = 7\r\n");
}

int find(ReferenceIndex* index, const QString& folder, const QString& name)
{
    QString error;
    index->update();
    const QString mainFile = folder + QStringLiteral("/characters/c250/c.character");
    QVector<Operations::NameUse> uses =
        index->usesOf(Subject::fromText(mainFile, Family::NameKind::Animation, name, &error));
    index->addTexts(&uses);
    return uses.size();
}

}  // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    Operations::HostInterface host;
    Operations::startHost(&host);
    const QTemporaryDir game;
    makeGame(game.path());
    std::unique_ptr<ReferenceIndex> index;
    const double whole = Bench::once([&] {
        index = std::make_unique<ReferenceIndex>(game.path());
        index->update();
    });
    const auto find = [&](const char* name) {
        return Bench::median(Rounds,
                             [&] { ::find(index.get(), game.path(), QLatin1String(name)); });
    };
    Bench::ratio("500 projects: uses of an animation of one / reading all", find("30"), whole, 0.1);
    Bench::ratio("500 projects: uses of an animation of all / reading all", find("7"), whole, 0.1);
    return 0;
}
