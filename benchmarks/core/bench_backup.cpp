// A backup of all open projects, and their move to a new place, beside `cp -r` of
// the same files: once many small files, once a few large ones.

#include "support/bench.h"
#include "support/testproject.h"

#include <QDir>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>

#include <memory>
#include <vector>

#include <unistd.h>

using namespace Zorv;

namespace {

const int Rounds = 7;

/// Projects with some code files that are open, and files that are only named.
struct Game
{
    Game(int projects, int filesOfProject, int bytes) : count(projects)
    {
        for (int i = 0; i < count; ++i) {
            QString names;
            for (int k = 0; k < filesOfProject; ++k) {
                const QString name = QStringLiteral("data/part%1.bin").arg(k);
                names += QStringLiteral("2 ") + name + QLatin1Char('\n');
                writeFile(dir.path() + folder(i) + name, QByteArray(bytes, char('a' + k % 26)));
            }
            writeFile(dir.path() + folder(i) + "main.code", names.toUtf8());
            mains.append(names);
        }
        open();
    }

    static QString folder(int i) { return QStringLiteral("/game/chars/fighter%1/").arg(i); }

    /// The game with all projects open, as at first.
    void open()
    {
        parent.reset();
        parent = std::make_unique<TestParent>(dir.path() + QLatin1String("/game"));
        for (int i = 0; i < count; ++i) {
            auto* project =
                parent->open(folder(i).mid(6) + QLatin1String("main.code"), mains.at(i));
            const QString code = QLatin1String("data/part0.bin");
            auto* file = new TestFile(project->absolutePath() + code);
            file->fromFile(*parent->archive(), file->name, false);
            project->addFile(file, FileID::Sprites);
        }
    }

    QTemporaryDir dir;
    int count;
    QStringList mains;
    std::unique_ptr<TestParent> parent;
};

void remove(const QString& folder)
{
    QDir(folder).removeRecursively();
    ::sync();
}

double copyTime(const Game& game)
{
    const QString target = game.dir.filePath(QStringLiteral("copy"));
    remove(target);
    return Bench::once([&] {
        QProcess::execute(
            QStringLiteral("cp"),
            {QStringLiteral("-r"), game.dir.filePath(QStringLiteral("game/chars")), target});
    });
}

double backupTime(const Game& game)
{
    remove(game.dir.filePath(QStringLiteral("game/backup")));
    return Bench::once([&] { game.parent->backup(QStringLiteral("bench")); });
}

double saveAsTime(Game& game)
{
    const QString target = game.dir.filePath(QStringLiteral("new/"));
    remove(target);
    game.open();
    return Bench::once([&] { game.parent->saveAs(target); });
}

double median(std::vector<double> figures)
{
    std::sort(figures.begin(), figures.end());
    return figures[figures.size() / 2];
}

double medianRatio(const std::vector<double>& figures, const std::vector<double>& peers)
{
    std::vector<double> ratios;
    for (std::size_t i = 0; i < figures.size(); ++i) {
        ratios.push_back(figures[i] / peers[i]);
    }
    return median(ratios);
}

// The disk has good and bad moments: each round has all three, and a ratio of its own.
void measure(const char* what, int projects, int files, int bytes)
{
    Game game(projects, files, bytes);
    std::vector<double> copying, backup, saving;
    for (int i = 0; i < Rounds; ++i) {
        copying.push_back(copyTime(game));
        backup.push_back(backupTime(game));
        saving.push_back(saveAsTime(game));
        game.open();
    }
    std::printf("%s\n", what);
    Bench::figure("  cp -r", median(copying), "ms");
    Bench::figure("  backup", median(backup), "ms");
    Bench::figure("  save as", median(saving), "ms");
    Bench::ratio("  backup to cp -r", medianRatio(backup, copying), 1, 2);
    Bench::ratio("  save as to cp -r", medianRatio(saving, copying), 1, 2);
}

}  // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    measure("2,000 files of 8 KB in 50 projects", 50, 40, 8 * 1024);
    measure("200 files of 200 KB in 20 projects", 20, 10, 200 * 1024);
    measure("24 files of 8 MB in 4 projects", 4, 6, 8 * 1024 * 1024);
    return 0;
}
