#include "animation/followedanimation.h"
#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/nodes/animationnode.h"

#include <QRandomGenerator>
#include <QTextCursor>
#include <QtTest>

#include <limits>

using Family::FamilyDocument;
using Family::FileKind;
using Zorv::FollowedAnimation;
using Zorv::FrameTicks;
using Zorv::TimeLine;

namespace {

constexpr quint32 Seed = 20261107;

/// Tick by tick, which frame is shown; past the end there is none.
QVector<int> shownFrames(const QVector<int>& delays, int ticks)
{
    QVector<int> shown;
    for (int frame = 0; frame < delays.size() && shown.size() < ticks; ++frame) {
        const int count = delays[frame] < 0 ? ticks - shown.size() : delays[frame];
        shown += QVector<int>(count, frame);
    }
    return shown;
}

QVector<int> delaysOf(const FrameTicks& ticks)
{
    QVector<int> delays;
    for (int frame = 0; frame < ticks.frameCount(); ++frame) {
        delays.append(ticks.delay(frame));
    }
    return delays;
}

QString identifierOf(const Zorv::AnimationCode* animation)
{
    return animation->property(QStringLiteral("Identifier")).toString();
}

}  // namespace

class TestFrameTicks : public QObject
{
    Q_OBJECT

private slots:
    void ticksAgreeWithAWalk();
    void sumsDoNotOverflow();
    void animationIsFollowed();
    void documentCloses();
};

void TestFrameTicks::ticksAgreeWithAWalk()
{
    qInfo("seed %u", Seed);
    QRandomGenerator random(Seed);
    for (int round = 0; round < 2000; ++round) {
        QVector<int> delays(random.bounded(8));
        for (int& delay : delays) {
            delay = random.bounded(20) == 0 ? -1 - random.bounded(3) : random.bounded(5);
        }
        const int loop = random.bounded(-1, std::max(delays.size(), 1));
        const FrameTicks ticks(delays, loop);
        const QVector<int> shown = shownFrames(delays, 60);
        const bool endless = shown.size() == 60;
        QCOMPARE(ticks.total(), endless ? -1 : shown.size());
        for (int tick = 0; tick < 60; ++tick) {
            const int last = shown.isEmpty() ? delays.size() - 1 : shown.last();
            QCOMPARE(ticks.frameAt(unsigned(tick)), shown.value(tick, last));
            const bool begins =
                tick < shown.size() && (tick == 0 || shown[tick - 1] != shown[tick]);
            TimeLine::Marker marker;
            QCOMPARE(ticks.markerAt(unsigned(tick), marker), begins);
            if (begins) {
                QCOMPARE(ticks.firstTick(shown[tick]), tick);
                QCOMPARE(marker.length, delays[shown[tick]]);
            }
        }
        for (int frame = 0, end = 0; frame < delays.size(); ++frame) {
            end = end < 0 || delays[frame] < 0 ? -1 : end + delays[frame];
            QCOMPARE(ticks.endTick(frame), end);
        }
        const auto from = delays.begin() + std::max(loop, 0);
        QCOMPARE(ticks.canLoop(),
                 endless || (from < delays.end() &&
                             std::count(from, delays.end(), 0) < delays.end() - from));
        const int after = ticks.loopTick();
        QVERIFY(after == 0 ||
                (loop > 0 && after == ticks.firstTick(loop) && (endless || after < shown.size())));
        QVERIFY(loop < 0 || !shown.contains(loop) || after == shown.indexOf(loop));
    }
}

void TestFrameTicks::sumsDoNotOverflow()
{
    constexpr int most = std::numeric_limits<int>::max();
    const FrameTicks ticks({most, 5, most, -most - 1, 7}, 2);
    QCOMPARE(ticks.total(), -1);
    QCOMPARE(ticks.frameAt(most - 1), 0);
    QCOMPARE(ticks.frameAt(std::numeric_limits<unsigned>::max()), 3);
    QCOMPARE(ticks.firstTick(4), most);
    QCOMPARE(FrameTicks({most, most}, -1).total(), most);
}

/// Lines come, go, break and are mended anywhere, also in the head of the animation and in the
/// middle of it, by steps that are undone and done again.
void TestFrameTicks::animationIsFollowed()
{
    qInfo("seed %u", Seed);
    QRandomGenerator random(Seed);
    static const char* const lines[] = {
        "animation 7",     "animation 8 \"B\"", "frame 0,0 delay 4",       "frame 1,2 delay 0",
        "attack 1,2, 3,4", "; a note",          "frame 0,1 delay -1 loop", ""};
    FamilyDocument document(FileKind::Animations);
    document.fromString(QStringLiteral("animation 8\nframe 0,0\nanimation 7\nframe 0,0 delay 4\n"));
    FollowedAnimation followed;
    followed.setAnimation(document.animations()->animation(1));
    int found = 0;
    for (int step = 0; step < 4000; ++step) {
        QTextCursor cursor(document.findBlockByNumber(random.bounded(document.blockCount())));
        const QString line =
            QLatin1String(lines[random.bounded(int(std::size(lines)))]) + QLatin1Char('\n');
        switch (random.bounded(6)) {
        case 0:
            document.insertOnCursor(line, cursor);
            break;
        case 1:
            cursor.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor,
                                1 + random.bounded(3));
            document.replaceSelection(random.bounded(2) ? line : QString(), cursor);
            break;
        case 2:
            cursor.movePosition(QTextCursor::EndOfBlock);
            cursor.insertText(QStringLiteral(" ;"));
            break;
        case 3:
            cursor.insertText(QStringLiteral("\n"));
            break;
        case 4:
            document.undo();
            break;
        default:
            document.redo();
            break;
        }
        const int place = document.animations()->indexOfIdentifier(QStringLiteral("7"));
        const Zorv::AnimationCode* node = followed.animation();
        QCOMPARE(node != nullptr, place >= 0);
        if (node) {
            ++found;
            QVERIFY(document.animations()->indexOf(node) >= 0);
            QCOMPARE(identifierOf(node), QStringLiteral("7"));
        }
        QCOMPARE(delaysOf(followed.ticks()), delaysOf(FrameTicks(node)));
        QCOMPARE(followed.ticks().frameCount(), followed.frameCount());
    }
    QVERIFY(found > 1000 && found < 4000);
    document.fromString(QStringLiteral("animation 7\nframe 0,0\n"));
    QCOMPARE(followed.frameCount(), 1);
    QTextCursor typed(document.findBlockByNumber(0));
    typed.movePosition(QTextCursor::EndOfBlock);
    typed.insertText(QStringLiteral("5"));
    QCOMPARE(identifierOf(followed.animation()), QStringLiteral("75"));
}

void TestFrameTicks::documentCloses()
{
    FollowedAnimation followed;
    auto document = std::make_unique<FamilyDocument>(FileKind::Animations);
    document->fromString(QStringLiteral("animation 7\nframe 0,0\n"));
    followed.setAnimation(document->animations()->animation(0));
    QCOMPARE(followed.ticks().frameCount(), 1);
    connect(&followed, &FollowedAnimation::changed, this,
            [&] { QVERIFY(!followed.animation() && !followed.document()); });
    QSignalSpy spy(&followed, &FollowedAnimation::changed);
    document.reset();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(followed.ticks().frameCount(), 0);
}

QTEST_MAIN(TestFrameTicks)
#include "tst_frameticks.moc"
