#include "media/paletteobject.h"
#include "support/testtable.h"

#include <QColor>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <array>
#include <functional>

using Zorv::PaletteObject;
using Zorv::RGBA;
using Zorv::RGBPaletteEffect;

namespace {

using Entries = std::array<RGBA, 256>;

const quint32 Seed = 20260131;

/// What an operation is called with.
struct Input
{
    std::array<bool, 256> flags;
    bool isAll;
    RGBA from, to;
    int first, last;
    Entries others;

    const bool* selection() const { return isAll ? nullptr : flags.data(); }
    QVector<int> selected() const
    {
        QVector<int> places;
        for (int i = 0; i < 256; ++i) {
            if (isAll || flags[size_t(i)]) {
                places.append(i);
            }
        }
        return places;
    }
};

using Operation = std::function<void(PaletteObject&, const Input&)>;
using Model = std::function<void(Entries&, const Input&)>;

/// Channels of few levels, so that equal colours and equal distances come up.
RGBA randomColor(QRandomGenerator& random, int step)
{
    const auto channel = [&] { return quint8(random.bounded(256) / step * step); };
    return {channel(), channel(), channel(), channel()};
}

Entries randomEntries(QRandomGenerator& random)
{
    const int step = 1 << (random.bounded(3) * 3);
    Entries entries;
    std::generate(entries.begin(), entries.end(), [&] { return randomColor(random, step); });
    return entries;
}

Input randomInput(QRandomGenerator& random)
{
    Input input;
    const int every = 1 << random.bounded(10);
    std::generate(input.flags.begin(), input.flags.end(),
                  [&] { return random.bounded(every) == 0; });
    input.isAll = random.bounded(8) == 0;
    input.from = randomColor(random, 1);
    input.to = randomColor(random, 1);
    input.first = random.bounded(256);
    input.last = random.bounded(256);
    input.others = randomEntries(random);
    return input;
}

/// The entries after a change, which has to be told of once before and once after; else nothing.
QByteArray changed(const Entries& before, const std::function<void(PaletteObject&)>& change)
{
    RGBA palette[256];
    std::copy(before.begin(), before.end(), palette);
    PaletteObject object(palette);
    QByteArray signalled;
    QObject::connect(&object, &PaletteObject::changing, [&] {
        signalled += std::equal(before.begin(), before.end(), palette) ? "changing " : "late ";
    });
    QObject::connect(&object, &PaletteObject::changed, [&] { signalled += "changed"; });
    change(object);
    const QByteArray after(reinterpret_cast<const char*>(palette), sizeof palette);
    return signalled == "changing changed" ? after.toHex(' ') : signalled;
}

QByteArray text(const Entries& entries)
{
    return QByteArray(reinterpret_cast<const char*>(entries.data()), sizeof entries).toHex(' ');
}

int distance(RGBA x, RGBA y)
{
    return (x.r - y.r) * (x.r - y.r) + (x.g - y.g) * (x.g - y.g) + (x.b - y.b) * (x.b - y.b);
}

/// Entry `i` of a run of `count`.
RGBA runColor(const Input& input, int i, int count)
{
    const int parts = i == 0 ? count : count - 1;
    const auto channel = [&](int x, int y) { return quint8(x + i * (y - x) / parts); };
    return {channel(input.from.r, input.to.r), channel(input.from.g, input.to.g),
            channel(input.from.b, input.to.b), channel(input.from.a, input.to.a)};
}

void clearDuplicated(Entries& entries, const Input& input)
{
    for (auto entry = entries.begin() + 1; entry != entries.end(); ++entry) {
        const auto before =
            std::find(std::make_reverse_iterator(entry), entries.rend() - 1, *entry);
        if (before != entries.rend() - 1) {
            *before = {input.from.r, input.from.g, input.from.b, 255};
        }
    }
}

void sortByTones(Entries& entries, const Input&)
{
    for (size_t i = 1; i < 255; ++i) {
        size_t best = 255;
        for (size_t j = 255; j >= i; --j) {
            if (distance(entries[j], entries[i - 1]) <= distance(entries[best], entries[i - 1])) {
                best = j;
            }
        }
        std::swap(entries[i], entries[best]);
    }
}

void addColors(Entries& entries, const Input& input)
{
    int end = 255;
    for (const RGBA color : input.others) {
        if (std::count(entries.begin(), entries.end(), color) == 0) {
            entries[size_t(end--)] = color;
        }
    }
}

}  // namespace

