// The editor of animations on long animations, from an act of the person to the painted window:
// what is measured is the same on a short one, or without the link to the text.

#include "animation/timeline/timelinewidget.h"
#include "graphics/renderwidget.h"
#include "support/bench.h"
#include "support/planneddialogs.h"
#include "support/reelstudio.h"

#include <QAction>
#include <QApplication>
#include <QDeadlineTimer>

#include <cstdio>
#include <ctime>

using namespace Zorv;

namespace {

constexpr int ManyFrames = 1000;
constexpr int FewFrames = 10;
constexpr int Boxes = 10;
constexpr int Steps = 60;
constexpr int Rounds = 5;
constexpr int PlayedTicks = 180;
constexpr int AllFrames = 10000;
constexpr double StepLimit = 1.3;
constexpr double GrowthLimit = 2.2;
constexpr double LinkLimit = 2;

QString text(int frames, int boxes, int ticks)
{
    QString result = QStringLiteral("<long>\n");
    for (int frame = 0; frame < frames; ++frame) {
        for (int box = 0; box < boxes; ++box) {
            result += QStringLiteral("b %1 %2 30 20\n").arg(-150 + box * 31).arg(-60 + frame % 7);
        }
        result += QStringLiteral("+ 0 0 %1 %2 %3 0\n").arg(frame % 5).arg(frame % 3).arg(ticks);
        ticks = 4;
    }
    return result;
}

/// Milliseconds that the processor has worked for this program: what else the machine does is none
/// of it.
double processorTime()
{
    return double(std::clock()) * 1000 / CLOCKS_PER_SEC;
}

class Studio
{
public:
    Studio() : m(text(FewFrames, Boxes, 4))
    {
        action("view_collision_box")->trigger();
        QTest::qWait(500);
    }

    void open(const QString& newText)
    {
        m.close();
        m.open(newText);
        QTest::qWait(200);
    }

    QAction* action(const char* name) { return m.host.actions.value(QLatin1String(name)); }

    /// Milliseconds from an act until the window has been painted.
    template <class Act>
    double untilPainted(const Act& act)
    {
        QCoreApplication::processEvents();
        bool isPainted = false;
        const auto connection =
            QObject::connect(stage(), &QOpenGLWidget::frameSwapped, [&] { isPainted = true; });
        const double time = Bench::once([&] {
            act();
            const QDeadlineTimer deadline(20000);
            while (!isPainted && !deadline.hasExpired()) {
                QCoreApplication::processEvents();
            }
        });
        if (!isPainted) {
            std::puts("nothing was painted");
        }
        QObject::disconnect(connection);
        return time;
    }

    double stepTime()
    {
        return Bench::medianOf(Steps, [this] {
            return untilPainted([this] { action("anim_next_frame")->trigger(); });
        });
    }

    /// What the processor works for a tick, in milliseconds.
    double playTime(int* skipped)
    {
        unsigned last = 0;
        int ticks = 0;
        TimeLineWidget* const clock = m.graphics->timeLine();
        const auto connection = QObject::connect(clock, &TimeLineWidget::tickChanged, [&] {
            // Behind the last tick comes the first one.
            const unsigned tick = clock->currentTick();
            *skipped += tick > last + 1 ? int(tick - last) - 1 : 0;
            last = tick;
            ++ticks;
        });
        action("anim_play")->trigger();
        const double start = processorTime();
        while (ticks < PlayedTicks) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        const double time = (processorTime() - start) / ticks;
        action("anim_stop")->trigger();
        QObject::disconnect(connection);
        return time;
    }

    /// From a box in the middle of the row to a place beside it, and there the button is let go.
    double releaseTime()
    {
        const QPoint start = m.stage.origin() + QPoint(20, -50);
        return Bench::medianOf(Steps, [&, round = 0]() mutable {
            const QPoint way(++round % 2 ? 3 : -3, 0);
            QTest::mousePress(stage(), Qt::LeftButton, {}, start);
            m.stage.mouseMoved(start + way, {});
            return untilPainted(
                [&] { QTest::mouseRelease(stage(), Qt::LeftButton, {}, start + way); });
        });
    }

