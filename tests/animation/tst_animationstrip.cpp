#include "animation/animationeditor.h"

#include "support/posetest.h"

#include "animation/edits/frameorder.h"
#include "animation/spritedrag.h"
#include "animation/timeline/timelinewidget.h"
#include "editors/code/codeeditor.h"

#include <QAction>
#include <QLabel>
#include <QRandomGenerator>
#include <QToolButton>
#include <QtTest>

#include <algorithm>
#include <memory>

using namespace Zorv;

namespace {

/// A frame is its sprite, which no other has, and its time; in front of it stands its comment.
struct Frame
{
    int sprite;
    int ticks;
};

using Frames = QVector<Frame>;

QString textOf(const Frames& frames)
{
    QString text = QStringLiteral("@one\n");
    for (const Frame& frame : frames) {
        text +=
            QStringLiteral("# of %1\n> 0,%1 0,0 %2 0 1,1 0\n").arg(frame.sprite).arg(frame.ticks);
    }
    return text + QStringLiteral("@two\n> 0,900 0,0 7 0 1,1 0\n");
}

}  // namespace

class TestAnimationStrip : public PoseTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { drop(); }
    void randomActs();
    void spritesAreDropped();
    void playsFromTheShownFrame();
    void rangeIsLooped();
    void playsSlowly();
    void playsAgain();
    void factsAreTold();
    void equalFramesKeepTheirOrder();
    void shownFrameStaysShown();
    void anotherAnimation();
    void lockedDuringPlay();

private:
    QString facts() const { return widget<QLabel>("anim_facts_lb")->text(); }
    void load(const QString& text);
    QPoint place(int tick, int pixel = 2) const { return {125 + 6 * tick + pixel, 35}; }
    void drag(const QPoint& from, const QPoint& to);
    QVector<int> selectedSprites(const Frames& frames) const;

    TimeLineWidget* strip = nullptr;
};

void TestAnimationStrip::init()
{
    make();
    strip = stage->timeLine();
    stage->widget()->resize(125 + 6 * 200, 300);
    stage->widget()->show();
    QVERIFY(QTest::qWaitForWindowActive(stage->widget()));
    document = std::make_unique<PoseDocument>(QString());
    load(textOf({{1, 5}, {2, 3}, {3, 1}, {4, 6}, {5, 4}}));
    editor->setDocument(document.get());
    editor->activate();
    strip->setFocus();
}

void TestAnimationStrip::load(const QString& text)
{
    document->fromString(text);
    document->clearUndoRedoStacks();
    editor->update();
}