Q_DECLARE_METATYPE(Operation)
Q_DECLARE_METATYPE(Model)

class TestPaletteObject : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qInfo("seed %u", Seed); }
    void models_data();
    void models();
    void index_data();
    void index();
    void effects_data();
    void effects();
    void addHueSaturation_data();
    void addHueSaturation();
};

void TestPaletteObject::models_data()
{
    columns<Operation, Model>("operation", "model");
    const auto row = [](const char* name, const Operation& operation, const Model& model) {
        QTest::newRow(name) << operation << model;
    };
    row(
        "gradient of a range, written from entry 0",
        [](auto& o, auto& in) { o.gradient(quint8(in.first), in.from, quint8(in.last), in.to); },
        [](auto& entries, auto& in) {
            for (int i = 0; i < in.last - in.first; ++i) {
                entries[size_t(i)] = runColor(in, i, in.last - in.first);
            }
        });
    row(
        "gradient of a selection",
        [](auto& o, auto& in) { o.gradient(in.selection(), in.from, in.to); },
        [](auto& entries, auto& in) {
            for (const int i : in.selected()) {
                const int step = in.selected().indexOf(i);
                entries[size_t(i)] = runColor(in, step, in.selected().size());
            }
        });
    row(
        "switchColors", [](auto& o, auto& in) { o.switchColors(in.selection(), in.first % 2); },
        [](auto& entries, auto& in) {
            QVector<int> left = in.selected();
            while (left.size() > 1) {
                std::swap(entries[size_t(left.takeFirst())], entries[size_t(left.takeLast())]);
            }
            if (in.first % 2) {
                std::swap(entries[0].a, entries[255].a);
            }
        });
    row(
        "addRGB", [](auto& o, auto& in) { o.addRGB(in.selection(), 30, -32768, short(in.first)); },
        [](auto& entries, auto& in) {
            for (const int i : in.selected()) {
                RGBA& entry = entries[size_t(i)];
                entry = {quint8(qMin(255, entry.r + 30)), 0, quint8(qMin(255, entry.b + in.first)),
                         entry.a};
            }
        });
    row(
        "clearDuplicated",
        [](auto& o, auto& in) {
            o.clearDuplicated({in.from.r, in.from.g, in.from.b});
        },
        clearDuplicated);
    row(
        "addColors", [](auto& o, auto& in) { o.addColors(in.others.data()); }, addColors);
    row(
        "sortByTones", [](auto& o, auto&) { o.sortByTones(); }, sortByTones);
}

void TestPaletteObject::models()
{
    QFETCH(const Operation, operation);
    QFETCH(const Model, model);
    QRandomGenerator random(Seed);
    for (int trial = 0; trial < 100; ++trial) {
        const Entries before = randomEntries(random);
        const Input input = randomInput(random);
        Entries expected = before;
        model(expected, input);
        QCOMPARE(changed(before, [&](auto& object) { operation(object, input); }), text(expected));
    }
}

void TestPaletteObject::index_data()
{
    // `alphas`: /< of entries as near, for an alpha of 100
    columns<QVector<int>, int>("alphas", "expected");
    QTest::newRow("nearest from above") << QVector<int>{200, 150, 120, 130} << 3;
    QTest::newRow("one below takes all") << QVector<int>{150, 90} << 2;
    QTest::newRow("one above takes from one below") << QVector<int>{90, 150} << 2;
    QTest::newRow("the last one below") << QVector<int>{90, 80, 95} << 3;
    QTest::newRow("the first equal one") << QVector<int>{120, 100, 100} << 2;
    QTest::newRow("far above takes from just below") << QVector<int>{99, 255, 101} << 3;
}

