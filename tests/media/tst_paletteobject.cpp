#include "media/paletteobject.h"

#include <QColor>
#include <QRandomGenerator>
#include <QTest>

#include <array>
#include <cstring>
#include <functional>

using Zorv::PaletteObject;
using Zorv::RGB;
using Zorv::RGBA;
using Zorv::RGBPaletteEffect;

namespace {

using Entries = std::array<RGBA, 256>;
using Selection = std::array<bool, 256>;

const quint32 Seed = 20260131;
const int Trials = 200;

/// Channels of few levels, so that equal colours and equal distances come up.
RGBA randomColor(QRandomGenerator& random, int step)
{
    const auto channel = [&] { return quint8(random.bounded(256) / step * step); };
    return {channel(), channel(), channel(), channel()};
}

Entries randomEntries(QRandomGenerator& random)
{
    const int steps[] = {1, 64, 128};
    const int step = steps[random.bounded(3)];
    Entries entries;
    for (RGBA& entry : entries) {
        entry = randomColor(random, step);
    }
    return entries;
}

Selection randomSelection(QRandomGenerator& random)
{
    const int every = 1 << random.bounded(10);
    Selection selection;
    for (bool& selected : selection) {
        selected = random.bounded(every) == 0;
    }
    return selection;
}

/// The entries after a change, which has to be told of once before and once after.
Entries changed(const Entries& before, const std::function<void(PaletteObject&)>& change)
{
    RGBA palette[256];
    std::copy(before.begin(), before.end(), palette);
    PaletteObject object(palette);
    QByteArray signalled;
    const auto same = [&] { return std::equal(before.begin(), before.end(), palette); };
    QObject::connect(&object, &PaletteObject::changing,
                     [&] { signalled += same() ? "changing " : "late "; });
    QObject::connect(&object, &PaletteObject::changed, [&] { signalled += "changed"; });
    change(object);
    const bool isTold = signalled == "changing changed";
    Entries after{};
    if (isTold) {
        std::copy(palette, palette + 256, after.begin());
    }
    return after;
}

int distance(RGBA x, RGBA y)
{
    return (x.r - y.r) * (x.r - y.r) + (x.g - y.g) * (x.g - y.g) + (x.b - y.b) * (x.b - y.b);
}

/// Entry `i` of a run of `count`.
RGBA runColor(RGBA from, RGBA to, int i, int count)
{
    const int parts = i == 0 ? count : count - 1;
    const auto channel = [&](int x, int y) { return quint8(x + i * (y - x) / parts); };
    return {channel(from.r, to.r), channel(from.g, to.g), channel(from.b, to.b),
            channel(from.a, to.a)};
}

QByteArray text(const Entries& entries)
{
    return QByteArray(reinterpret_cast<const char*>(entries.data()), sizeof entries).toHex(' ');
}

}  // namespace

class tst_PaletteObject : public QObject
{
    Q_OBJECT

private slots:
    void index();
    void indexByAlpha_data();
    void indexByAlpha();
    void setColor();
    void gradientByRange_data();
    void gradientByRange();
    void gradientBySelection();
    void clearDuplicated();
    void addColors();
    void effects_data();
    void effects();
    void switchColors();
    void sortByTones();
    void addHueSaturation_data();
    void addHueSaturation();
    void addRGB();
};

/// Without alpha in play: the first of the nearest.
void tst_PaletteObject::index()
{
    QRandomGenerator random(Seed);
    for (int trial = 0; trial < Trials; ++trial) {
        Entries entries = randomEntries(random);
        for (RGBA& entry : entries) {
            entry.a = 200;
        }
        RGBA color = randomColor(random, 1);
        color.a = 200;
        RGBA palette[256];
        std::copy(entries.begin(), entries.end(), palette);
        const auto nearest =
            std::min_element(entries.begin(), entries.end(), [color](RGBA x, RGBA y) {
                return distance(x, color) < distance(y, color);
            });
        QCOMPARE(int(PaletteObject(palette).index(color)), int(nearest - entries.begin()));
    }
}

