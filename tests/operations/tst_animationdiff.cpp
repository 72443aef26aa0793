#include "operations/diff/animationdiff.h"
#include "operations/diff/boxmatching.h"

#include <QRandomGenerator>
#include <QtTest>

using namespace Family;
using namespace Operations;

namespace {

constexpr quint32 Seed = 20261110;

BoxRecord someBox(QRandomGenerator& random)
{
    const QPoint corner(random.bounded(-3, 3), random.bounded(-3, 3));
    return {random.bounded(2) == 0, QRect(corner, QSize(1 + random.bounded(3), 2))};
}

FrameRecord someFrame(QRandomGenerator& random)
{
    FrameRecord frame;
    frame.data.number = random.bounded(4);
    frame.data.delay = random.bounded(1, 4);
    frame.data.flip = uchar(random.bounded(2));
    for (int i = random.bounded(4); i > 0; --i) {
        frame.boxes.append(someBox(random));
    }
    return frame;
}

QStringList boxTexts(const QVector<BoxRecord>& boxes)
{
    QStringList texts;
    for (const BoxRecord& box : boxes) {
        texts.append(QStringLiteral("%1 %2 %3 %4 %5")
                         .arg(int(box.isAttack))
                         .arg(box.rect.left())
                         .arg(box.rect.top())
                         .arg(box.rect.right())
                         .arg(box.rect.bottom()));
    }
    texts.sort();
    return texts;
}

/// The rectangle of the box of a kind at a place.
BoxRecord boxAt(const QVector<BoxRecord>& boxes, bool attack, int place)
{
    for (const BoxRecord& box : boxes) {
        if (box.isAttack == attack && place-- == 0) {
            return box;
        }
    }
    return {};
}

/// The old boxes with all that is told to have become of them.
QStringList patched(const QVector<BoxRecord>& oldBoxes, const QVector<BoxRecord>& newBoxes,
                    const QVector<BoxDiff>& diffs)
{
    QVector<BoxRecord> boxes = oldBoxes;
    for (const BoxDiff& diff : diffs) {
        if (diff.oldPlace >= 0 &&
            boxAt(oldBoxes, diff.isAttack, diff.oldPlace).rect == diff.oldRect) {
            boxes.removeOne({diff.isAttack, diff.oldRect});
        }
        if (diff.newPlace >= 0 &&
            boxAt(newBoxes, diff.isAttack, diff.newPlace).rect == diff.newRect) {
            boxes.append({diff.isAttack, diff.newRect});
        }
    }
    return boxTexts(boxes);
}

int countOf(const QVector<FrameDiff>& diffs, DiffKind kind)
{
    return int(std::count_if(diffs.begin(), diffs.end(),
                             [kind](const FrameDiff& diff) { return diff.kind == kind; }));
}

}  // namespace

class TestAnimationDiff : public QObject
{
    Q_OBJECT

private slots:
    void diffLeadsFromOldToNew();
    void editsAreFound();
    void longAnimations();
};

