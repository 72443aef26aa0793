#include "media/tools/colorblindness.h"
#include "media/tools/colorchanges.h"
#include "media/tools/paletteorder.h"
#include "support/testtable.h"

#include <QColor>
#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>
#include <cmath>

using namespace Zorv;

Q_DECLARE_METATYPE(Zorv::RGBA)
Q_DECLARE_METATYPE(Zorv::OKLab)
Q_DECLARE_METATYPE(Zorv::ColorSpace)

namespace {

constexpr RGBA Black{0, 0, 0, 255};
constexpr RGBA White{255, 255, 255, 255};
constexpr RGBA Red{255, 0, 0, 255};
constexpr RGBA Blue{0, 0, 255, 255};

template <class Work>
void forManyColors(Work work)
{
    for (int r = 0; r < 256; r += 15) {
        for (int g = 0; g < 256; g += 15) {
            for (int b = 0; b < 256; b += 5) {
                work(RGBA{quint8(r), quint8(g), quint8(b), quint8(b)});
            }
        }
    }
}

double hueBetween(double a, double b)
{
    return std::abs(std::remainder(a - b, 360));
}

}  // namespace

class TestPaletteTools : public QObject
{
    Q_OBJECT

private slots:
    void thereAndBack();
    void knownColors_data();
    void knownColors();
    void whatNoScreenShows();
    void hueShiftKeepsLightness();
    void ramps_data();
    void ramps();
    void blindness();
    void sorting_data();
    void sorting();
    void orders();
    void replaces();
};

void TestPaletteTools::thereAndBack()
{
    forManyColors([](RGBA color) {
        QVERIFY(fromHSV(toHSV(color), color.a) == color);
        QVERIFY(fromOKLab(toOKLab(color), color.a) == color);
        QVERIFY(fromOKLCh(toOKLCh(color), color.a) == color);
        const QColor qt = QColor(color.r, color.g, color.b).toHsv();
        const HSV hsv = toHSV(color);
        QVERIFY(std::abs(hsv.s - qt.saturationF()) < 1e-4);
        QVERIFY(qt.hueF() < 0 || hueBetween(hsv.h, qt.hueF() * 360) < 0.02);
    });
    for (int i = 0; i < 256; ++i) {
        QCOMPARE(int(encodedLight(linearLight(quint8(i)))), i);
    }
}

// The values that the author of OKLab gives for these colours.
void TestPaletteTools::knownColors_data()
{
    columns<RGBA, OKLab>("color", "lab");
    row("white", White, OKLab{1, 0, 0});
    row("red", Red, OKLab{0.627955, 0.224863, 0.125846});
    row("green", RGBA{0, 255, 0, 255}, OKLab{0.866440, -0.233888, 0.179498});
    row("blue", Blue, OKLab{0.452014, -0.032457, -0.311528});
    row("grey", RGBA{128, 128, 128, 255}, OKLab{0.599871, 0, 0});
}

void TestPaletteTools::knownColors()
{
    const auto [color, lab] = fetched<RGBA, OKLab>();
    const OKLab made = toOKLab(color);
    QVERIFY(std::abs(made.l - lab.l) < 1e-5);
    QVERIFY(std::abs(made.a - lab.a) < 1e-5);
    QVERIFY(std::abs(made.b - lab.b) < 1e-5);
}

void TestPaletteTools::whatNoScreenShows()
{
    for (double l = 0.25; l < 1; l += 0.05) {
        for (double h = 0; h < 360; h += 7) {
            const OKLCh most = toOKLCh(fromOKLCh({l, 2, h}));
            QVERIFY2(std::abs(most.l - l) < 0.005, qPrintable(QString::number(most.l - l)));
            QVERIFY(most.c < 0.33);
            QVERIFY(most.c < 0.03 || hueBetween(most.h, h) < 6);
            // Some channel is at its end: no chroma was given away.
            const RGBA color = fromOKLCh({l, 2, h});
            QVERIFY(std::min({color.r, color.g, color.b}) <= 1 ||
                    std::max({color.r, color.g, color.b}) == 255);
        }
    }
    QVERIFY(fromOKLab({std::nan(""), HUGE_VAL, 0}) == Black);
    QVERIFY(fromOKLCh({7, 1, -HUGE_VAL}) == White);
    QVERIFY(fromHSV({-120, 3, 9}) == Blue);
}

