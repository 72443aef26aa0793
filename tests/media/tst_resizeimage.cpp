#include "media/tools/resizeimage.h"
#include "pictures.h"
#include "support/testtable.h"

#include <QCryptographicHash>
#include <QtTest>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Zorv;

namespace {

const ImageResizeFilter Filters[] = {ImageResizeFilter::Nearest, ImageResizeFilter::Bilinear,
                                     ImageResizeFilter::Epx, ImageResizeFilter::Hq};

/// A pixel as a number that is equal for equal ones: the index, or the colour if it shows.
quint32 value(const QImage& image, int x, int y)
{
    x = std::clamp(x, 0, image.width() - 1);
    y = std::clamp(y, 0, image.height() - 1);
    if (image.format() == QImage::Format_Indexed8) {
        return quint32(image.pixelIndex(x, y));
    }
    const QRgb pixel = image.pixel(x, y);
    return qAlpha(pixel) != 0 ? pixel : 0;
}

/// One pixel of Scale2x or Scale3x by its definition.
quint32 epxPixel(const QImage& image, int factor, int x, int y)
{
    const auto at = [&](int dx, int dy) { return value(image, x / factor + dx, y / factor + dy); };
    const int sx = x % factor * 2 / (factor - 1) - 1;
    const int sy = y % factor * 2 / (factor - 1) - 1;
    const quint32 own = at(0, 0);
    if (at(0, -1) == at(0, 1) || at(-1, 0) == at(1, 0)) {
        return own;
    }
    if (sx != 0 && sy != 0) {
        return at(sx, 0) == at(0, sy) ? at(sx, 0) : own;
    }
    // The middle of an edge takes its neighbour if that is like one beside it and the other
    // corner differs.
    const int nx = sx;
    const int ny = sy;
    const auto joins = [&](int side) {
        return nx != 0 ? at(nx, 0) == at(0, side) && own != at(nx, -side)
                       : at(0, ny) == at(side, 0) && own != at(-side, ny);
    };
    return (nx != 0 || ny != 0) && (joins(-1) || joins(1)) ? at(nx, ny) : own;
}

/// A pixel of a bilinear resizing, in doubles.
std::array<double, 4> bilinearPixel(const QImage& image, const QSize& size, int x, int y)
{
    const double stepX = double(image.width()) / size.width();
    const double stepY = double(image.height()) / size.height();
    const auto weight = [](int at, int target, double step) {
        const double distance = std::abs(at - ((target + 0.5) * step - 0.5));
        return std::max(0.0, 1 - distance / std::max(step, 1.0));
    };
    std::array<double, 4> sum = {};
    double total = 0;
    for (int v = 0; v < image.height(); ++v) {
        for (int u = 0; u < image.width(); ++u) {
            const double part = weight(u, x, stepX) * weight(v, y, stepY);
            const QRgb pixel = image.pixel(u, v);
            const double a = part * qAlpha(pixel);
            sum = {sum[0] + a * qRed(pixel), sum[1] + a * qGreen(pixel), sum[2] + a * qBlue(pixel),
                   sum[3] + a};
            total += part;
        }
    }
    const double a = sum[3] > 0 ? sum[3] : 1;
    return {sum[0] / a, sum[1] / a, sum[2] / a, sum[3] / total};
}

/// Colours so near to each other that each two of them may be alike or not, in all combinations.
QImage nearColors()
{
    QRandomGenerator random(11);
    QImage image(300, 300, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int luma = 30 + 30 * random.bounded(5);
            const int red = luma + 4 * random.bounded(4);
            const int green = luma + 2 * random.bounded(3);
            const int blue = luma + 5 * random.bounded(4);
            image.setPixel(x, y, qRgb(red, green, blue));
        }
    }
    return image;
}

QImage transposed(const QImage& image)
{
    return image.transformed(QTransform().rotate(90)).mirrored(true, false);
}

}  // namespace