void TestAnimationStrip::drag(const QPoint& from, const QPoint& to)
{
    QTest::mousePress(strip, Qt::LeftButton, {}, from);
    for (const QPoint& at : {(from + to) / 2, to}) {
        QMouseEvent event(QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(strip, &event);
    }
    QTest::mouseRelease(strip, Qt::LeftButton, {}, to);
}

QVector<int> TestAnimationStrip::selectedSprites(const Frames& frames) const
{
    QVector<int> sprites;
    for (const int frame : editor->selectedFrames()) {
        sprites.append(frames.at(frame).sprite);
    }
    return sprites;
}

// After each act the text is what the plain model says, each act is one step of undo, and the
// selected frames are the same ones wherever they are now.
void TestAnimationStrip::randomActs()
{
    // Linked, undo would lead to the animation that the text cursor comes to.
    action("anim_editcode")->trigger();
    QRandomGenerator random(1616);
    Frames frames{{1, 5}, {2, 3}, {3, 1}, {4, 6}, {5, 4}};
    QVector<Frames> past;
    QVector<Frames> future;
    int nextSprite = 6;
    for (int i = 0; i < 600; ++i) {
        const std::string number = std::to_string(i);
        const char* const where = number.c_str();
        const Frames before = frames;
        const QVector<int> selected = editor->selectedFrames();
        const QVector<int> sprites = selectedSprites(before);
        const int shown = editor->frameIndex();
        const bool isShownAlone = selected == QVector<int>{shown};
        const int act = frames.size() < 3 ? 5 : random.bounded(9);
        bool isEdit = true;
        if (act == 0) {
            const int change = random.bounded(2) == 0 ? 1 : -1;
            QTest::keyClick(strip, change > 0 ? Qt::Key_Plus : Qt::Key_Minus);
            for (const int frame : selected) {
                frames[frame].ticks = qMax(frames.at(frame).ticks + change, 1);
            }
        } else if (act == 1) {
            const bool isLeft = random.bounded(2) == 0;
            QTest::keyClick(strip, isLeft ? Qt::Key_Left : Qt::Key_Right, Qt::AltModifier);
            Frames moved;
            for (const int frame : selected) {
                moved.append(frames.at(frame));
            }
            const int target =
                isLeft ? qMax(selected.first() - 1, 0) : qMin(selected.last() + 2, frames.size());
            Frames rest;
            for (int frame = 0; frame <= before.size(); ++frame) {
                rest += frame == target ? moved : Frames();
                if (frame < before.size() && !selected.contains(frame)) {
                    rest.append(before.at(frame));
                }
            }
            frames = rest;
        } else if (act == 2 && !past.isEmpty()) {
            future.append(frames);
            frames = past.takeLast();
            editor->undo();
        } else if (act == 3 && !future.isEmpty()) {
            past.append(frames);
            frames = future.takeLast();
            editor->redo();
        } else if (act == 4) {
            const int frame = random.bounded(frames.size());
            QTextCursor line(document->findBlockByNumber(1 + 2 * frame));
            line.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor, 2);
            line.removeSelectedText();
            frames.remove(frame);
            editor->update();
        } else if (act == 5) {
            const int frame = random.bounded(frames.size() + 1);
            const Frame added{nextSprite++, 2 + random.bounded(5)};
            const QString lines = textOf({added}).section(QLatin1Char('\n'), 1, 2);
            QTextCursor(document->findBlockByNumber(1 + 2 * frame))
                .insertText(lines + QLatin1Char('\n'));
            frames.insert(frame, added);
            editor->update();
        } else if (act == 6) {
            const int frame = random.bounded(frames.size());
            int end = 0;
            for (int j = 0; j <= frame; ++j) {
                end += frames.at(j).ticks;
            }
            const bool isFree = end < 195 && strip->currentTick() != unsigned(end - 1);
            if (isFree) {
                drag(place(end, -1), place(end + 1, -1));
            }
            if (isFree && (!selected.contains(frame) || isShownAlone)) {
                frames[frame].ticks += 1;
            } else if (isFree) {
                // Several move the edge by a tick each, and one tick is less than half of that.
                const auto last = std::upper_bound(selected.begin(), selected.end(), frame);
                const bool isEnough = last - selected.begin() <= 2;
                for (const int each : isEnough ? selected : QVector<int>()) {
                    frames[each].ticks += 1;
                }
            }
        } else {
            isEdit = false;
            const Qt::KeyboardModifiers keys[] = {{}, Qt::ControlModifier, Qt::ShiftModifier};
            if (act == 7) {
                action(random.bounded(2) ? "anim_next_frame" : "anim_prev_frame")->trigger();
                QCOMPARE(editor->selectedFrames(), selected.contains(editor->frameIndex())
                                                       ? selected
                                                       : QVector<int>{editor->frameIndex()});
            } else {
                QTest::mouseClick(strip, Qt::LeftButton, keys[random.bounded(3)],
                                  place(random.bounded(20)));
            }
        }
        QVERIFY2(document->text() == textOf(frames), where);
        const bool isChanged = textOf(frames) != textOf(before);
        if (isChanged && act != 2 && act != 3) {
            past.append(before);
            future.clear();
        }
        QVERIFY2(document->isUndoAvailable() == !past.isEmpty(), where);
        const int now = editor->frameIndex();
        QVERIFY2(now >= 0 && now < frames.size(), where);
        const QVector<int> chosen = editor->selectedFrames();
        QVERIFY2(chosen.first() >= 0 && chosen.last() < frames.size(), where);
        if (isEdit && isChanged) {
            QVector<int> expected;
            bool isNew = true;
            for (const Frame& frame : frames) {
                if (sprites.contains(frame.sprite)) {
                    expected.append(frame.sprite);
                }
            }
            for (const Frame& frame : before) {
                isNew = isNew && frame.sprite != frames.at(now).sprite;
            }
            if (isShownAlone || isNew || expected.isEmpty()) {
                expected = {frames.at(now).sprite};
            }
            QVERIFY2(selectedSprites(frames) == expected, where);
        }
    }
    while (document->isUndoAvailable()) {
        editor->undo();
    }
    QCOMPARE(document->text(), textOf({{1, 5}, {2, 3}, {3, 1}, {4, 6}, {5, 4}}));
}