/// Each frame is told once, in order, and what is told of its options and boxes makes the new one
/// of the old one; what was done by few edits is told by no more frames that come and go.
void TestAnimationDiff::diffLeadsFromOldToNew()
{
    qInfo("seed %u", Seed);
    QRandomGenerator random(Seed);
    for (int round = 0; round < 1500; ++round) {
        QVector<FrameRecord> before;
        for (int i = random.bounded(12); i > 0; --i) {
            before.append(someFrame(random));
        }
        QVector<FrameRecord> after = before;
        int added = 0;
        int removed = 0;
        for (int i = random.bounded(5); i > 0; --i) {
            const int place = random.bounded(after.size() + 1);
            if (place == after.size() || random.bounded(3) == 0) {
                after = after.mid(0, place) + QVector<FrameRecord>{someFrame(random)} +
                        after.mid(place);
                ++added;
            } else if (random.bounded(2)) {
                after.removeAt(place);
                ++removed;
            } else {
                after[place].data.delay = 9;
                after[place].boxes.append(someBox(random));
            }
        }
        const QVector<FrameDiff> diffs = diffFrames(before, after);
        int oldFrame = 0;
        int newFrame = 0;
        for (const FrameDiff& diff : diffs) {
            QVERIFY(diff.oldFrame == (diff.kind == DiffKind::Added ? -1 : oldFrame++));
            QVERIFY(diff.newFrame == (diff.kind == DiffKind::Removed ? -1 : newFrame++));
            if (diff.oldFrame >= 0 && diff.newFrame >= 0) {
                const FrameRecord& old = before[diff.oldFrame];
                const FrameRecord& now = after[diff.newFrame];
                QCOMPARE(diff.options.isEmpty(), old.data == now.data);
                QCOMPARE(patched(old.boxes, now.boxes, diff.boxes), boxTexts(now.boxes));
                QCOMPARE(diff.boxes.isEmpty(), boxTexts(old.boxes) == boxTexts(now.boxes));
                const bool isSame = diff.options.isEmpty() && diff.boxes.isEmpty();
                QCOMPARE(diff.kind, isSame ? DiffKind::Same : DiffKind::Changed);
            }
        }
        QCOMPARE(oldFrame, before.size());
        QCOMPARE(newFrame, after.size());
        QVERIFY(added + removed > 0 || countOf(diffs, DiffKind::Added) == 0);
    }
}

/// Frames that cannot be mistaken for each other are told as what was done to them.
void TestAnimationDiff::editsAreFound()
{
    QVector<FrameRecord> before(40);
    for (int i = 0; i < before.size(); ++i) {
        before[i].data = {7 + i, i, {i, 3 * i}, 1 + i, 1.0 + i, 1, double(i), 0, false};
        before[i].boxes = {{true, QRect(10 * i, 0, 5, 5)}, {false, QRect(0, 10 * i, 5, 5)}};
    }
    QVector<FrameRecord> after = before;
    after[30].boxes[0].rect.translate(2, 0);
    after[20].data.delay = -1;
    after[20].data.offset.rx() += 1;
    after.removeAt(10);
    after = after.mid(0, 5) + QVector<FrameRecord>(1) + after.mid(5);
    const QVector<FrameDiff> diffs = diffFrames(before, after);
    QCOMPARE(countOf(diffs, DiffKind::Added), 1);
    QCOMPARE(countOf(diffs, DiffKind::Removed), 1);
    QCOMPARE(countOf(diffs, DiffKind::Changed), 2);
    QCOMPARE(diffs[5].newFrame, 5);
    QCOMPARE(diffs[11].oldFrame, 10);
    const FrameDiff& changed = diffs[21];
    QCOMPARE(changed.options.size(), 2);
    QCOMPARE(changed.options[1].oldText, QStringLiteral("21"));
    QCOMPARE(changed.options[1].newText, QStringLiteral("-1"));
    QCOMPARE(diffs[31].boxes.size(), 1);
    QCOMPARE(diffs[31].boxes[0].newRect, QRect(302, 0, 5, 5));
}

/// Too much for a table of all pairs.
void TestAnimationDiff::longAnimations()
{
    QVector<FrameRecord> before(5000);
    QVector<FrameRecord> after(4000);
    for (FrameRecord& frame : after) {
        frame.data.delay = 2;
        frame.boxes.fill({true, QRect(0, 0, 1, 1)}, 3);
    }
    after[0].boxes.fill({true, QRect(0, 0, 1, 1)}, 3000);
    before[0].boxes.fill({true, QRect(1, 0, 1, 1)}, 2000);
    const QVector<FrameDiff> diffs = diffFrames(before, after);
    QCOMPARE(countOf(diffs, DiffKind::Changed), 4000);
    QCOMPARE(countOf(diffs, DiffKind::Removed), 1000);
    QCOMPARE(diffs[0].boxes.size(), 3000);
}

QTEST_GUILESS_MAIN(TestAnimationDiff)
#include "tst_animationdiff.moc"