class TestResizeImage : public QObject
{
    Q_OBJECT

private slots:
    void nearestIsByCentres();
    void epxIsByDefinition();
    void bilinearMixesByDistance();
    void hqPixels_data();
    void hqPixels();
    void hqIsTheSameInMirrors();
    void hqMixesWithoutBorders();
    void keepsSizesAndForms();
    void indexedKeepsItsColors();
    void leavesNoFringes();
    void refusesAndEdges();
    void takesOtherForms();
};

void TestResizeImage::nearestIsByCentres()
{
    const int sides[] = {1, 3, 15, 16, 17, 31, 40, 64, 100, 333};
    for (const QImage::Format form : Pictures::Forms) {
        for (const int from : sides) {
            const QImage image = Pictures::inForm(form, {from, 5}, quint32(from));
            for (const int to : sides) {
                const QImage made = resizeImage(image, {to, 7}, ImageResizeFilter::Nearest);
                for (int i = 0; i < to * 7; ++i) {
                    const int x = i % to;
                    const int y = i / to;
                    QCOMPARE(made.pixel(x, y),
                             image.pixel(int((x + 0.5) * from / to), int((y + 0.5) * 5 / 7)));
                }
            }
        }
    }
}

void TestResizeImage::epxIsByDefinition()
{
    for (const QImage::Format form : Pictures::Forms) {
        for (const int width : {1, 2, 5, 37}) {
            const QImage image = Pictures::inForm(form, {width, 23}, quint32(width));
            for (const int factor : {2, 3}) {
                const QImage made = scaleEpx(image, factor);
                QCOMPARE(made.size(), image.size() * factor);
                for (int i = 0; i < made.width() * made.height(); ++i) {
                    const int x = i % made.width();
                    const int y = i / made.width();
                    QCOMPARE(value(made, x, y), epxPixel(image, factor, x, y));
                }
            }
            QCOMPARE(scaleEpx(image, 4), scaleEpx(scaleEpx(image, 2), 2));
            QCOMPARE(resizeImage(image, image.size() * 6, ImageResizeFilter::Epx),
                     scaleEpx(scaleEpx(image, 2), 3));
        }
    }
}

void TestResizeImage::bilinearMixesByDistance()
{
    const QImage image = Pictures::inForm(QImage::Format_ARGB32, {19, 13}, 5);
    for (const QSize size : {QSize(40, 30), QSize(19, 40), QSize(7, 5), QSize(1, 1)}) {
        const QImage made = resizeImage(image, size, ImageResizeFilter::Bilinear);
        for (int i = 0; i < size.width() * size.height(); ++i) {
            const int x = i % size.width();
            const int y = i / size.width();
            const QRgb pixel = made.pixel(x, y);
            const std::array<double, 4> expected = bilinearPixel(image, size, x, y);
            const double made4[] = {double(qRed(pixel)), double(qGreen(pixel)),
                                    double(qBlue(pixel)), double(qAlpha(pixel))};
            QVERIFY(std::abs(made4[3] - expected[3]) < 0.51);
            for (int k = 0; k < 3 && qAlpha(pixel) != 0; ++k) {
                QVERIFY(std::abs(made4[k] - expected[std::size_t(k)]) < 0.51);
            }
        }
    }
}

void TestResizeImage::hqPixels_data()
{
    columns<int, QByteArray>("factor", "checksum");

    // Of what another program makes of the same picture by the same method, ffmpeg's filter hqx.
    QTest::newRow("hq2x") << 2 << QByteArray("c10986598e79144643e942b786727acb");
    QTest::newRow("hq3x") << 3 << QByteArray("05d6fc71d69e5a8805a48998ee7fee2f");
    QTest::newRow("hq4x") << 4 << QByteArray("db461da6fac726f5a9a2ac7f00127f24");
}

