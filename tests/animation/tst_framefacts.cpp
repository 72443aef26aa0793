#include "animation/framefacts.h"

#include "animation/frameticks.h"
#include "animation/playstep.h"
#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/nodes/animationnode.h"

#include <QRandomGenerator>
#include <QtTest>

#include <limits>

using namespace Zorv;

namespace {

constexpr int Most = std::numeric_limits<int>::max();
constexpr int Far = 400;  // ticks, more than any animation here has but an endless one

QVector<FrameFacts::Frame> randomFrames(QRandomGenerator& random)
{
    QVector<FrameFacts::Frame> frames(random.bounded(9));
    for (FrameFacts::Frame& frame : frames) {
        frame.ticks = random.bounded(12) == 0 ? -1 - random.bounded(3) : random.bounded(5);
        frame.isAttack = random.bounded(3) == 0;
        frame.reach = frame.isAttack ? random.bounded(50) : 0;
    }
    return frames;
}

/// The frame at each tick, `Far` of them if it never ends.
QVector<int> shownFrames(const QVector<FrameFacts::Frame>& frames)
{
    QVector<int> shown;
    for (int i = 0; i < frames.size() && shown.size() < Far; ++i) {
        const int length = frames.at(i).ticks;
        shown += QVector<int>(length < 0 ? Far - shown.size() : length, i);
    }
    return shown;
}

/// What is seen, a frame for each turn of the clock, up to where it stops.
QVector<int> played(const FrameTicks& ticks, const PlayOptions& options, unsigned tick, int turns)
{
    QVector<int> frames;
    while (frames.size() < turns) {
        const PlayStep step = playStep(ticks, options, tick);
        if (step.act == PlayStep::Stop) {
            break;
        }
        if (step.act == PlayStep::Jump) {
            tick = step.target;
        }
        frames.append(ticks.frameAt(tick));
        if (step.act == PlayStep::ShowAndStop) {
            break;
        }
        ++tick;
    }
    return frames;
}

/// The same by a walk from frame to frame, as the clock goes.
QVector<int> walked(const QVector<int>& delays, int loop, bool isRepeated, int turns)
{
    QVector<int> frames;
    int frame = 0;
    int since = 0;        // ticks spent in it
    int passed = 0;       // ways back to the loop point without a tick
    bool isFirst = true;  // nothing was seen yet of this pass
    while (frames.size() < turns && frame < delays.size()) {
        const int delay = delays.at(frame);
        if (delay < 0) {
            const bool isOver = !isRepeated || isFirst;
            frames += QVector<int>(isOver ? 1 : 30, frame);
            if (isOver) {
                break;
            }
            frame = 0;
            isFirst = true;
        } else if (since < delay) {
            frames.append(frame);
            ++since;
            passed = 0;
            isFirst = false;
        } else if (frame + 1 < delays.size()) {
            since = 0;
            ++frame;
        } else {
            since = 0;
            frame = qMax(loop, 0);
            if (++passed > 1) {
                const int last = frames.isEmpty() ? -1 : frames.last();
                if (!isRepeated || last < 0) {
                    break;
                }
                frames += QVector<int>(30, last);
                frame = passed = 0;
            }
        }
    }
    return frames.mid(0, turns);
}

}  // namespace

class TestFrameFacts : public QObject
{
    Q_OBJECT

private slots:
    void factsAgreeWithEachTick();
    void sumsEnd();
    void textIsRead();
    void playAgreesWithAWalk();
    void rangeIsLooped();
};

void TestFrameFacts::factsAgreeWithEachTick()
{
    QRandomGenerator random(1611);
    int attacks = 0;
    for (int round = 0; round < 5000; ++round) {
        const QVector<FrameFacts::Frame> frames = randomFrames(random);
        const QVector<int> shown = shownFrames(frames);
        const auto isAttack = [&](int tick) { return frames.at(shown.at(tick)).isAttack; };
        FrameFacts model;
        int last = -1;
        for (int tick = 0; tick < shown.size(); ++tick) {
            if (isAttack(tick)) {
                model.start = model.isAttack ? model.start : tick;
                model.isAttack = true;
                ++model.active;
                model.reach = qMax(model.reach, frames.at(shown.at(tick)).reach);
                last = tick;
            }
        }
        const bool isEndless = shown.size() == Far;
        model.total = isEndless ? -1 : shown.size();
        if (model.isAttack) {
            ++attacks;
            const bool isActiveEndless = isEndless && isAttack(Far - 1);
            model.pause = last + 1 - model.start - model.active;
            model.recovery = isEndless && !isActiveEndless ? -1 : shown.size() - 1 - last;
            model.active = isActiveEndless ? -1 : model.active;
        }
        QVERIFY2(FrameFacts(frames) == model, qPrintable(QString::number(round)));
    }
    QVERIFY(attacks > 2000);
}

