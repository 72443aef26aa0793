#include "media/tools/colorquantizer.h"
#include "support/testtable.h"

#include <QImage>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <array>
#include <vector>

#include <malloc.h>

using Zorv::ColorQuantizer;
using Zorv::RGBA;

namespace {

const quint32 Seed = 20260207;

QRgb toRgb(RGBA color)
{
    return qRgba(color.r, color.g, color.b, color.a);
}

int squaredDistance(QRgb x, QRgb y)
{
    int sum = 0;
    for (int shift = 0; shift < 32; shift += 8) {
        const int difference = int(x >> shift & 255) - int(y >> shift & 255);
        sum += difference * difference;
    }
    return sum;
}

/// All transparent pixels look alike.
QRgb seen(QRgb color)
{
    return qAlpha(color) == 0 ? 0 : color;
}

QRgb randomColor(QRandomGenerator& random)
{
    const quint32 alphas[] = {random.generate(), 0, ~0U, ~0U};
    return (random.generate() & 0x00FFFFFF) | (alphas[random.bounded(4)] & 0xFF000000);
}

QImage imageOf(const QVector<QRgb>& colors, int size, QRandomGenerator& random)
{
    QImage image(size, size, QImage::Format_ARGB32);
    for (int i = 0; i < size * size; ++i) {
        const QRgb color = i < colors.size() ? colors[i] : colors[random.bounded(colors.size())];
        image.setPixel(i % size, i / size, color);
    }
    return image;
}

/// Shades with grain, and a soft edge to a transparent ground.
QImage picture(int size, bool hasAlpha)
{
    QRandomGenerator random(Seed);
    QImage image(size, size, hasAlpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const int alpha = hasAlpha ? qBound(0, (x + y - size / 2) * 16, 255) : 255;
            image.setPixel(x, y,
                           qRgba(qMin(255, x * 255 / size + random.bounded(12)),
                                 qMin(255, y * 255 / size + random.bounded(12)),
                                 (x ^ y) * 200 / size, alpha));
        }
    }
    return image;
}

double meanSquaredError(const QImage& image, const QImage& other)
{
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            sum += squaredDistance(seen(image.pixel(x, y)), seen(other.pixel(x, y)));
        }
    }
    return sum / (4.0 * image.width() * image.height());
}

/// The entry that a pixel is to take, by looking at all of them.
int plainNearest(QRgb color, const QVector<RGBA>& palette)
{
    const auto cost = [color](RGBA entry) {
        return qAlpha(color) == 0 ? int(entry.a) : squaredDistance(color, toRgb(entry));
    };
    const auto nearest = std::min_element(palette.begin(), palette.end(),
                                          [&cost](RGBA x, RGBA y) { return cost(x) < cost(y); });
    return int(nearest - palette.begin());
}

/// Some steps of plain k-means over all pixels, from colours to those that stand better.
QVector<RGBA> improved(const QImage& image, QVector<RGBA> palette, int steps)
{
    for (int step = 0; step < steps; ++step) {
        std::vector<std::array<double, 5>> sums(size_t(palette.size()));
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QRgb color = seen(image.pixel(x, y));
                auto& sum = sums[size_t(plainNearest(color, palette))];
                for (size_t i = 0; i < 4; ++i) {
                    sum[i] += color >> 8 * i & 255;
                }
                ++sum[4];
            }
        }
        for (int i = 0; i < palette.size(); ++i) {
            const auto& sum = sums[size_t(i)];
            const auto mean = [&sum](size_t part) { return quint8(qRound(sum[part] / sum[4])); };
            if (sum[4] > 0) {
                palette[i] = {mean(2), mean(1), mean(0), mean(3)};
            }
        }
    }
    return palette;
}

}  // namespace

class TestColorQuantizer : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qInfo("seed %u", Seed); }
    void fewColorsAreExact();
    void nearestOfAll_data();
    void nearestOfAll();
    void errorIsNearALocalBest_data();
    void errorIsNearALocalBest();
    void indexedImages();
    void allForms();
    void weights();
    void transparentPixels();
    void memoryIsBounded();
    void nothing();
};

