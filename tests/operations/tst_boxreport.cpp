#include "operations/boxes/boxreport.h"

#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/nodes/animationnode.h"
#include "operations/boxes/coveredarea.h"
#include "support/testtable.h"

#include <QRandomGenerator>
#include <QtTest>

#include <memory>

using namespace Family;
using namespace Operations;

namespace {

const unsigned Seed = 20;

QVector<QRect> randomRects(QRandomGenerator* random)
{
    QVector<QRect> rects(random->bounded(8));
    for (QRect& rect : rects) {
        rect.setCoords(random->bounded(-12, 12), random->bounded(-12, 12), random->bounded(-12, 12),
                       random->bounded(-12, 12));
    }
    return rects;
}

bool isCovered(const QVector<QRect>& rects, const QPoint& pixel)
{
    return std::any_of(rects.begin(), rects.end(), [&](const QRect& rect) {
        return qMin(rect.left(), rect.right()) <= pixel.x() &&
               qMax(rect.left(), rect.right()) >= pixel.x() &&
               qMin(rect.top(), rect.bottom()) <= pixel.y() &&
               qMax(rect.top(), rect.bottom()) >= pixel.y();
    });
}

QString code(const QVector<QRect>& rects, const char* kind)
{
    QString text;
    for (const QRect& rect : rects) {
        text += QStringLiteral("%1 %2,%3, %4,%5\n")
                    .arg(kind)
                    .arg(rect.left())
                    .arg(rect.top())
                    .arg(rect.right())
                    .arg(rect.bottom());
    }
    return text;
}

AnimationBoxReport reportOf(const QString& lines)
{
    FamilyDocument document(FileKind::Animations);
    document.setPlainText(QStringLiteral("animation 1\n") + lines);
    return AnimationBoxReport(*document.animations()->animation(0));
}

}  // namespace

class TestBoxReport : public QObject
{
    Q_OBJECT

private slots:
    void areas();
    void times_data();
    void times();
    void veryMany();
};

// Against a count of single pixels.
void TestBoxReport::areas()
{
    QRandomGenerator random(Seed);
    for (int round = 0; round < 200; ++round) {
        const QVector<QRect> attack = randomRects(&random);
        const QVector<QRect> body = randomRects(&random);
        const QVector<QRect> nextAttack = randomRects(&random);
        const QVector<QRect> nextBody = randomRects(&random);
        const AnimationBoxReport report =
            reportOf(code(attack, "attack") + code(body, "body") + "frame 1,1\n" +
                     code(nextBody, "body") + code(nextAttack, "attack") + "frame 1,2 delay -1\n");
        FrameBoxReport counted{};
        qint64 inBoxes = 0;
        for (int i = 0; i < 24 * 24; ++i) {
            const QPoint pixel(i % 24 - 12, i / 24 - 12);
            const bool hits = isCovered(attack, pixel);
            const bool isHit = isCovered(body, pixel);
            counted.attack.area += hits;
            counted.body.area += isHit;
            counted.attackInBody += hits && isHit;
            counted.attack.kept += hits && isCovered(nextAttack, pixel);
            counted.body.kept += isHit && isCovered(nextBody, pixel);
            counted.attackInNextBody += hits && isCovered(nextBody, pixel);
            for (const QRect& rect : attack) {
                inBoxes += isHit && isCovered({rect}, pixel);
            }
        }
        const FrameBoxReport& frame = report.frames.first();
        QCOMPARE(frame.attack.area, counted.attack.area);
        QCOMPARE(frame.body.area, counted.body.area);
        QCOMPARE(frame.attackInBody, counted.attackInBody);
        QCOMPARE(frame.attack.kept, counted.attack.kept);
        QCOMPARE(frame.body.kept, counted.body.kept);
        QCOMPARE(frame.attackInNextBody, counted.attackInNextBody);
        for (const BoxInFrame& box : frame.attack.boxes) {
            inBoxes -= box.inBody;
        }
        QCOMPARE(inBoxes, 0);
    }
}

void TestBoxReport::times_data()
{
    // `frames`: kinds of boxes and the delay of each
    // `active`: tick+ticks
    columns<QString, QString, int, QVector<int>, QVector<int>>("frames", "active", "recovery",
                                                               "next", "withoutBody");
    using Numbers = QVector<int>;
    QTest::addRow("a blow") << "b4 ab3 b6 b-1"
                            << "4+3" << 6 << Numbers{1, 2, 3, -1} << Numbers{};
    QTest::addRow("two blows") << "b1 ab2 ab3 b4 a5 b6"
                               << "1+5 10+5" << 6 << Numbers{1, 2, 3, 4, 5, 0} << Numbers{4};
    QTest::addRow("it starts again at the loop") << "b1 b2l b3"
                                                 << "" << 0 << Numbers{1, 2, 1} << Numbers{};
    QTest::addRow("frames without time") << "-0 b1 -0 a2 -0"
                                         << "1+2" << 0 << Numbers{-1, 3, -1, 1, -1} << Numbers{3};
    QTest::addRow("a blow that stays") << "a2 a-1 a3"
                                       << "0+-1" << 0 << Numbers{1, -1, -1} << Numbers{0, 1};
    QTest::addRow("it stays at the loop") << "b1 b2 ab3l"
                                          << "3+3" << 0 << Numbers{1, 2, 2} << Numbers{};
    QTest::addRow("one frame") << "-5"
                               << "" << 0 << Numbers{0} << Numbers{0};
    QTest::addRow("one frame for ever") << "b-1"
                                        << "" << 0 << Numbers{-1} << Numbers{};
    QTest::addRow("none") << ""
                          << "" << 0 << Numbers{} << Numbers{};
}

void TestBoxReport::times()
{
    QFETCH(QString, frames);
    QString lines;
    for (const QString& frame : frames.split(' ', Qt::SkipEmptyParts)) {
        lines += frame.contains('a') ? "attack 0,0, 9,9\n" : "";
        lines += frame.contains('b') ? "body 0,0, 5,5\n" : "";
        QString delay = frame.mid(frame[0] == '-' ? 1 : 0);
        delay.remove('a').remove('b');
        lines += "frame 1,1 delay " + delay.replace("l", " loop") + '\n';
    }
    const AnimationBoxReport report = reportOf(lines);
    QStringList active;
    for (const ActiveTime& time : report.active) {
        active.append(QStringLiteral("%1+%2").arg(time.tick).arg(time.ticks));
    }
    QVector<int> next;
    for (const FrameBoxReport& frame : report.frames) {
        next.append(frame.next);
    }
    QTEST(active.join(' '), "active");
    QTEST(report.recovery, "recovery");
    QTEST(next, "next");
    QTEST(report.withoutBody, "withoutBody");
}

// Boxes of which each meets each.
void TestBoxReport::veryMany()
{
    QString lines;
    for (int i = 0; i < 3000; ++i) {
        lines += code({{-i, -i, 2 * i + 1, i + 1}}, i % 2 ? "attack" : "body");
    }
    const FrameBoxReport frame = reportOf(lines + "frame 1,1\n").frames.first();
    QCOMPARE(frame.attack.area, qint64(2 * 2999 + 1) * 3000);
    QCOMPARE(frame.attackInBody, frame.body.area);
    QCOMPARE(frame.attack.boxes.first().inBody, -1);
}

QTEST_MAIN(TestBoxReport)
#include "tst_boxreport.moc"
