#include "animation/edits/alignment.h"

#include <QRandomGenerator>
#include <QtTest>

#include <cmath>
#include <limits>

using namespace Zorv;

namespace {

const unsigned Seed = 1607;
using Wide = long double;  // holds every product of these tests

int plainInt(Wide number)
{
    const Wide most = std::numeric_limits<int>::max();
    return int(qBound(-most - 1, number, most));
}

/// One side of a box as the modes tell it.
void plainSide(int mode, int first, int last, int by, int* left, int* right)
{
    Wide a = first;
    Wide b = last;
    if (mode == 1 || mode == 2) {
        a += mode == 1 ? by : -Wide(by);
    }
    if (mode == 1 || mode == 3) {
        b += by;
    }
    if (mode == 4) {
        a = std::trunc(Wide(by) * first / 100);
        b = a - 1 + std::trunc(Wide(by) * (Wide(last) - first + 1) / 100);
    }
    if (a > b && mode == 2) {
        a = b;
    } else if (a > b) {
        b = a;
    }
    *left = plainInt(a);
    *right = plainInt(b);
}

}  // namespace

class TestAlignment : public QObject
{
    Q_OBJECT

private slots:
    void alignsAsAPlainModel();
};

void TestAlignment::alignsAsAPlainModel()
{
    QRandomGenerator random(Seed);
    const int extremes[] = {std::numeric_limits<int>::min(),
                            std::numeric_limits<int>::max(),
                            0,
                            -1,
                            1,
                            100,
                            32767,
                            -32768};
    const auto number = [&] {
        return random.bounded(4) ? random.bounded(-300, 300) : extremes[random.bounded(8)];
    };
    for (int i = 0; i < 20000; ++i) {
        Alignment alignment{Alignment::Mode(random.bounded(1, 5)), number(), number()};
        if (alignment.mode == Alignment::ScaleBoxes) {
            alignment.x = qAbs(alignment.x / 2);
            alignment.y = qAbs(alignment.y / 2);
        }
        const int numbers[] = {number(), number(), number(), number()};
        QRect box;
        box.setCoords(qMin(numbers[0], numbers[1]), qMin(numbers[2], numbers[3]),
                      qMax(numbers[0], numbers[1]), qMax(numbers[2], numbers[3]));
        int left = 0;
        int right = 0;
        int top = 0;
        int bottom = 0;
        plainSide(alignment.mode, box.left(), box.right(), alignment.x, &left, &right);
        plainSide(alignment.mode, box.top(), box.bottom(), alignment.y, &top, &bottom);
        const QRect result = aligned(box, alignment);
        QCOMPARE(result.left(), left);
        QCOMPARE(result.right(), right);
        QCOMPARE(result.top(), top);
        QCOMPARE(result.bottom(), bottom);
    }
}

QTEST_APPLESS_MAIN(TestAlignment)
#include "tst_alignment.moc"