void TestColorQuantizer::fewColorsAreExact()
{
    QRandomGenerator random(Seed);
    for (const int count : {1, 2, 3, 16, 100, 255, 256}) {
        QVector<QRgb> colors;
        while (colors.size() < count) {
            const QRgb color = seen(randomColor(random));
            if (!colors.contains(color)) {
                colors.append(color);
            }
        }
        const QImage image = imageOf(colors, 40, random);
        const QImage result = ColorQuantizer::quantize(image, count);
        QCOMPARE(result.format(), QImage::Format_Indexed8);
        QCOMPARE(result.colorCount(), count);
        QCOMPARE(result.convertToFormat(QImage::Format_ARGB32), image);
        if (colors.contains(0)) {
            QCOMPARE(result.color(0), QRgb(0));
        }
    }
}

void TestColorQuantizer::nearestOfAll_data()
{
    // `mask`: /< of the channels' bits that differ
    columns<int, quint32>("count", "mask");
    QTest::newRow("one") << 1 << ~0U;
    QTest::newRow("two") << 2 << ~0U;
    QTest::newRow("all over") << 256 << ~0U;
    QTest::newRow("opaque") << 256 << 0x00FFFFFFU;
    QTest::newRow("all in one corner") << 256 << 0x07070707U;
    QTest::newRow("many equal ones") << 256 << 0xC0404040U;
    QTest::newRow("gray steps, with ties") << 256 << 0x00101010U;
}

void TestColorQuantizer::nearestOfAll()
{
    QFETCH(const int, count);
    QFETCH(const quint32, mask);
    QRandomGenerator random(Seed);
    const quint32 base = mask >> 24 ? 0 : 0xFF000000;
    QVector<RGBA> palette;
    for (int i = 0; i < count; ++i) {
        const QRgb color = (random.generate() & mask) | base;
        palette.append({quint8(qRed(color)), quint8(qGreen(color)), quint8(qBlue(color)),
                        quint8(qAlpha(color))});
    }
    QVector<QRgb> colors;
    for (int i = 0; i < 90 * 90; ++i) {
        // Half of them are near the palette, where the cells are full.
        colors.append(i % 2 ? randomColor(random) : (random.generate() & mask) | base);
    }
    const QImage result = ColorQuantizer::adapt(imageOf(colors, 90, random), palette);
    QCOMPARE(result.colorCount(), count);
    for (int i = 0; i < colors.size(); ++i) {
        QCOMPARE(result.pixelIndex(i % 90, i / 90), plainNearest(colors[i], palette));
    }
}

void TestColorQuantizer::errorIsNearALocalBest_data()
{
    columns<bool, int>("hasAlpha", "count");
    for (const bool hasAlpha : {false, true}) {
        for (const int count : {2, 5, 32, 256}) {
            QTest::addRow("%d colours%s", count, hasAlpha ? ", alpha" : "") << hasAlpha << count;
        }
    }
}

/// Plain k-means, which takes a hundred times as long, may not find much left to improve.
void TestColorQuantizer::errorIsNearALocalBest()
{
    QFETCH(const bool, hasAlpha);
    QFETCH(const int, count);
    const QImage image = picture(96, hasAlpha);
    ColorQuantizer quantizer;
    quantizer.addImage(image);
    const QVector<RGBA> palette = quantizer.palette(count);
    QVERIFY(palette.size() <= count);
    const QImage result = ColorQuantizer::quantize(image, count);
    const double error = meanSquaredError(image, result);
    QCOMPARE(meanSquaredError(image, ColorQuantizer::adapt(image, palette)), error);
    const double best =
        meanSquaredError(image, ColorQuantizer::adapt(image, improved(image, palette, 5)));
    QVERIFY2(error <= 1.35 * best, qPrintable(QStringLiteral("%1, %2").arg(error).arg(best)));
}