    /// How often the frame is shown anew by an act.
    template <class Act>
    int refreshes(const Act& act)
    {
        int count = 0;
        const auto connection =
            QObject::connect(m.editor.get(), &AnimationEditor::shownChanged, [&] { ++count; });
        act();
        QTest::qWait(50);
        QObject::disconnect(connection);
        return count;
    }

    /// Whether one step of undo leads back to a text.
    bool isOneStepFrom(const QString& before)
    {
        const bool isChanged = m.document->text() != before;
        m.editor->undo();
        return isChanged && m.document->text() == before;
    }

private:
    RenderWidget* stage() { return m.graphics->renderWidget(); }

    ReelStudio m;
};

void measureSteps(Studio& studio)
{
    int skipped = 0;
    double step[2];
    double play[2];
    const double steps = Bench::medianOf(Rounds, [&] {
        for (const bool isLong : {false, true}) {
            studio.open(text(isLong ? ManyFrames : FewFrames, Boxes, 4));
            step[isLong] = studio.stepTime();
        }
        return step[1] / step[0];
    });
    const double plays = Bench::medianOf(Rounds, [&] {
        for (const bool isLong : {false, true}) {
            studio.open(text(isLong ? ManyFrames : FewFrames, Boxes, 4));
            play[isLong] = studio.playTime(&skipped);
        }
        return play[1] / play[0];
    });
    Bench::figure("to the next of 1,000 frames with 10 boxes, painted", step[1], "ms");
    Bench::ratio("to the next frame, painted: 1,000 frames / 10", steps, 1, StepLimit);
    Bench::ratio("a tick of play: 1,000 frames / 10", plays, 1, StepLimit);
    Bench::figure("ticks that play has skipped", skipped, "ticks");
}

/// One act on all frames of an animation.
void measureGrowth(Studio& studio, const char* action, const char* name)
{
    double times[2];
    bool isOneStep = true;
    int refreshes = 0;
    const double growth = Bench::medianOf(Rounds, [&] {
        for (const int times2 : {1, 2}) {
            const QString before = text(AllFrames * times2, 1, 9);
            studio.open(before);
            refreshes = studio.refreshes([&] {
                const double start = processorTime();
                studio.untilPainted([&] { studio.action(action)->trigger(); });
                times[times2 - 1] = processorTime() - start;
            });
            isOneStep = isOneStep && studio.isOneStepFrom(before);
        }
        return times[1] / times[0];
    });
    Bench::figure(name, times[0], "ms");
    Bench::ratio("  20,000 frames / 10,000", growth, 1, GrowthLimit);
    Bench::figure("  times that the frame is shown anew", refreshes, "");
    std::printf("%s\n", isOneStep ? "  one step of undo" : "  not one step of undo");
}

void measureRelease(Studio& studio)
{
    studio.open(text(ManyFrames, Boxes, 4));
    QAction* link = studio.action("anim_editcode");
    const double ratio = Bench::medianOf(Rounds, [&] {
        link->isChecked() ? void() : link->trigger();
        const double linked = studio.releaseTime();
        link->trigger();
        return linked / studio.releaseTime();
    });
    Bench::ratio("a dragged box is let go, painted: linked to the text / not", ratio, 1, LinkLimit);
}

}  // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    const QApplication application(argc, argv);
    PlannedDialogs dialogs;
    for (int i = 0; i < 100; ++i) {
        dialogs.buttonAnswers.append(Dialogs::Yes);
    }
    Studio studio;
    measureSteps(studio);
    measureGrowth(studio, "anim_frameall_time", "same time for all of 10,000 frames");
    measureGrowth(studio, "anim_box_allinst", "boxes of a frame in all its 10,000 instances");
    measureRelease(studio);
    return 0;
}