void TestResizeImage::hqPixels()
{
    const auto [factor, checksum] = fetched<int, QByteArray>();
    const QImage made = scaleHq(nearColors(), factor);
    QCryptographicHash hash(QCryptographicHash::Md5);
    for (int y = 0; y < made.height(); ++y) {
        for (int x = 0; x < made.width(); ++x) {
            const QRgb pixel = made.pixel(x, y);
            const char bytes[] = {char(qRed(pixel)), char(qGreen(pixel)), char(qBlue(pixel))};
            hash.addData(bytes, 3);
        }
    }
    QCOMPARE(hash.result().toHex(), checksum);
}

void TestResizeImage::hqIsTheSameInMirrors()
{
    for (const QImage::Format form : {QImage::Format_ARGB32, QImage::Format_RGB32}) {
        const QImage image = Pictures::inForm(form, {45, 31}, 3);
        for (const int factor : {2, 3, 4}) {
            const QImage made = scaleHq(image, factor);
            QCOMPARE(scaleHq(image.mirrored(true, false), factor), made.mirrored(true, false));
            QCOMPARE(scaleHq(transposed(image), factor), transposed(made));
        }
    }
}

void TestResizeImage::hqMixesWithoutBorders()
{
    QImage image(40, 40, QImage::Format_RGB32);
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 40; ++x) {
            image.setPixel(x, y, qRgb(3 * x + 2 * y, 3 * x + 2 * y, 3 * x + 2 * y));
        }
    }
    const QImage made = scaleHq(image, 2);
    for (int y = 2; y < 78; ++y) {
        for (int x = 2; x < 78; ++x) {
            const int u = x / 2;
            const int v = y / 2;
            const int sum = 2 * qRed(image.pixel(u, v)) + qRed(image.pixel(u + x % 2 * 2 - 1, v)) +
                            qRed(image.pixel(u, v + y % 2 * 2 - 1));
            QCOMPARE(qRed(made.pixel(x, y)), sum / 4);
        }
    }
}

void TestResizeImage::keepsSizesAndForms()
{
    for (const QImage::Format form : Pictures::Forms) {
        const QImage image = Pictures::inForm(form, {33, 21}, 9);
        for (const ImageResizeFilter filter : Filters) {
            QCOMPARE(resizeImage(image, image.size(), filter), image);
            for (const QSize size : {QSize(100, 100), QSize(10, 90), QSize(5, 3), QSize(34, 22)}) {
                const QImage made = resizeImage(image, size, filter);
                QCOMPARE(made.size(), size);
                QCOMPARE(made.format(), form);
                QCOMPARE(made.colorTable(), image.colorTable());
            }
        }
        for (const int factor : {2, 3, 4}) {
            QCOMPARE(resizeImage(image, image.size() * factor, ImageResizeFilter::Hq),
                     scaleHq(image, factor));
        }
    }
}

void TestResizeImage::indexedKeepsItsColors()
{
    const QImage image = Pictures::indexed({40, 30}, 2);
    for (const ImageResizeFilter filter : {ImageResizeFilter::Bilinear, ImageResizeFilter::Hq}) {
        const QImage made = resizeImage(image, {120, 90}, filter);
        QImage solid = image.convertToFormat(QImage::Format_ARGB32);
        const QImage mixed = resizeImage(solid, {120, 90}, filter);
        for (int i = 0; i < 120 * 90; ++i) {
            const int x = i % 120;
            const int y = i / 120;
            const int index = made.pixelIndex(x, y);
            QVERIFY(index < 16);
            const int own = image.pixelIndex(x / 3, y / 3);
            if (mixed.pixel(x, y) == image.color(own)) {
                QCOMPARE(index, own);
            }
            // What is more transparent than not is index 0, the transparent one.
            QCOMPARE(index == 0, qAlpha(mixed.pixel(x, y)) < 128);
        }
    }
    // Without colours there is nothing to mix.
    QImage bare = image;
    bare.setColorTable({});
    QCOMPARE(resizeImage(bare, {90, 90}, ImageResizeFilter::Hq),
             resizeImage(bare, {90, 90}, ImageResizeFilter::Nearest));
}