void TestPaletteTools::hueShiftKeepsLightness()
{
    forManyColors([](RGBA color) {
        const OKLCh from = toOKLCh(color);
        for (const double degrees : {-100.0, 40.0, 180.0, 777.0}) {
            const RGBA shifted = shiftHue(color, degrees);
            const OKLCh to = toOKLCh(shifted);
            QCOMPARE(shifted.a, color.a);
            // Below, a step of one byte is larger than that.
            QVERIFY(from.l < 0.25 || std::abs(from.l - to.l) < 0.005);
            QVERIFY(to.c < from.c + 0.02);
            QVERIFY(to.c < 0.05 || to.l < 0.25 || hueBetween(from.h + degrees, to.h) < 4);
        }
        QVERIFY(shiftHue(color, 360) == color);
    });
}

void TestPaletteTools::ramps_data()
{
    columns<ColorSpace, RGBA, RGBA, int, RGBA>("space", "from", "to", "count", "middle");
    const auto rgb = ColorSpace::RGB;
    const auto hsv = ColorSpace::HSV;
    const auto lab = ColorSpace::OKLab;
    row("bytes", rgb, RGBA{0, 10, 250, 0}, RGBA{100, 30, 50, 100}, 5, RGBA{50, 20, 150, 50});
    row("shorter way over red", hsv, RGBA{255, 0, 85, 255}, RGBA{255, 85, 0, 255}, 3, Red);
    row("to black", hsv, Red, Black, 3, RGBA{128, 0, 0, 255});
    row("from black", hsv, Black, Red, 3, RGBA{128, 0, 0, 255});
    row("to white", hsv, Blue, White, 3, RGBA{128, 128, 255, 255});
    row("greys", lab, Black, White, 3, RGBA{99, 99, 99, 255});
    row("over the middle", lab, Blue, RGBA{255, 255, 0, 255}, 3,
        fromOKLab({0.7102, -0.0518, -0.0565}));
}

void TestPaletteTools::ramps()
{
    const auto [space, from, to, count, middle] = fetched<ColorSpace, RGBA, RGBA, int, RGBA>();
    const QVector<RGBA> ramp = rampBetween(from, to, count, space);
    QCOMPARE(ramp.size(), count);
    QVERIFY(ramp.first() == from && ramp.last() == to);
    const RGBA made = ramp[count / 2];
    for (const int difference :
         {made.r - middle.r, made.g - middle.g, made.b - middle.b, made.a - middle.a}) {
        QVERIFY2(std::abs(difference) <= 1, qPrintable(QString::number(difference)));
    }
    QVector<RGBA> back = rampBetween(to, from, count, space);
    std::reverse(back.begin(), back.end());
    for (int i = 0; i < count; ++i) {
        QVERIFY(std::abs(back[i].r - ramp[i].r) <= 1 && std::abs(back[i].b - ramp[i].b) <= 1);
    }
    QVERIFY(rampBetween(from, to, 1, space) == QVector<RGBA>{from});
    QVERIFY(rampBetween(from, to, -1, space).isEmpty());
}

void TestPaletteTools::blindness()
{
    const auto distance = [](RGBA x, RGBA y) {
        const OKLab a = toOKLab(x);
        const OKLab b = toOKLab(y);
        return std::hypot(a.l - b.l, std::hypot(a.a - b.a, a.b - b.b));
    };
    const RGBA red{200, 60, 60, 7};
    const RGBA green{120, 120, 40, 7};
    const RGBA blue{40, 120, 200, 7};
    const RGBA teal{20, 140, 140, 7};
    for (const auto kind :
         {ColorBlindness::Protanopia, ColorBlindness::Deuteranopia, ColorBlindness::Tritanopia}) {
        for (int i = 0; i < 256; ++i) {
            const RGBA grey{quint8(i), quint8(i), quint8(i), 9};
            QVERIFY(seenWith(kind, grey) == grey);
        }
        // Each loses the one difference, and keeps the other.
        const bool isBlue = kind == ColorBlindness::Tritanopia;
        const double reds = distance(seenWith(kind, red), seenWith(kind, green));
        const double blues = distance(seenWith(kind, blue), seenWith(kind, teal));
        QVERIFY(isBlue == (reds > 0.8 * distance(red, green)));
        QVERIFY(isBlue == (blues < 0.5 * distance(blue, teal)));
    }
    // A red light is dark without the cones for it, and is not without the next ones.
    const auto lightness = [&](ColorBlindness kind) { return toOKLab(seenWith(kind, Red)).l; };
    QVERIFY(lightness(ColorBlindness::Protanopia) + 0.1 < lightness(ColorBlindness::Deuteranopia));
}

