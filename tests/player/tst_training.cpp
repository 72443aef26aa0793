// What people who make characters see of a match, against what the rules tell of the same in
// another way, and a match that is turned back against one that was not.

#include "picture/loadedmatch.h"
#include "rules/movefacts.h"
#include "rules/tick.h"
#include "support/testtable.h"
#include "training/inputlog.h"
#include "training/session.h"

#include <QRandomGenerator>
#include <QtTest>

using namespace Player;
using Rules::Inputs;
using Rules::One;

namespace {

constexpr quint32 Seed = 20261122;

Inputs held(quint8 first, quint8 second = 0)
{
    Inputs inputs;
    inputs.signs[0] = first;
    inputs.signs[1] = second;
    return inputs;
}

}  // namespace

class TestTraining : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void meterAgreesWithFrames();
    void advantageAgreesWithFrames_data();
    void advantageAgreesWithFrames();
    void turnedBack();
    void recordIsReplayed();
    void replaysInTheNextMatch();
    void takesOverTheTime_data();
    void takesOverTheTime();
    void dummy_data();
    void dummy();
    void inputsHaveTheirLength();
    void matchWithoutEnd();
    void slowerClock();

private:
    LoadedMatch m_match;
};

void TestTraining::initTestCase()
{
    QString error;
    QVERIFY(m_match.load({ZORV_SAMPLES "/arena", {"maren", "maren"}, {}, false}, &error));
}

/// Moves of the floor, each alone.
void TestTraining::meterAgreesWithFrames()
{
    const Rules::FighterData& data = m_match.game.fighters[0];
    int count = 0;
    for (int i = 0; i < data.moves.size(); ++i) {
        const Rules::MoveFacts facts = Rules::factsOf(data, i);
        const Rules::Move& move = data.moves.at(i);
        if (facts.isInAir || facts.active.size() != 1 || move.velocityY < 0) {
            continue;
        }
        FrameMeter meter(m_match.game);
        Rules::State state = Rules::firstState(m_match.game);
        state.fighters[0].x = -500 * One;
        Rules::forceMove(m_match.game, 0, i, &state);
        for (int t = 0; t < facts.total; ++t) {
            meter.see(state);
            Rules::tick(m_match.game, {}, &state);
        }
        QCOMPARE(meter.numbers(0).start, facts.start);
        QCOMPARE(meter.numbers(0).active, facts.active.first().ticks);
        QCOMPARE(meter.numbers(0).recovery, facts.recovery);
        ++count;
    }
    QVERIFY(count > 10);
}

void TestTraining::advantageAgreesWithFrames_data()
{
    columns<int, bool>("button", "isGuarded");
    row("light", int(Family::MotionStep::Light), false);
    row("light, guarded", int(Family::MotionStep::Light), true);
    row("medium", int(Family::MotionStep::Medium), false);
    row("medium, guarded", int(Family::MotionStep::Medium), true);
}

void TestTraining::advantageAgreesWithFrames()
{
    const auto [button, isGuarded] = fetched<int, bool>();
    Session session(m_match.game);
    for (int t = 0; t < 24; ++t) {
        session.step(held(Inputs::Right, Inputs::Left));
    }
    session.setDummy(isGuarded ? Dummy::Guard : Dummy::Stand);
    session.step(held(quint8(button)));
    session.step(held(quint8(button)));
    const int move = session.state().fighters[0].move;
    QVERIFY(move >= 0);
    for (int t = 0; t < 70; ++t) {
        session.step({});
    }
    const Rules::MoveFacts facts = Rules::factsOf(m_match.game.fighters[0], move);
    QVERIFY(session.meter().hasAdvantage());
    QCOMPARE(session.meter().advantage(), (isGuarded ? facts.guard : facts.hit).advantage);
}

/// As far back as ten seconds, and on with the same inputs: the same states, and the same meter.
void TestTraining::turnedBack()
{
    QRandomGenerator random(Seed);
    Session session(m_match.game);
    QVector<Inputs> inputs;
    QVector<quint64> hashes;
    for (int t = 0; t < 1000; ++t) {
        inputs.append(held(quint8(random.bounded(256)), quint8(random.bounded(256))));
        session.step(inputs.last());
        hashes.append(Rules::hashOf(session.state()));
    }
    const auto cells = session.meter().cells(0);
    int back = 0;
    while (session.stepBack()) {
        ++back;
        QCOMPARE(Rules::hashOf(session.state()), hashes.at(999 - back));
    }
    QCOMPARE(back, StateRing::MostStates);
    for (int t = 1000 - back; t < 1000; ++t) {
        session.step(inputs.at(t));
        QCOMPARE(Rules::hashOf(session.state()), hashes.at(t));
    }
    QCOMPARE(session.meter().cells(0), cells);
}