void TestColorQuantizer::indexedImages()
{
    QImage image(5, 1, QImage::Format_Indexed8);
    image.setColorTable({qRgb(1, 2, 3), qRgb(9, 9, 9), qRgb(1, 2, 3), qRgb(200, 0, 0)});
    const uchar indices[] = {0, 1, 2, 3, 77};
    std::copy(indices, indices + 5, image.scanLine(0));

    // Equal colours keep apart, what has no colour is transparent or as near to it as can be.
    const QVector<RGBA> palette{{1, 2, 3, 255}, {8, 8, 8, 255}, {1, 2, 3, 255}, {0, 0, 0, 0}};
    const QImage adapted = ColorQuantizer::adapt(image, palette);
    QCOMPARE(adapted.pixelIndex(0, 0), 0);
    QCOMPARE(adapted.pixelIndex(1, 0), 1);
    QCOMPARE(adapted.pixelIndex(2, 0), 2);
    QCOMPARE(adapted.pixelIndex(4, 0), 3);
    QCOMPARE(adapted.pixelIndex(3, 0), plainNearest(qRgb(200, 0, 0), palette));

    const QImage kept = ColorQuantizer::quantize(image, 4);
    QCOMPARE(kept.colorTable(), image.colorTable());
    QCOMPARE(kept.pixelIndex(2, 0), 2);
    // Three colours and the transparent one: the equal ones are one.
    image.setColorTable(image.colorTable() + QVector<QRgb>(100, qRgb(7, 7, 7)));
    image.scanLine(0)[4] = 200;
    const QImage fewer = ColorQuantizer::quantize(image, 4);
    QCOMPARE(fewer.colorCount(), 4);
    for (int x = 0; x < 4; ++x) {
        QCOMPARE(fewer.pixel(x, 0), image.pixel(x, 0));
    }
    QCOMPARE(fewer.pixelIndex(4, 0), 0);
}

void TestColorQuantizer::allForms()
{
    for (int form = QImage::Format_Mono; form < QImage::NImageFormats; ++form) {
        const QImage image = picture(20, true).convertToFormat(QImage::Format(form));
        const QImage plain = image.convertToFormat(QImage::Format_ARGB32);
        const double error = meanSquaredError(plain, ColorQuantizer::quantize(image, 256));
        const double plainError = meanSquaredError(plain, ColorQuantizer::quantize(plain, 256));
        QVERIFY2(qAbs(error - plainError) < 0.01, QByteArray::number(form).constData());
    }
}

void TestColorQuantizer::weights()
{
    ColorQuantizer quantizer;
    quantizer.addColor({0, 0, 0, 255}, 3);
    quantizer.addColor({100, 40, 20, 55});
    quantizer.addColor({1, 1, 1, 255}, 0);
    QCOMPARE(quantizer.palette(1), (QVector<RGBA>{{25, 10, 5, 205}}));
    quantizer.addColor({50, 50, 50, 255}, ~0ULL);
    QCOMPARE(quantizer.palette(1), (QVector<RGBA>{{50, 50, 50, 255}}));
    QCOMPARE(quantizer.palette(9999).size(), 3);
}

/// They have an entry of their own as soon as there is place for two.
void TestColorQuantizer::transparentPixels()
{
    ColorQuantizer quantizer;
    quantizer.addColor({200, 100, 0, 0});
    QCOMPARE(quantizer.palette(256), (QVector<RGBA>{{0, 0, 0, 0}}));
    quantizer.addColor({200, 100, 0, 200}, 1000);
    quantizer.addColor({100, 0, 0, 200}, 1000);
    QCOMPARE(quantizer.palette(2), (QVector<RGBA>{{0, 0, 0, 0}, {150, 50, 0, 200}}));
    QCOMPARE(quantizer.palette(1).size(), 1);
    QCOMPARE(int(quantizer.palette(1)[0].a), 200);
}

void TestColorQuantizer::memoryIsBounded()
{
    ColorQuantizer quantizer;
    QRandomGenerator random(Seed);
    const size_t before = mallinfo2().uordblks + mallinfo2().hblkhd;
    for (int i = 0; i < 1000000; ++i) {
        const quint32 color = random.generate();
        quantizer.addColor(
            {quint8(color), quint8(color >> 8), quint8(color >> 16), quint8(color >> 24)});
    }
    QVERIFY(mallinfo2().uordblks + mallinfo2().hblkhd < before + (1 << 20));
    QCOMPARE(quantizer.palette(256).size(), 256);
}

void TestColorQuantizer::nothing()
{
    QVERIFY(ColorQuantizer().palette(16).isEmpty());
    QVERIFY(ColorQuantizer::quantize({}, 16).isNull());
    QVERIFY(ColorQuantizer::adapt(picture(4, true), {}).isNull());
    QVERIFY(ColorQuantizer::adapt({}, {{1, 2, 3, 4}}).isNull());
}

QTEST_GUILESS_MAIN(TestColorQuantizer)

#include "tst_colorquantizer.moc"
