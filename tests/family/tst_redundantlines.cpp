#include "familydump.h"

#include "family/nodes/frameedit.h"
#include "family/redundantlines.h"
#include "support/testtable.h"

#include <QRandomGenerator>
#include <QtTest>

using namespace Family;
using Zorv::ContactBoxCode;

namespace {

constexpr quint32 Seed = 20261122;

QStringList boxesOf(const FrameNode* frame)
{
    QSet<QString> boxes;
    for (const auto type : {ContactBoxCode::Attack, ContactBoxCode::Collision}) {
        const Zorv::ContactBoxesCode* list = frame->contactBoxes(type);
        for (int i = 0; i < list->count(); ++i) {
            const QRect rect = list->at(i)->rect();
            boxes.insert(QStringLiteral("%1 %2 %3 %4 %5")
                             .arg(type)
                             .arg(rect.left())
                             .arg(rect.top())
                             .arg(rect.right())
                             .arg(rect.bottom()));
        }
    }
    QStringList sorted = boxes.values();
    sorted.sort();
    return sorted;
}

/// What the game shows tick by tick, and where it starts again.
QStringList shownBy(const FamilyDocument& document)
{
    QStringList ticks;
    for (const Zorv::AnimationCode* animation : document.animations()->animations()) {
        ticks.append(animation->property(QStringLiteral("Identifier")).toString());
        for (const Zorv::FrameCode* each : animation->frames()) {
            const auto* frame = static_cast<const FrameNode*>(each);
            FrameData look = frame->data();
            look.delay = 1;
            look.loop = false;
            if (frame->isLoopPoint()) {
                ticks.append(QStringLiteral("loop"));
            }
            const QString text = frameText(look) + boxesOf(frame).join(QLatin1Char(';'));
            for (int i = 0; i < frame->delay(); ++i) {
                ticks.append(text);
            }
            if (frame->delay() < 0) {
                while (ticks.last() == text) {
                    ticks.removeLast();
                }
                ticks.append(text + QLatin1String(" for ever"));
            }
        }
    }
    return ticks;
}

}  // namespace

class TestRedundantLines : public QObject
{
    Q_OBJECT

private slots:
    void removes_data();
    void removes();
    void linesAreTold();
    void nobodySeesADifference();
};

void TestRedundantLines::removes_data()
{
    columns<QString, QString, int>("before", "after", "count");
    const auto row = [](const char* title, const char* before, const char* after, int count) {
        QTest::newRow(title) << QLatin1String("animation 1\n") + QLatin1String(before)
                             << QLatin1String("animation 1\n") + QLatin1String(after) << count;
    };
    const auto stays = [&row](const char* title, const char* text) { row(title, text, text, 0); };
    row("frames that look the same", "frame 1,0  delay 3\nframe 1,0  delay 4\nframe 1,0",
        "frame 1,0  delay 8", 2);
    row("into the one with a comment", "frame 1,0 # a\nframe 1,0\n", "frame 1,0  delay 2 # a\n", 1);
    row("with boxes in another order, and an empty line",
        "attack 0,0,1,1\nbody 0,0,1,1\nframe 1,0\nbody 0,0,1,1\n\nattack 0,0, 1,1\nframe 1,0\n",
        "attack 0,0,1,1\nbody 0,0,1,1\nframe 1,0  delay 2\n", 4);
    row("the last one never ends", "frame 1,0\nframe 1,0  delay -1\n", "frame 1,0  delay -1\n", 1);
    row("a box twice", "attack 0,0,1,1\nbody 0,0,1,1\nattack 0,0, 1,1\nframe 1,0\n",
        "attack 0,0,1,1\nbody 0,0,1,1\nframe 1,0\n", 1);
    stays("another option", "frame 1,0\nframe 1,0  offset 1,0\nframe 1,0  flip h\n");
    stays("another box", "body 0,0,1,1\nframe 1,0\nattack 0,0,1,1\nframe 1,0\n");
    stays("the loop frame", "frame 1,0\nframe 1,0  loop\n");
    stays("a comment", "frame 1,0\nframe 1,0 # here it hits\n");
    stays("a comment between", "frame 1,0\n# here it hits\nframe 1,0\n");
    stays("a box with a comment", "body 0,0,1,1\nbody 0,0,1,1 # head\nframe 1,0\n");
    stays("a problem", "frame 1,0\nframe 1,0  dleay 3\nframe 2,0 x\nframe 2,0\n");
    stays("no room", "frame 1,0  delay 32767\nframe 1,0\n");
    stays("behind one that never ends", "frame 1,0  delay -1\nframe 1,0\n");
}

void TestRedundantLines::removes()
{
    const auto [before, after, count] = fetched<QString, QString, int>();
    FamilyDocument document(FileKind::Animations);
    document.fromString(before);
    QStringList told;
    QCOMPARE(document.animations()->optimize(true, &told), count);
    QCOMPARE(document.text(), before);
    QVERIFY(!document.isUndoAvailable());
    QStringList done;
    QCOMPARE(document.animations()->optimize(false, &done), count);
    QCOMPARE(done, told);
    QCOMPARE(told.isEmpty(), count == 0);
    QCOMPARE(document.text(), after);
    document.undo();
    QCOMPARE(document.text(), before);
    QVERIFY(!document.isUndoAvailable());
}

void TestRedundantLines::linesAreTold()
{
    FamilyDocument document(FileKind::Animations);
    document.fromString(QStringLiteral("animation 1\nframe 1,0  delay 3\n\nframe 1,0  delay 4\n"
                                       "body 0,0,1,1\nbody 0,0,1,1\nframe 1,0\n"));
    QStringList lines{QStringLiteral("above")};
    QCOMPARE(document.animations()->optimize(true, &lines), 3);
    QCOMPARE(
        lines,
        QStringList({QStringLiteral("above"), QStringLiteral("2: frame 1,0  delay 3 -> delay 7"),
                     QStringLiteral("4: frame 1,0  delay 4"), QStringLiteral("6: body 0,0,1,1")}));
}

void TestRedundantLines::nobodySeesADifference()
{
    static const char* const lines[] = {"frame 1,0",
                                        "frame 1,0  delay 2",
                                        "frame 1,0  delay 0",
                                        "frame 1,0  loop",
                                        "frame 2,0",
                                        "frame 1,0  delay 3",
                                        "frame 2,0  delay -1",
                                        "attack 0,0,1,1",
                                        "attack 0,0,1,1",
                                        "body 0,0,1,1",
                                        "",
                                        "# note",
                                        "animation 2",
                                        "[info]",
                                        "junk"};
    qInfo("seed %u", Seed);
    QRandomGenerator random(Seed);
    int removed = 0;
    for (int run = 0; run < 300; ++run) {
        QStringList text{QStringLiteral("animation 1")};
        for (int i = random.bounded(25); i > 0; --i) {
            text.append(QLatin1String(lines[random.bounded(int(std::size(lines)))]));
        }
        const QString before = text.join(QLatin1Char('\n'));
        FamilyDocument document(FileKind::Animations);
        document.fromString(before);
        const QStringList shown = shownBy(document);
        const int blocks = document.blockCount();
        const int count = document.animations()->optimize();
        QCOMPARE(blocks - document.blockCount(), count);
        QVERIFY2(shownBy(document) == shown, qPrintable(before));
        QCOMPARE(document.animations()->optimize(), 0);
        document.undo();
        QCOMPARE(document.text(), before);
        removed += count;
    }
    QVERIFY(removed > 100);
}

QTEST_MAIN(TestRedundantLines)
#include "tst_redundantlines.moc"