void tst_PaletteObject::indexByAlpha_data()
{
    QTest::addColumn<QVector<int>>("alphas");
    QTest::addColumn<int>("index");
    // The colour looked for has an alpha of 100.
    QTest::newRow("nearest from above") << QVector<int>{200, 150, 120, 130} << 2;
    QTest::newRow("one below takes all") << QVector<int>{150, 90} << 1;
    QTest::newRow("one above takes from one below") << QVector<int>{90, 150} << 1;
    QTest::newRow("the last one below") << QVector<int>{90, 80, 95} << 2;
    QTest::newRow("the first equal one") << QVector<int>{120, 100, 100} << 1;
    QTest::newRow("far above takes from just below") << QVector<int>{99, 255, 101} << 2;
}

void tst_PaletteObject::indexByAlpha()
{
    QFETCH(const QVector<int>, alphas);
    RGBA palette[256];
    std::fill(std::begin(palette), std::end(palette), RGBA{255, 255, 255, 100});
    for (int i = 0; i < alphas.size(); ++i) {
        palette[i] = {10, 20, 30, quint8(alphas[i])};
    }
    QTEST(int(PaletteObject(palette).index({10, 20, 30, 100})), "index");
}

void tst_PaletteObject::setColor()
{
    QRandomGenerator random(Seed);
    const Entries before = randomEntries(random);
    const RGBA color{1, 2, 3, 4};
    Entries expected = before;
    expected[7] = color;
    QCOMPARE(text(changed(before, [=](auto& object) { object.setColor(quint8(7), color); })),
             text(expected));
    expected.fill(color);
    QCOMPARE(text(changed(before, [=](auto& object) { object.setColor(nullptr, color); })),
             text(expected));
}

void tst_PaletteObject::gradientByRange_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::newRow("whole") << 0 << 255;
    QTest::newRow("in the middle, written at the front") << 100 << 110;
    QTest::newRow("one entry") << 7 << 8;
    QTest::newRow("none") << 8 << 8;
    QTest::newRow("backwards") << 9 << 8;
}

void tst_PaletteObject::gradientByRange()
{
    QFETCH(const int, first);
    QFETCH(const int, last);
    QRandomGenerator random(Seed);
    const Entries before = randomEntries(random);
    const RGBA from{10, 250, 3, 255};
    const RGBA to{200, 5, 4, 0};
    Entries expected = before;
    for (int i = 0; i < last - first; ++i) {
        expected[size_t(i)] = runColor(from, to, i, last - first);
    }
    QCOMPARE(
        text(changed(
            before, [=](auto& object) { object.gradient(quint8(first), from, quint8(last), to); })),
        text(expected));
}

void tst_PaletteObject::gradientBySelection()
{
    QRandomGenerator random(Seed);
    for (int trial = 0; trial < Trials; ++trial) {
        const Entries before = randomEntries(random);
        const Selection selection = randomSelection(random);
        const bool isAll = trial == 0;
        const RGBA from = randomColor(random, 1);
        const RGBA to = randomColor(random, 1);
        Entries expected = before;
        const int count = isAll ? 256 : int(std::count(selection.begin(), selection.end(), true));
        for (size_t i = 0, step = 0; i < 256; ++i) {
            if (isAll || selection[i]) {
                expected[i] = runColor(from, to, int(step++), count);
            }
        }
        QCOMPARE(text(changed(before,
                              [&](auto& object) {
                                  object.gradient(isAll ? nullptr : selection.data(), from, to);
                              })),
                 text(expected));
    }
}

