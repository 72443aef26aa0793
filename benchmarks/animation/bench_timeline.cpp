// The clock of the time line under load: 600 ticks, each with half a tick of work. A plain QTimer
// of 16 milliseconds does the same work beside it. And a picture of the strip of an animation of
// 10,000 frames, all of them selected, beside that of 10.

#include "support/bench.h"

#include "animation/frameticks.h"
#include "animation/timeline/timeline.h"
#include "animation/timeline/timelinecells.h"
#include "animation/timeline/timelinewidget.h"

#include <QApplication>
#include <QEventLoop>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numeric>
#include <string>

using namespace Zorv;

namespace {

constexpr int TickCount = 600;
constexpr double TicksPerSecond = 60;
constexpr double RateLimit = 0.001;

class Frames : public TimeLine
{
public:
    QString name() const override { return QStringLiteral("Frames"); }
    bool markerAtTick(unsigned int tick, Marker& marker) const override
    {
        marker = {QColor(160, 140, 40), 5};
        return tick % 5 == 0;
    }
};

/// Keeps the processor busy for half a tick.
void work()
{
    QElapsedTimer timer;
    timer.start();
    while (timer.nsecsElapsed() < 1e9 / TicksPerSecond / 2) {
    }
}

/// When ticks came, in seconds, from the first to the last of them.
struct Run
{
    double duration() const { return double(last - first) / 1e9; }
    double rate() const { return TickCount / duration(); }
    double offRate() const { return std::abs(rate() - TicksPerSecond) / TicksPerSecond; }

    void tick()
    {
        const qint64 now = clock.nsecsElapsed();
        first = count == 0 ? now : first;
        last = now;
        // By how much the tick is away from its place in an even row.
        const double place = double(now - first) / 1e9 - count / TicksPerSecond;
        worst = std::max(worst, std::abs(place) * 1000);
        ++count;
    }

    QElapsedTimer clock;
    qint64 first = 0;
    qint64 last = 0;
    int count = 0;
    int skipped = 0;
    double worst = 0;  // milliseconds
};

Run timeLineRun()
{
    TimeLineWidget widget;
    Frames frames;
    widget.addTimeLine(&frames);
    widget.resize(900, widget.sizeHint().height());
    widget.show();
    QEventLoop loop;
    Run run;
    run.clock.start();
    unsigned int expected = 0;
    QObject::connect(&widget, &TimeLineWidget::tickChanged, &loop, [&](unsigned int tick) {
        run.skipped += std::abs(int(tick) - int(expected));
        expected = tick + 1;
        // The first is told by play() itself, before the clock has run.
        if (tick > 0) {
            run.tick();
        }
        work();
        if (run.count > TickCount) {
            widget.stop();
            loop.quit();
        }
    });
    widget.play();
    loop.exec();
    return run;
}

Run plainTimerRun()
{
    QTimer timer;
    QEventLoop loop;
    Run run;
    run.clock.start();
    QObject::connect(&timer, &QTimer::timeout, &loop, [&] {
        run.tick();
        work();
        if (run.count > TickCount) {
            loop.quit();
        }
    });
    timer.start(16);
    loop.exec();
    return run;
}

/// The row of an animation, which can be edited.
class Cells : public TimeLine, public TimeLineCells
{
public:
    explicit Cells(int count) : m_ticks(QVector<int>(count, 3), -1) {}
    QString name() const override { return QStringLiteral("Cells"); }
    bool markerAtTick(unsigned int tick, Marker& marker) const override
    {
        return m_ticks.markerAt(tick, marker);
    }
    TimeLineCells* cells() override { return this; }
    int count() const override { return m_ticks.frameCount(); }
    Cell at(int index) const override
    {
        return {unsigned(m_ticks.firstTick(index)), m_ticks.delay(index)};
    }
    int indexAt(unsigned int tick) const override
    {
        return tick < unsigned(m_ticks.total()) ? m_ticks.frameAt(tick) : -1;
    }
    bool isEditable() const override { return true; }
    bool setLengths(const QVector<int>&, const QVector<int>&) override { return false; }
    bool move(const QVector<int>&, int) override { return false; }

private:
    FrameTicks m_ticks;
};

/// Milliseconds for a picture of 30 ticks, which both have.
double paintingTime(int count)
{
    TimeLineWidget widget;
    Cells cells(count);
    widget.addTimeLine(&cells);
    widget.resize(125 + 30 * 6, widget.sizeHint().height());
    QVector<int> all(count);
    std::iota(all.begin(), all.end(), 0);
    widget.setSelectedCells(all);
    widget.grab();
    double best = 1e9;
    for (int i = 0; i < 200; ++i) {
        QElapsedTimer timer;
        timer.start();
        widget.grab();
        best = std::min(best, double(timer.nsecsElapsed()) / 1e6);
    }
    return best;
}

void print(const std::string& name, const Run& run)
{
    Bench::figure((name + ": mean rate").c_str(), run.rate(), "a second");
    Bench::figure((name + ": away from 60 a second").c_str(), run.offRate() * 100, "%");
    Bench::figure((name + ": worst distance from an even row").c_str(), run.worst, "ms");
}

}  // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const Run own = timeLineRun();
    const Run peer = plainTimerRun();
    print("time line", own);
    Bench::figure("time line: skipped ticks", own.skipped, "ticks");
    print("QTimer of 16 ms", peer);
    Bench::ratio("time line: away from 60 a second / 0.1 %", own.offRate(), RateLimit, 1);
    Bench::ratio("away from 60 a second, time line / QTimer of 16 ms", own.offRate(),
                 peer.offRate());
    Bench::ratio("painting the strip, 10,000 frames / 10 frames", paintingTime(10000),
                 paintingTime(10));
    return 0;
}
