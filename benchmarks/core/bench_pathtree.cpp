// A game folder of 500 projects and 20,000 files: opening its tree, one new file
// on disk, one keystroke, one more project.

#include "support/bench.h"
#include "support/testproject.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTextCursor>
#include <QTimer>

#include <memory>

using namespace Zorv;

namespace {

const int Projects = 500;

/// A folder of 500 projects with some files each, and a folder of stages.
struct Game
{
    explicit Game(int filesOfProject) : perProject(filesOfProject)
    {
        for (int i = 0; i < Projects; ++i) {
            for (int k = 1; k < perProject; ++k) {
                writeFile(folder(i) + fileName(k));
            }
            writeFile(folder(i) + QStringLiteral("main.code"));
        }
        for (int i = 0; i < 40; ++i) {
            writeFile(stage(i));
        }
        parent = std::make_unique<TestParent>(dir.path());
    }

    QString folder(int i) const
    {
        return dir.filePath(QStringLiteral("chars/fighter%1/").arg(i, 3, 10, QLatin1Char('0')));
    }
    QString stage(int i) const { return dir.filePath(QStringLiteral("stages/s%1.stage").arg(i)); }
    static QString fileName(int k) { return QStringLiteral("part%1.code").arg(k); }

    TestProject* openProject(int i)
    {
        QString files;
        for (int k = 1; k < perProject; ++k) {
            files += QStringLiteral("32 ") + fileName(k) + QLatin1Char('\n');
        }
        const QString main = folder(i) + QStringLiteral("main.code");
        return parent->open(QDir(dir.path()).relativeFilePath(main), files);
    }

    void open()
    {
        parent->addPath(QStringLiteral("chars"), ParentProject::ListFolders, {});
        parent->addPath(QStringLiteral("stages"), ParentProject::ListFiles,
                        {QStringLiteral("*.stage")});
        for (int i = 0; i < Projects; ++i) {
            last = openProject(i);
        }
    }

    QTemporaryDir dir;
    int perProject;
    std::unique_ptr<TestParent> parent;
    TestProject* last = nullptr;
};

/// From the signal of the disk to the last announced row, without the waiting.
double newFile(Game& game)
{
    int number = 1000;
    const auto change = [&game, &number] {
        writeFile(game.stage(number++));
        QEventLoop loop;
        QObject::connect(game.parent.get(), &QAbstractItemModel::rowsInserted, &loop,
                         &QEventLoop::quit);
        QTimer::singleShot(2000, &loop, &QEventLoop::quit);
        loop.exec();
    };
    return Bench::median(21, change);
}

double keystroke(Game& game)
{
    auto* main = static_cast<CodeDocument*>(game.last->file(FileID::MainCode));
    QTextCursor cursor(main);
    return Bench::median(21, [&cursor] { cursor.insertText(QStringLiteral("#")); });
}

double reopen(Game& game)
{
    return Bench::median(21, [&game] {
        game.parent->close(game.last);
        game.last = game.openProject(Projects - 1);
    });
}

}  // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    Game large(40);
    Game small(4);
    Bench::figure("500 projects, 20,000 files: opening", Bench::once([&large] { large.open(); }),
                  "ms");
    Bench::figure("500 projects, 2,000 files: opening", Bench::once([&small] { small.open(); }),
                  "ms");
    const double largeNew = newFile(large);
    const double smallNew = newFile(small);
    Bench::figure("20,000 files: one new file on disk", largeNew, "ms");
    Bench::ratio("one new file on disk, 20,000 to 2,000 files", largeNew, smallNew, 1.5);
    Bench::figure("20,000 files: one keystroke in a main document", keystroke(large), "ms");
    Bench::figure("20,000 files: one project closed and opened", reopen(large), "ms");
    return 0;
}