/// Of each colour the last stays, unless the replacement makes new equals.
void tst_PaletteObject::clearDuplicated()
{
    QRandomGenerator random(Seed);
    Entries before = randomEntries(random);
    for (size_t i = 0; i < before.size(); ++i) {
        before[i] = {quint8(i % 100), 0, 0, 255};
    }
    Entries expected = before;
    for (size_t i = 1; i < 156; ++i) {
        expected[i] = {9, 9, 9, 255};
    }
    QCOMPARE(text(changed(before,
                          [](auto& object) {
                              object.clearDuplicated({9, 9, 9});
                          })),
             text(expected));

    // A replaced entry counts as what it has become: entry 2 becomes 9, and 4 finds it.
    before.fill({0, 0, 0, 0});
    for (size_t i = 0; i < before.size(); ++i) {
        before[i] = {quint8(i), 1, 1, 255};
    }
    before[2] = before[3];
    before[4] = {9, 9, 9, 255};
    expected = before;
    expected[2] = {9, 9, 9, 255};
    QCOMPARE(text(changed(before,
                          [](auto& object) {
                              object.clearDuplicated({9, 9, 9});
                          })),
             text(expected));
}

void tst_PaletteObject::addColors()
{
    QRandomGenerator random(Seed);
    for (int trial = 0; trial < Trials; ++trial) {
        const Entries before = randomEntries(random);
        const Entries colors = randomEntries(random);
        Entries expected = before;
        int end = 255;
        for (const RGBA color : colors) {
            if (std::count(expected.begin(), expected.end(), color) == 0) {
                expected[size_t(end--)] = color;
            }
        }
        QCOMPARE(text(changed(before, [&](auto& object) { object.addColors(colors.data()); })),
                 text(expected));
    }
}

void tst_PaletteObject::effects_data()
{
    QTest::addColumn<int>("effect");
    QTest::addColumn<QVector<int>>("dark");    ///< of 30, 60, 100
    QTest::addColumn<QVector<int>>("bright");  ///< of 250, 200, 120
    const auto row = [](const char* name, int effect, const QVector<int>& dark,
                        const QVector<int>& bright) {
        QTest::newRow(name) << effect << dark << bright;
    };
    row("nothing", 0, {30, 60, 100}, {250, 200, 120});
    row("red and blue", 1, {100, 60, 30}, {120, 200, 250});
    row("green and blue", 2, {30, 100, 60}, {250, 120, 200});
    row("red and green", 3, {60, 30, 100}, {200, 250, 120});
    row("blue and green", 4, {30, 100, 60}, {250, 120, 200});
    row("green and red", 5, {60, 30, 100}, {200, 250, 120});
    row("blue and red", 6, {100, 60, 30}, {120, 200, 250});
    row("lighter", 7, {62, 92, 132}, {255, 232, 152});
    row("darker", 8, {0, 28, 68}, {218, 168, 88});
    row("gray", 9, {63, 63, 63}, {190, 190, 190});
    row("sepia", 10, {163, 31, 0}, {255, 95, 0});
    row("purple", 11, {75, 0, 91}, {107, 0, 155});
    row("contrast", 12, {113, 113, 113}, {140, 140, 140});
    row("much lighter", 13, {158, 188, 228}, {255, 255, 248});
    row("much darker", 14, {0, 0, 0}, {122, 72, 0});
    row("unknown", 99, {30, 60, 100}, {250, 200, 120});
}

void tst_PaletteObject::effects()
{
    QFETCH(const int, effect);
    QFETCH(const QVector<int>, dark);
    QFETCH(const QVector<int>, bright);
    Entries before;
    before.fill({30, 60, 100, 7});
    before[200] = {250, 200, 120, 8};
    Selection selection{};
    selection[1] = selection[200] = true;
    Entries expected = before;
    expected[1] = {quint8(dark[0]), quint8(dark[1]), quint8(dark[2]), 7};
    expected[200] = {quint8(bright[0]), quint8(bright[1]), quint8(bright[2]), 8};
    QCOMPARE(text(changed(before,
                          [&](auto& object) {
                              object.applyEffect(RGBPaletteEffect(effect), selection.data());
                          })),
             text(expected));
}