void TestAnimationStrip::spritesAreDropped()
{
    const std::unique_ptr<QMimeData> data(spriteDrag({{0, 8}, {0, 9}}));
    QDragEnterEvent enter(place(6), Qt::CopyAction, data.get(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(strip, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(place(5), Qt::CopyAction, data.get(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(strip, &drop);
    QCOMPARE(editor->currentAnimation()->frameCount(), 7);
    QCOMPARE(editor->selectedFrames(), QVector<int>({1, 2}));
    QCOMPARE(editor->currentAnimation()->frame(1)->spriteNumber(), 8);
    editor->undo();
    QCOMPARE(document->text(), textOf({{1, 5}, {2, 3}, {3, 1}, {4, 6}, {5, 4}}));
}

void TestAnimationStrip::playsFromTheShownFrame()
{
    editor->selectFrame(3);
    QTest::mouseClick(host->controls.value(QStringLiteral("anim_play")), Qt::LeftButton,
                      Qt::ShiftModifier);
    QVERIFY(strip->isPlaying());
    QCOMPARE(strip->currentTick(), 9U);
    action("anim_stop")->trigger();
    action("anim_play_here")->trigger();
    QVERIFY(strip->isPlaying() && editor->frameIndex() == 3);
    action("anim_stop")->trigger();
    editor->selectFrame(3);
    QTest::mouseClick(host->controls.value(QStringLiteral("anim_play")), Qt::LeftButton);
    QCOMPARE(strip->currentTick(), 0U);
}

void TestAnimationStrip::rangeIsLooped()
{
    QTest::mouseClick(strip, Qt::LeftButton, {}, place(6));
    QTest::mouseClick(strip, Qt::LeftButton, Qt::ShiftModifier, place(8));
    QTest::keyClick(strip, Qt::Key_L);
    action("anim_play")->trigger();
    QVector<int> shown;
    for (int i = 0; i < 9; ++i) {
        shown.append(editor->frameIndex());
        strip->setCurrentTick(strip->currentTick() + 1);
    }
    QCOMPARE(shown, QVector<int>({1, 1, 1, 2, 1, 1, 1, 2, 1}));
    // A range that is drawn meanwhile counts at once.
    strip->setLoopRange(TickRange{15, 15});
    strip->setCurrentTick(strip->currentTick() + 1);
    QCOMPARE(strip->currentTick(), 15U);
    action("anim_stop")->trigger();
    QVERIFY(!document->isUndoAvailable());
}

void TestAnimationStrip::playsSlowly()
{
    QElapsedTimer timer;
    action("anim_play_quarter")->trigger();
    action("anim_play_half")->trigger();
    QVERIFY(!action("anim_play_quarter")->isChecked());
    QCOMPARE(strip->slowness(), 2);
    action("anim_play_quarter")->trigger();
    QVERIFY(!action("anim_play_half")->isChecked());
    QCOMPARE(strip->slowness(), 4);
    action("anim_play")->trigger();
    timer.start();
    QTRY_VERIFY(strip->currentTick() >= 5);
    QVERIFY(timer.elapsed() > 4 * 4 * 16);
    action("anim_play_quarter")->trigger();
    QCOMPARE(strip->slowness(), 1);

    // What was missed behind a menu is not made up for.
    load(QStringLiteral("@one\n> 0,1 0,0 500 0 1,1 0\n"));
    action("anim_play")->trigger();
    QTest::qSleep(1000);
    const unsigned tick = strip->currentTick();
    timer.start();
    QTRY_VERIFY(strip->currentTick() >= tick + 20);
    QVERIFY(timer.elapsed() > 250);
}

void TestAnimationStrip::playsAgain()
{
    load(QStringLiteral("@one\n> 0,1 0,0 3 0 1,1 0\n> 0,2 0,0 -1 0 1,1 0\n"));
    for (const bool isAgain : {true, false}) {
        action("anim_play_again")->trigger();
        action("anim_play")->trigger();
        int ticks = 0;
        while (strip->isPlaying() && ticks < 100) {
            strip->setCurrentTick(strip->currentTick() + 1);
            ticks += editor->frameIndex() == 0 ? 1 : 0;
        }
        QCOMPARE(strip->isPlaying(), isAgain);
        QVERIFY(ticks == (isAgain ? 100 : 2));
        editor->stopPlaying();
    }
}

void TestAnimationStrip::factsAreTold()
{
    QTRY_COMPARE(facts(), QStringLiteral("total 19, no attack"));
    QTextCursor line(document->findBlockByNumber(4));
    line.movePosition(QTextCursor::EndOfBlock);
    line.insertText(QStringLiteral(" a-3,0,39,9"));
    QTRY_COMPARE(facts(), QStringLiteral("start 5, active 3, recovery 11, total 19; reach 40 px"));
    document->undo();
    QTRY_COMPARE(facts(), QStringLiteral("total 19, no attack"));
    editor->selectAnimation(1);
    QTRY_COMPARE(facts(), QStringLiteral("total 7, no attack"));
    load(QString());
    QTRY_COMPARE(facts(), QString());
}

void TestAnimationStrip::equalFramesKeepTheirOrder()
{
    const QString twin = QStringLiteral("> 0,1 0,0 3 0 1,1 0\n");
    load(QStringLiteral("@one\n") + twin + twin + QStringLiteral("> 0,2 0,0 3 0 1,1 0\n"));
    strip->setSelectedCells({0, 2});
    moveFrames(document->animations(), 0, {2}, 0);
    editor->update();
    QCOMPARE(editor->selectedFrames(), QVector<int>({0, 1}));
}

void TestAnimationStrip::shownFrameStaysShown()
{
    strip->setSelectedCells({1, 2});
    QTest::keyClick(strip, Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(editor->selectedFrames(), QVector<int>({0, 1}));
    QCOMPARE(editor->frameIndex(), 2);
}

void TestAnimationStrip::anotherAnimation()
{
    strip->setSelectedCells({0, 2, 4});
    strip->setLoopRange(TickRange{1, 2});
    editor->selectAnimation(1);
    QCOMPARE(editor->selectedFrames(), QVector<int>{0});
    QVERIFY(!strip->loopRange());
    strip->setSelectedCells({});
    QCOMPARE(editor->selectedFrames(), QVector<int>{0});
    load(QStringLiteral("@one\n"));
    QCOMPARE(editor->selectedFrames(), QVector<int>());
    QTest::keyClick(strip, Qt::Key_Plus);
    QTest::keyClick(strip, Qt::Key_Right, Qt::AltModifier);
    QVERIFY(!document->isUndoAvailable());
}

void TestAnimationStrip::lockedDuringPlay()
{
    strip->setSelectedCells({1, 2});
    action("anim_play")->trigger();
    QTest::keyClick(strip, Qt::Key_Plus);
    QTest::keyClick(strip, Qt::Key_Left, Qt::AltModifier);
    strip->setCurrentTick(12);
    action("anim_stop")->trigger();
    QVERIFY(!document->isUndoAvailable());
    QCOMPARE(editor->selectedFrames(), QVector<int>({1, 2}));
}

QTEST_MAIN(TestAnimationStrip)
#include "tst_animationstrip.moc"
