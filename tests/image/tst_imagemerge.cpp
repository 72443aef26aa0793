#include "image/canvas/imagecanvas.h"
#include "image/canvas/imagelayers.h"
#include "image/canvas/imageundostack.h"
#include "image/canvas/rasterlayer.h"
#include "support/canvasstate.h"
#include "support/testimagepalette.h"

#include <QtTest>

using namespace Zorv;

namespace {

constexpr uint seed = 20261122;

QImage randomImage(QRandomGenerator& random, const QSize& size, QImage::Format format)
{
    QImage image(size, format);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width() * image.depth() / 8; ++x) {
            // Long runs and few indices, as in drawn pictures, and every index now and then.
            const bool repeated = x > 3 && random.bounded(4) > 0;
            uchar* row = image.scanLine(y);
            row[x] = repeated ? row[x - 4] : uchar(random.bounded(random.bounded(2) ? 256 : 8));
        }
    }
    return image;
}

/// Red, green, blue and alpha as the mean of two colours, rounded to the lower one.
QRgb mixed(QRgb low, QRgb high)
{
    const auto half = [](int x, int y) { return x + ((y - x) >> 1); };
    return qRgba(half(qRed(low), qRed(high)), half(qGreen(low), qGreen(high)),
                 half(qBlue(low), qBlue(high)), half(qAlpha(low), qAlpha(high)));
}

int transparentEntry(const TestImagePalette& palette)
{
    int entry = 0;
    while (entry < 256 && palette.colors[entry].a != 0) {
        ++entry;
    }
    return entry < 256 ? entry : -1;
}

/// One pixel of an indexed canvas, from the bottom up.
int mergedPixel(const ImageCanvas& canvas, const TestImagePalette& palette, int x, int y)
{
    QVector<int> seen;
    QVector<const ImageLayer*> visible;
    for (unsigned i = canvas.layers()->count(); i > 0; --i) {
        const ImageLayer* const layer = canvas.layers()->at(i - 1);
        if (!layer->isVisible()) {
            continue;
        }
        visible += layer;
        if (layer->image().rect().contains(x, y)) {
            const int index = layer->image().constScanLine(y)[x];
            const int alpha = palette.colors[index].a;
            if (alpha == 255) {
                seen.clear();
            }
            if (alpha > 0) {
                seen += index;
            }
        }
    }
    const bool alone = visible.size() == 1 && visible[0]->image().rect().contains(x, y);
    if (alone) {
        return visible[0]->image().constScanLine(y)[x];
    }
    if (seen.size() <= 1) {
        return seen.isEmpty() ? qMax(transparentEntry(palette), 0) : seen.first();
    }
    QRgb color = palette.color(quint8(seen.first()));
    for (int i = 1; i < seen.size(); ++i) {
        color = mixed(color, palette.color(quint8(seen[i])));
    }
    return palette.index(QColor::fromRgba(color));
}

}  // namespace

class TestImageMerge : public QObject
{
    Q_OBJECT

private slots:
    void indexedAsByPixel_data();
    void indexedAsByPixel();
    void colorsAsPainted();
    void partsAreOfTheWhole();
    void nameIsThatOfTheLowest();
    void conversionKeepsTransparency();
};

void TestImageMerge::indexedAsByPixel_data()
{
    QTest::addColumn<int>("used");
    QTest::addColumn<int>("clear");
    QTest::addColumn<int>("half");
    QTest::newRow("opaque") << 256 << 0 << 0;
    QTest::newRow("some clear") << 256 << 1 << 0;
    QTest::newRow("half transparent") << 256 << 1 << 2;
    QTest::newRow("all half transparent") << 256 << 0 << 4;
    QTest::newRow("all clear") << 256 << 4 << 0;
    QTest::newRow("two entries") << 2 << 1 << 1;
    QTest::newRow("sixteen entries") << 16 << 1 << 1;
}

void TestImageMerge::indexedAsByPixel()
{
    QFETCH(int, used);
    QFETCH(int, clear);
    QFETCH(int, half);
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    for (int run = 0; run < 40; ++run) {
        TestImagePalette palette;
        palette.randomize(random, used, clear, half);
        ImageCanvas canvas(&palette);
        canvas.setFormat(ImageCanvas::IndexedFormat, false);
        const QSize size(1 + random.bounded(70), 1 + random.bounded(20));
        QVERIFY(canvas.setSize(size, {}, false));
        const int count = random.bounded(5);
        for (int i = 0; i < count; ++i) {
            ImageLayer* const layer = canvas.newRasterLayer({});
            // Layers of other sizes are clipped.
            const QSize own(1 + random.bounded(90), 1 + random.bounded(30));
            layer->setImage(
                randomImage(random, random.bounded(3) ? size : own, QImage::Format_Indexed8));
            layer->setVisible(random.bounded(5) > 0);
        }
        const QImage merged = canvas.mergeLayers(nullptr);
        QCOMPARE(merged.size(), size);
        QCOMPARE(merged.colorTable(), palette.toRgbPal());
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                QCOMPARE(int(merged.constScanLine(y)[x]), mergedPixel(canvas, palette, x, y));
            }
        }
    }
}