/// The same way of both as it was recorded, from the same places.
void TestTraining::recordIsReplayed()
{
    QRandomGenerator random(Seed);
    Session session(m_match.game);
    session.setDummy(Dummy::Record);
    QVector<int> places;
    for (int t = 0; t < 90; ++t) {
        session.step(held(0, quint8(random.bounded(4) * 4)));
        places.append(session.state().fighters[1].x);
    }
    QCOMPARE(session.dummy().recordedTicks(), 90);
    session.resetPlaces();
    session.setDummy(Dummy::Replay);
    for (int t = 0; t < 90; ++t) {
        session.step(held(0, 255));
        QCOMPARE(session.state().fighters[1].x, places.at(t));
    }
}

/// The ticks of a match are counted anew: it replays from its first one, as it did before.
void TestTraining::replaysInTheNextMatch()
{
    Session session(m_match.game);
    for (int t = 0; t < 500; ++t) {
        session.step({});
    }
    session.setDummy(Dummy::Record);
    for (int t = 0; t < 30; ++t) {
        session.step(held(0, Inputs::Left));
    }
    session.setDummy(Dummy::Replay);
    session.beginMatch();
    const int place = session.state().fighters[1].x;
    for (int t = 0; t < 10; ++t) {
        session.step({});
    }
    QVERIFY(session.state().fighters[1].x < place);
}

void TestTraining::takesOverTheTime_data()
{
    columns<int, int, int>("seconds", "ticks", "expected");
    row("goes on", 99, 60, 98 * 60);
    row("there was no end", 0, 60, 99 * 60);
    row("it was over", 1, 70, 99 * 60);
}

/// A saved stage goes on with the time that was left, if there was some.
void TestTraining::takesOverTheTime()
{
    const auto [seconds, ticks, expected] = fetched<int, int, int>();
    Rules::Game before = m_match.game;
    before.stage.seconds = seconds;
    Rules::Game after = m_match.game;
    after.stage.seconds = 99;
    Session old(before);
    for (int t = 0; t < ticks; ++t) {
        old.step({});
    }
    Session session(after);
    session.takeOver(old);
    QCOMPARE(session.state().clock, expected);
}

void TestTraining::dummy_data()
{
    columns<int, int, int>("mode", "buttons", "action");
    const int low = Inputs::Down | Family::MotionStep::Medium;
    row("stands", int(Dummy::Stand), 0, int(Rules::Action::Stand));
    row("crouches", int(Dummy::Crouch), 0, int(Rules::Action::Crouch));
    row("jumps", int(Dummy::Jump), 0, int(Rules::Action::Air));
    row("guards what is low", int(Dummy::Guard), low, int(Rules::Action::GuardedHit));
    row("is hit by it", int(Dummy::Stand), low, int(Rules::Action::Hit));
}

void TestTraining::dummy()
{
    const auto [mode, buttons, action] = fetched<int, int, int>();
    Session session(m_match.game);
    for (int t = 0; t < 24; ++t) {
        session.step(held(Inputs::Right, Inputs::Left));
    }
    session.setDummy(Dummy::Mode(mode));
    for (int t = 0; t < 14; ++t) {
        session.step(held(t < 3 ? quint8(buttons & Inputs::Down) : quint8(buttons), 255));
    }
    QCOMPARE(int(session.state().fighters[1].action), action);
}

void TestTraining::inputsHaveTheirLength()
{
    Session session(m_match.game);
    for (int t = 0; t < 30; ++t) {
        session.step(held(t < 10   ? quint8(Inputs::Right)
                          : t < 13 ? quint8(Inputs::Down)
                                   : 0,
                          Inputs::Left));
    }
    const auto inputs = lastInputs(session.state(), 0, 3);
    QCOMPARE(inputs.size(), 3);
    QCOMPARE(inputs.at(0).ticks, 17);
    QCOMPARE(inputs.at(1).ticks, 3);
    QCOMPARE(inputs.at(2).ticks, 10);
    // Forward, seen from the right.
    QCOMPARE(lastInputs(session.state(), 1, 1).first().signs, quint8(Family::MotionStep::Forward));
}

void TestTraining::matchWithoutEnd()
{
    QRandomGenerator random(Seed);
    Session session(m_match.game);
    session.setEndless(true);
    session.setDummy(Dummy::Random);
    for (int t = 0; t < 20000; ++t) {
        session.step(held(quint8(random.bounded(256))));
        QVERIFY(session.state().phase != Rules::Phase::MatchOver);
        QCOMPARE(session.state().round, 0);
    }
}

void TestTraining::slowerClock()
{
    Session session(m_match.game);
    const auto run = [&session] {
        int ticks = 0;
        for (int t = 0; t < 60; ++t) {
            ticks += session.clockTick({});
        }
        return ticks;
    };
    QVector<int> ticks;
    for (int i = 0; i < 4; ++i) {
        ticks.append(run());
        session.nextSpeed();
    }
    QCOMPARE(ticks, (QVector<int>{60, 30, 15, 60}));
    session.setPaused(true);
    QCOMPARE(run(), 0);
}

QTEST_GUILESS_MAIN(TestTraining)
#include "tst_training.moc"
