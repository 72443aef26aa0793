// Finding a text in a game of 20,000 files of 8 KB, all of them in memory, against grep over the
// same files. And how long it takes until the first place is handed over, of finding all.

#include "operations/find/bytefilter.h"
#include "operations/find/codefiles.h"
#include "operations/find/filesearch.h"
#include "operations/find/findpattern.h"
#include "operations/find/gametexts.h"
#include "operations/hostinterface.h"
#include "support/bench.h"
#include "support/folders.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>

using namespace Operations;

namespace {

constexpr int Rounds = 5;
constexpr int Files = 20000;
constexpr int FileSize = 8 * 1024;
constexpr int FoundInEach = 100;  // one of so many files has the text

void makeGame(const QString& folder)
{
    const QByteArray lines = "animation 200 \"Light punch\"\r\nbody -16,-88, 16,0\r\n"
                             "attack 10,-80, 40,-60\r\nframe 200,0  offset 2,0  delay 3  loop\r\n";
    const QByteArray text = lines.repeated(FileSize / lines.size() + 1).left(FileSize);
    for (int i = 0; i < Files; ++i) {
        QByteArray content = text;
        if (i % FoundInEach == 0) {
            content.replace(FileSize / 2, 15, "Harpoon uppercut");
        }
        writeFile(QStringLiteral("%1/characters/c%2/a%3.anim").arg(folder).arg(i / 40).arg(i % 40),
                  content);
    }
}

void grep(const QString& folder, const QStringList& options, const QString& text)
{
    QProcess process;
    process.start(QStringLiteral("grep"),
                  options + QStringList{QStringLiteral("-rn"), text, folder});
    process.waitForFinished(-1);
    process.readAll();
}

int find(const QString& folder, const QString& text, int options)
{
    int count = 0;
    searchFiles(codeFiles(folder), FindPattern(text, options),
                [&count](const FileHits& found) { count += found.hits.size(); });
    return count;
}

void compare(const char* name, const QString& folder, const char* text, int options,
             const QStringList& grepOptions, double limit)
{
    const QString wanted = QString::fromUtf8(text);
    const int count = find(folder, wanted, options);
    if (count != Files / FoundInEach) {
        std::printf("%s: found %d\n", name, count);
    }
    Bench::ratio(name,
                 Bench::pairedRatio(
                     Rounds, [&] { find(folder, wanted, options); },
                     [&] { grep(folder, grepOptions, wanted); }),
                 1, limit);
}

GameTexts::Work makeWork()
{
    const FindPattern pattern(QStringLiteral("Harpoon"));
    const ByteFilter filter(pattern);
    return [pattern, filter](const GameText& text,
                             const StopFlag& isStopped) -> std::shared_ptr<const void> {
        const FileHits hits = searchFile(text.path, pattern, filter, 1000, isStopped);
        return hits.hits.isEmpty() ? nullptr : std::make_shared<const FileHits>(hits);
    };
}

void measureFirst(const QString& folder)
{
    std::vector<double> first;
    const double all = Bench::median(Rounds, [&] {
        GameTexts texts;
        texts.setGame(folder);
        QEventLoop loop;
        QElapsedTimer clock;
        clock.start();
        bool isFirst = true;
        QObject::connect(&texts, &GameTexts::found, [&] {
            if (std::exchange(isFirst, false)) {
                first.push_back(double(clock.nsecsElapsed()) / 1e6);
            }
        });
        QObject::connect(&texts, &GameTexts::stateChanged, &loop, [&] {
            if (texts.isDone()) {
                loop.quit();
            }
        });
        texts.start(makeWork, AllKinds);
        loop.exec();
    });
    std::sort(first.begin(), first.end());
    Bench::ratio("the first place in the window / all of them", first[first.size() / 2], all);
}

}  // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    HostInterface host;
    startHost(&host);
    const QTemporaryDir game;
    makeGame(game.path());
    const QString fixed = QStringLiteral("-F");
    const int matchCase = FindPattern::MatchCase;
    compare("20,000 files: finding a text / grep -rF", game.path(), "Harpoon", matchCase, {fixed},
            3);
    compare("the same in any case / grep -rFi", game.path(), "harpoon", 0,
            {fixed, QStringLiteral("-i")}, 3);
    compare("an expression / grep -rE", game.path(), "Harp.*t", matchCase | FindPattern::Expression,
            {QStringLiteral("-E")}, 0);
    measureFirst(game.path());
    return 0;
}