void TestImageMerge::colorsAsPainted()
{
    QRandomGenerator random(seed);
    ImageCanvas canvas;
    canvas.setSize({40, 30}, {}, false);
    QImage expected(canvas.size(), QImage::Format_ARGB32);
    expected.fill(0);
    QPainter painter(&expected);
    for (int i = 0; i < 4; ++i) {
        const QImage image = randomImage(random, canvas.size(), QImage::Format_ARGB32);
        ImageLayer* const layer = canvas.newRasterLayer(image);
        if (i == 0) {
            // Alone it is what it was, also the colour of what is transparent.
            QCOMPARE(pixelBytes(canvas.mergeLayers(nullptr)), pixelBytes(image));
        }
        layer->setOpacity(0.3 * i, false);
        layer->setBlendMode(QPainter::CompositionMode(i == 3 ? 13 : 0), false);
        layer->setVisible(i != 2);
        if (i != 2) {
            painter.setOpacity(0.3 * i);
            painter.setCompositionMode(layer->blendMode());
            painter.drawImage(0, 0, image);
        }
    }
    painter.end();
    QCOMPARE(pixelBytes(canvas.mergeLayers(nullptr)), pixelBytes(expected));
}

void TestImageMerge::partsAreOfTheWhole()
{
    QRandomGenerator random(seed);
    TestImagePalette palette;
    palette.randomize(random, 256, 1, 1);
    for (const auto format : {ImageCanvas::IndexedFormat, ImageCanvas::RGBAFormat}) {
        ImageCanvas canvas(&palette);
        canvas.setFormat(format, false);
        canvas.setSize({50, 40}, {}, false);
        for (int i = 0; i < 3; ++i) {
            canvas.newRasterLayer(randomImage(random, {50, 40},
                                              format == ImageCanvas::RGBAFormat
                                                  ? QImage::Format_ARGB32
                                                  : QImage::Format_Indexed8));
        }
        const QImage whole = canvas.mergeLayers(nullptr);
        for (const QRect& part :
             {QRect(0, 0, 50, 40), QRect(13, 7, 20, 9), QRect(-5, 30, 20, 90)}) {
            QCOMPARE(pixelBytes(canvas.mergePart(part)),
                     pixelBytes(whole.copy(part & whole.rect())));
        }
        QVERIFY(canvas.mergePart({60, 0, 5, 5}).isNull());
    }
}

void TestImageMerge::nameIsThatOfTheLowest()
{
    ImageCanvas canvas;
    canvas.setSize({2, 2}, {}, false);
    for (const char* name : {"bottom", "middle", "top"}) {
        canvas.newRasterLayer({})->setName(QString::fromLatin1(name), false);
    }
    canvas.layers()->at(2)->setVisible(false);
    QString name = QStringLiteral("none");
    canvas.mergeLayers(&name);
    QCOMPARE(name, QStringLiteral("middle"));
    canvas.layers()->at(1)->setVisible(false);
    canvas.layers()->at(0)->setVisible(false);
    name = QStringLiteral("none");
    QCOMPARE(pixelBytes(canvas.mergeLayers(&name)), QByteArray(16, '\0'));
    QCOMPARE(name, QStringLiteral("none"));
}

void TestImageMerge::conversionKeepsTransparency()
{
    QRandomGenerator random(seed);
    for (const int clear : {0, 1, 3, 4}) {
        TestImagePalette palette;
        palette.randomize(random, 16, clear, 1);
        const int transparent = transparentEntry(palette);
        ImageCanvas canvas(&palette);
        canvas.setSize({60, 60}, {}, false);
        const QImage image = randomImage(random, {60, 60}, QImage::Format_ARGB32);
        const ImageLayer* const layer = canvas.newRasterLayer(image);
        bool anyVisible = false;
        for (const RGBA color : palette.colors) {
            anyVisible = anyVisible || color.a > 0;
        }
        QVERIFY(canvas.convertTo(ImageCanvas::IndexedFormat));
        for (int y = 0; y < 60; ++y) {
            for (int x = 0; x < 60; ++x) {
                const QRgb color = image.pixel(x, y);
                const quint8 index = layer->image().constScanLine(y)[x];
                if (qAlpha(color) == 0 && transparent >= 0) {
                    QCOMPARE(int(index), transparent);
                } else if (anyVisible) {
                    QVERIFY(palette.colors[index].a > 0);
                }
            }
        }
        QCOMPARE(canvas.undoStack()->count(), 2);
        canvas.undoStack()->undo();
        QCOMPARE(pixelBytes(layer->image()), pixelBytes(image));
        // The plain change of form leaves it to the palette.
        QVERIFY(canvas.setFormat(ImageCanvas::IndexedFormat, true));
        QCOMPARE(int(layer->image().constScanLine(3)[5]),
                 int(palette.index(QColor::fromRgba(image.pixel(5, 3)))));
    }
}

QTEST_GUILESS_MAIN(TestImageMerge)
#include "tst_imagemerge.moc"