void TestFrameFacts::sumsEnd()
{
    const FrameFacts facts({{Most, false, 0}, {5, false, 0}, {Most, true, 3}, {Most, true, 1}});
    QCOMPARE(facts.start, Most);
    QCOMPARE(facts.active, Most);
    QCOMPARE(facts.total, Most);
}

void TestFrameFacts::textIsRead()
{
    Family::FamilyDocument document(Family::FileKind::Animations);
    document.fromString(QStringLiteral("animation 1\n"
                                       "frame 0,0 delay 4\n"
                                       "attack -20,-10, -2,3\nattack -5,0, 30,8\nbody 0,0, 99,9\n"
                                       "frame 0,1 delay 3\n"
                                       "attack 5,5, 2147483647,9\n"
                                       "frame 0,1 delay 0\n"
                                       "body -9,-9, 9,9\n"
                                       "frame 0,2 delay 11\n"
                                       "animation 2\n"
                                       "attack -20,-10, -2,3\n"
                                       "frame 0,0 delay -1\n"));
    FrameFacts first;
    first.isAttack = true;
    first.start = 4;
    first.active = 3;
    first.recovery = 11;
    first.total = 18;
    first.reach = 31;
    QVERIFY(FrameFacts(document.animations()->animation(0)) == first);
    FrameFacts second;
    second.isAttack = true;
    second.active = second.total = -1;
    QVERIFY(FrameFacts(document.animations()->animation(1)) == second);
    QVERIFY(FrameFacts(static_cast<AnimationCode*>(nullptr)) == FrameFacts());
}

void TestFrameFacts::playAgreesWithAWalk()
{
    QRandomGenerator random(1612);
    int ends = 0;
    for (int round = 0; round < 4000; ++round) {
        QVector<int> delays;
        for (const FrameFacts::Frame& frame : randomFrames(random)) {
            delays.append(frame.ticks);
        }
        const int loop = random.bounded(-1, qMax(delays.size(), 1));
        PlayOptions options;
        options.isRepeated = random.bounded(2) == 0;
        const QVector<int> model = walked(delays, loop, options.isRepeated, 200);
        const FrameTicks ticks(delays, loop);
        QVERIFY2(played(ticks, options, 0, 200) == model, qPrintable(QString::number(round)));
        ends += model.size() < 200 ? 1 : 0;
        QCOMPARE(playStart(ticks, options, 7), 7U);
    }
    QVERIFY(ends > 500);
}

void TestFrameFacts::rangeIsLooped()
{
    QRandomGenerator random(1613);
    for (int round = 0; round < 4000; ++round) {
        const QVector<FrameFacts::Frame> frames = randomFrames(random);
        QVector<int> delays;
        for (const FrameFacts::Frame& frame : frames) {
            delays.append(frame.ticks);
        }
        const FrameTicks ticks(delays, -1);
        const QVector<int> shown = shownFrames(frames);
        PlayOptions options;
        options.range =
            TickRange::between(unsigned(random.bounded(25)), unsigned(random.bounded(25)));
        const unsigned wanted = unsigned(random.bounded(30));
        const unsigned start = playStart(ticks, options, wanted);
        if (int(options.range->first) >= shown.size()) {
            QCOMPARE(start, wanted);
            QCOMPARE(played(ticks, options, start, 90), played(ticks, {}, start, 90));
            continue;
        }
        QVector<int> model;
        for (int tick = int(start); model.size() < 90; ++tick) {
            const bool isOver = tick > int(options.range->last) || tick >= shown.size();
            tick = isOver ? int(options.range->first) : tick;
            model.append(shown.at(tick));
        }
        QCOMPARE(played(ticks, options, start, 90), model);
        const bool isInside = wanted >= options.range->first && wanted <= options.range->last &&
                              int(wanted) < shown.size();
        QCOMPARE(start, isInside ? wanted : options.range->first);
    }
}

QTEST_MAIN(TestFrameFacts)
#include "tst_framefacts.moc"