void TestPaletteObject::index()
{
    QFETCH(const QVector<int>, alphas);
    RGBA palette[256];
    std::fill(std::begin(palette), std::end(palette), RGBA{12, 20, 30, 100});
    for (int i = 0; i < alphas.size(); ++i) {
        palette[i + 1] = {10, 20, 31, quint8(alphas[i])};
    }
    QTEST(int(PaletteObject(palette).index({10, 20, 30, 100})), "expected");
}

void TestPaletteObject::effects_data()
{
    // `dark`: /< of 30, 60, 100
    // `bright`: /< of 250, 200, 120
    columns<QVector<int>, QVector<int>>("dark", "bright");
    const QVector<int> results[][2] = {
        {{30, 60, 100}, {250, 200, 120}},   {{100, 60, 30}, {120, 200, 250}},
        {{30, 100, 60}, {250, 120, 200}},   {{60, 30, 100}, {200, 250, 120}},
        {{30, 100, 60}, {250, 120, 200}},   {{60, 30, 100}, {200, 250, 120}},
        {{100, 60, 30}, {120, 200, 250}},   {{62, 92, 132}, {255, 232, 152}},
        {{0, 28, 68}, {218, 168, 88}},      {{63, 63, 63}, {190, 190, 190}},
        {{163, 31, 0}, {255, 95, 0}},       {{75, 0, 91}, {107, 0, 155}},
        {{113, 113, 113}, {140, 140, 140}}, {{158, 188, 228}, {255, 255, 248}},
        {{0, 0, 0}, {122, 72, 0}},          {{30, 60, 100}, {250, 200, 120}}};
    int effect = 0;
    for (const auto& result : results) {
        QTest::addRow("%d", effect++) << result[0] << result[1];
    }
}

void TestPaletteObject::effects()
{
    QFETCH(const QVector<int>, dark);
    QFETCH(const QVector<int>, bright);
    const auto effect = RGBPaletteEffect(QByteArray(QTest::currentDataTag()).toInt());
    Entries before;
    before.fill({30, 60, 100, 7});
    before[200] = {250, 200, 120, 8};
    bool selection[256] = {};
    selection[1] = selection[200] = true;
    Entries expected = before;
    expected[1] = {quint8(dark[0]), quint8(dark[1]), quint8(dark[2]), 7};
    expected[200] = {quint8(bright[0]), quint8(bright[1]), quint8(bright[2]), 8};
    QCOMPARE(changed(before, [&](auto& object) { object.applyEffect(effect, selection); }),
             text(expected));
}

void TestPaletteObject::addHueSaturation_data()
{
    columns<QColor, int, int, QColor>("before", "hue", "saturation", "after");
    // A full red, green or blue has a lightness of 128, which is a little more than a half.
    QTest::newRow("red to green") << QColor(255, 0, 0) << 120 << 0 << QColor(1, 255, 1);
    QTest::newRow("hue ends at 359") << QColor(0, 0, 255) << 30000 << 0 << QColor(255, 1, 5);
    QTest::newRow("hue begins at 0") << QColor(0, 0, 255) << -30000 << 0 << QColor(255, 1, 1);
    QTest::newRow("no saturation") << QColor(255, 0, 0) << 0 << -300 << QColor(128, 128, 128);
    QTest::newRow("gray to red") << QColor(128, 128, 128) << 0 << 30000 << QColor(255, 1, 1);
}

void TestPaletteObject::addHueSaturation()
{
    QFETCH(const QColor, before);
    QFETCH(const QColor, after);
    QFETCH(const int, hue);
    QFETCH(const int, saturation);
    bool selection[256] = {};
    selection[3] = true;
    Entries entries{};
    Entries expected{};
    entries[3] = {quint8(before.red()), quint8(before.green()), quint8(before.blue()), 9};
    expected[3] = {quint8(after.red()), quint8(after.green()), quint8(after.blue()), 255};
    QCOMPARE(changed(entries,
                     [&](auto& object) {
                         object.addHueSaturation(selection, short(hue), short(saturation));
                     }),
             text(expected));
}

QTEST_GUILESS_MAIN(TestPaletteObject)

#include "tst_paletteobject.moc"