void TestResizeImage::leavesNoFringes()
{
    QImage image(24, 24, QImage::Format_ARGB32);
    QRandomGenerator random(4);
    for (int i = 0; i < 24 * 24; ++i) {
        // Transparent pixels have wild colours that must show nowhere.
        image.setPixel(i % 24, i / 24,
                       random.bounded(3) == 0 ? qRgb(250, 240, 230) : random.generate() >> 8);
    }
    for (const ImageResizeFilter filter : Filters) {
        if (filter == ImageResizeFilter::Nearest) {
            continue;
        }
        for (const int side : {60, 96, 17}) {
            const QImage made = resizeImage(image, {side, side}, filter);
            for (int i = 0; i < side * side; ++i) {
                const QRgb pixel = made.pixel(i % side, i / side);
                const int tolerance = 2 + 255 / std::max(qAlpha(pixel), 1);
                QVERIFY(qAlpha(pixel) == 0 || std::abs(qRed(pixel) - 250) <= tolerance);
                QVERIFY(qAlpha(pixel) == 0 || std::abs(qBlue(pixel) - 230) <= tolerance);
            }
        }
    }
}

void TestResizeImage::refusesAndEdges()
{
    const QImage dot = Pictures::indexed({1, 1}, 1);
    for (const ImageResizeFilter filter : Filters) {
        QVERIFY(resizeImage(QImage(), {4, 4}, filter).isNull());
        for (const QSize size : {QSize(0, 4), QSize(4, -1), QSize(32768, 1), QSize(1, 32768)}) {
            QVERIFY(resizeImage(dot, size, filter).isNull());
        }
        const QImage large = resizeImage(dot, {32767, 2}, filter);
        QCOMPARE(large.pixelIndex(32766, 1), dot.pixelIndex(0, 0));
    }
    for (const int factor : {-1, 0, 1, 5}) {
        QVERIFY(scaleEpx(dot, factor).isNull());
        QVERIFY(scaleHq(dot, factor).isNull());
    }
    const QImage wide(20000, 1, QImage::Format_Indexed8);
    QVERIFY(scaleEpx(wide, 2).isNull());
    QVERIFY(scaleHq(wide, 2).isNull());
    QVERIFY(scaleHq(QImage(), 2).isNull());
}

void TestResizeImage::takesOtherForms()
{
    const QImage image = Pictures::inForm(QImage::Format_RGB32, {20, 10}, 6);
    for (const ImageResizeFilter filter : Filters) {
        // The unused byte may hold anything.
        QImage unset = image;
        for (int y = 0; y < 10; ++y) {
            auto* row = reinterpret_cast<QRgb*>(unset.scanLine(y));
            std::transform(row, row + 20, row, [](QRgb pixel) { return pixel & RGB_MASK; });
        }
        QCOMPARE(resizeImage(unset, {50, 30}, filter), resizeImage(image, {50, 30}, filter));
        const QImage clear = resizeImage(image.convertToFormat(QImage::Format_ARGB32_Premultiplied),
                                         {50, 30}, filter);
        QCOMPARE(clear.format(), QImage::Format_ARGB32);
        const QImage mono = image.convertToFormat(QImage::Format_Mono);
        const QImage made = resizeImage(mono, {50, 30}, filter);
        QCOMPARE(made.format(), QImage::Format_Indexed8);
        QCOMPARE(made.colorTable(), mono.colorTable());
        QCOMPARE(resizeImage(image.convertToFormat(QImage::Format_RGB16), {5, 5}, filter).format(),
                 QImage::Format_RGB32);
    }
}

QTEST_GUILESS_MAIN(TestResizeImage)
#include "tst_resizeimage.moc"