void tst_PaletteObject::switchColors()
{
    QRandomGenerator random(Seed);
    for (int trial = 0; trial < Trials; ++trial) {
        const Entries before = randomEntries(random);
        const Selection selection = randomSelection(random);
        const bool isAll = trial == 0;
        const bool alpha = trial % 2 == 1;
        Entries expected = before;
        for (int low = 0, high = 255; low < high;) {
            if (!isAll && !selection[size_t(low)]) {
                ++low;
            } else if (!isAll && !selection[size_t(high)]) {
                --high;
            } else {
                std::swap(expected[size_t(low++)], expected[size_t(high--)]);
            }
        }
        if (alpha) {
            std::swap(expected[0].a, expected[255].a);
        }
        QCOMPARE(text(changed(before,
                              [&](auto& object) {
                                  object.switchColors(isAll ? nullptr : selection.data(), alpha);
                              })),
                 text(expected));
    }
}

void tst_PaletteObject::sortByTones()
{
    QRandomGenerator random(Seed);
    for (int trial = 0; trial < Trials; ++trial) {
        const Entries before = randomEntries(random);
        Entries expected = before;
        for (size_t i = 1; i < 255; ++i) {
            size_t best = i;
            for (size_t j = 255; j > i; --j) {
                const int step = distance(expected[j], expected[i - 1]);
                const int least = distance(expected[best], expected[i - 1]);
                if (step < least || (step == least && best > j)) {
                    best = j;
                }
            }
            std::swap(expected[i], expected[best]);
        }
        QCOMPARE(text(changed(before, [](auto& object) { object.sortByTones(); })), text(expected));
    }
}

void tst_PaletteObject::addHueSaturation_data()
{
    QTest::addColumn<QColor>("before");
    QTest::addColumn<int>("hue");
    QTest::addColumn<int>("saturation");
    QTest::addColumn<QColor>("after");
    // A full red, green or blue has a lightness of 128, which is a little more than a half.
    QTest::newRow("red to green") << QColor(255, 0, 0) << 120 << 0 << QColor(1, 255, 1);
    QTest::newRow("hue ends at 359") << QColor(0, 0, 255) << 30000 << 0 << QColor(255, 1, 5);
    QTest::newRow("hue begins at 0") << QColor(0, 0, 255) << -30000 << 0 << QColor(255, 1, 1);
    QTest::newRow("no saturation left") << QColor(255, 0, 0) << 0 << -300 << QColor(128, 128, 128);
    QTest::newRow("gray to red") << QColor(128, 128, 128) << 0 << 30000 << QColor(255, 1, 1);
}

void tst_PaletteObject::addHueSaturation()
{
    QFETCH(const QColor, before);
    QFETCH(const int, hue);
    QFETCH(const int, saturation);
    Entries entries{};
    entries[3] = {quint8(before.red()), quint8(before.green()), quint8(before.blue()), 9};
    Selection selection{};
    selection[3] = true;
    const Entries after = changed(entries, [&](auto& object) {
        object.addHueSaturation(selection.data(), short(hue), short(saturation));
    });
    QTEST(QColor(after[3].r, after[3].g, after[3].b, after[3].a), "after");
    QCOMPARE(int(after[4].a), 0);
}

void tst_PaletteObject::addRGB()
{
    Entries before{};
    before[0] = {100, 100, 100, 5};
    before[9] = {250, 3, 7, 6};
    Entries expected;
    expected.fill({30, 0, 1, 0});
    expected[0] = {130, 0, 101, 5};
    expected[9] = {255, 0, 8, 6};
    QCOMPARE(text(changed(before, [](auto& object) { object.addRGB(nullptr, 30, -3000, 1); })),
             text(expected));
}

QTEST_GUILESS_MAIN(tst_PaletteObject)

#include "tst_paletteobject.moc"
