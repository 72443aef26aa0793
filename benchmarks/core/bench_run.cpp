// What an engine prints, as it comes through a run, beside a plain pipe to `cat`: how
// long a gigabyte takes, how late a timer of the window comes meanwhile, and how much
// memory it needs.

#include "core/enginemodel.h"
#include "support/bench.h"
#include "support/testproject.h"

#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <sys/resource.h>

using namespace Zorv;

namespace {

const int Rounds = 5;
const char flood[] = "head -c 1000000000 /dev/zero";

/// No engine but that of the game.
class NoEngines : public EngineModel
{
public:
    char commentChar() const override { return '#'; }
    QString dataPath() const override { return {}; }
    QString identifier() const override { return {}; }
    QString executableName() const override { return QStringLiteral("engine"); }
    QString displayName() const override { return {}; }
    int engineCount() const override { return 0; }
    EngineInfo engine(unsigned) const override { return {}; }
    QModelIndex index(int, int, const QModelIndex&) const override { return {}; }
    QModelIndex parent(const QModelIndex&) const override { return {}; }
    int rowCount(const QModelIndex&) const override { return 0; }
    int columnCount(const QModelIndex&) const override { return 0; }
    QVariant data(const QModelIndex&, int) const override { return {}; }
};

class RunTree : public TestParent
{
public:
    using TestParent::TestParent;
    QString runParameters(int) const override { return QStringLiteral("%0"); }
};

double peakMegabytes()
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_maxrss) / 1024;
}

double pipeTime()
{
    return Bench::once([] {
        QProcess::execute(
            QStringLiteral("/bin/sh"),
            {QStringLiteral("-c"), QLatin1String(flood) + QLatin1String(" | cat >/dev/null")});
    });
}

}  // namespace

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    QTemporaryDir dir;
    const QString engine = dir.filePath(QStringLiteral("engine"));
    writeFile(engine, QByteArray("#!/bin/sh\nexec ") + flood + '\n');
    QFile::setPermissions(engine, QFile::ReadOwner | QFile::ExeOwner);
    NoEngines engines;
    RunTree tree(dir.path());
    tree.engines = &engines;
    tree.open(QStringLiteral("hero.code"), {});

    qint64 bytes = 0;
    QObject::connect(&tree, &ParentProject::engineOutput, &tree,
                     [&bytes](const QByteArray& piece) { bytes += piece.size(); });
    QElapsedTimer sinceTick;
    qint64 longest = 0;
    QTimer tick;
    QObject::connect(&tick, &QTimer::timeout, &tick,
                     [&] { longest = qMax(longest, sinceTick.restart()); });
    tick.start(1);
    const double before = peakMegabytes();
    const double run = Bench::median(Rounds, [&] {
        sinceTick.start();
        tree.run();
    });
    Bench::figure("printed", double(bytes) / Rounds / 1e6, "MB");
    Bench::figure("longest time without an event", double(longest), "ms");
    Bench::figure("memory that a run adds", peakMegabytes() - before, "MB");
    Bench::ratio("1 GB of output: run to a pipe", run, Bench::median(Rounds, pipeTime));
    return 0;
}