void TestPaletteTools::sorting_data()
{
    columns<int>("key");
    for (int key = int(PaletteKey::Hue); key <= int(PaletteKey::Alpha); ++key) {
        row(QByteArray::number(key).constData(), key);
    }
}

void TestPaletteTools::sorting()
{
    const auto [key] = fetched<int>();
    const auto measure = [index = key](RGBA color) {
        const OKLCh look = toOKLCh(color);
        const double hue = look.c < 0.02 ? -9 : std::floor(look.h / 15) + look.l / 2;
        return std::array<double, 7>{hue,           look.l,        look.c,       1.0 * color.r,
                                     1.0 * color.g, 1.0 * color.b, 1.0 * color.a}[size_t(index)];
    };
    QRandomGenerator random(5);
    for (int flags = 0; flags < 8; ++flags) {
        const PaletteSorting sorting(flags);
        std::array<RGBA, 256> palette;
        bool selection[256];
        for (size_t i = 0; i < 256; ++i) {
            const quint32 bits = random.generate();
            palette[i] = {quint8(bits & 0xC0), quint8(bits >> 8), quint8(bits >> 16),
                          quint8(bits >> 24 & 3 ? 255 : 0)};
            selection[i] = i % 5 != 3;
        }
        const PaletteOrder order = sortedOrder(palette.data(), PaletteKey(key), sorting, selection);
        QVERIFY(isOrder(order));
        std::array<RGBA, 256> sorted = palette;
        reorder(sorted.data(), order);
        size_t last = 256;
        for (size_t i = 0; i < 256; ++i) {
            const bool moves = selection[i] && (i > 0 || sorting & PaletteSort::MovesFirst) &&
                               (palette[i].a > 0 || sorting & PaletteSort::MovesTransparent);
            QVERIFY(moves || order[i] == i);
            if (moves && last < 256) {
                const double a = measure(sorted[last]);
                const double b = measure(sorted[i]);
                QVERIFY(sorting & PaletteSort::Descending ? a >= b : a <= b);
                QVERIFY(sorted[last] != sorted[i] || order[last] < order[i]);
            }
            last = moves ? i : last;
        }
    }
}

void TestPaletteTools::orders()
{
    QVERIFY(!isOrder(PaletteOrder{}));
    QRandomGenerator random(8);
    for (int round = 0; round < 200; ++round) {
        const quint8 from = quint8(random.bounded(256));
        const quint8 to = quint8(random.bounded(256));
        QVector<quint8> model;
        for (int i = 0; i < 256; ++i) {
            model.append(quint8(i));
        }
        model.move(from, to);
        const PaletteOrder order = movedOrder(from, to);
        QVERIFY(std::equal(order.begin(), order.end(), model.begin()));
        QVERIFY(inverse(order) == movedOrder(to, from));
    }
}

void TestPaletteTools::replaces()
{
    RGBA palette[256] = {};
    palette[3] = palette[9] = Red;
    palette[4] = {255, 0, 0, 0};
    bool selection[256] = {};
    selection[9] = true;
    QCOMPARE(replaceColor(palette, Red, Blue, selection), 1);
    QVERIFY(palette[3] == Red && palette[9] == Blue);
    QCOMPARE(replaceColor(palette, Red, Blue), 1);
    QVERIFY(palette[3] == Blue && palette[4] == (RGBA{255, 0, 0, 0}));
}

QTEST_GUILESS_MAIN(TestPaletteTools)
#include "tst_palettetools.moc"
