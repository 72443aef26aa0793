#include "image/canvas/imageclipboard.h"

#include "editors/palette/colorpalette.h"
#include "editors/palette/palettewidget.h"
#include "image/canvas/imagecanvas.h"
#include "image/canvas/imagelayer.h"
#include "image/canvas/imagelayers.h"
#include "image/canvas/imageselection.h"
#include "image/canvas/imageundostack.h"
#include "media/paletteobject.h"
#include "support/brokenbytes.h"

#include <QBuffer>
#include <QMimeData>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QtTest>

#include <functional>
#include <limits>
#include <memory>

using namespace Zorv;

namespace {

enum PaletteKind { OneClear, Opaque, AllClear };

/// A canvas of 30 by 20 pixels with a layer of noise.
struct Studio
{
    explicit Studio(ImageCanvas::Format format, PaletteKind kind = OneClear)
    {
        RGBA entries[256];
        for (int i = 0; i < 256; ++i) {
            const bool isClear = kind == AllClear || (kind == OneClear && i == 7);
            // Entries 0 and 1 are equal: only an index that is kept tells them apart.
            entries[i] = {quint8(std::max(i, 1)), quint8(i / 2), 40, quint8(isClear ? 0 : 255)};
        }
        grid.palette()->fromPalette(entries);
        colorPalette.setBackground(3);
        canvas.setFormat(format, false);
        canvas.setSize({30, 20}, {}, false);
        const bool isIndexed = format == ImageCanvas::IndexedFormat;
        QImage noise({30, 20}, isIndexed ? QImage::Format_Indexed8 : QImage::Format_ARGB32);
        for (int y = 0; y < noise.height(); ++y) {
            for (int i = 0; i < noise.bytesPerLine(); ++i) {
                const bool isAlpha = !isIndexed && i % 4 == 3;
                noise.scanLine(y)[i] = uchar(isAlpha ? 255 : random.bounded(256));
            }
        }
        canvas.setActiveLayer(canvas.newRasterLayer(noise));
    }

    void selectAtRandom()
    {
        QImage mask({30, 20}, QImage::Format_Indexed8);
        mask.fill(0);
        for (int i = 0; i < 60; ++i) {
            mask.scanLine(random.bounded(3, 15))[random.bounded(5, 25)] = 1;
        }
        canvas.setSelection(mask);
    }

    /// With a colour table: images without one are always equal.
    QImage image() const
    {
        QImage image = canvas.activeLayer()->image();
        if (image.depth() == 8) {
            QVector<QRgb> table;
            for (unsigned i = 0; i < 256; ++i) {
                table.append(i);
            }
            image.setColorTable(table);
        }
        return image;
    }
    bool isSelected(int x, int y) const { return canvas.selection()->clipQuery(x, y); }
    std::unique_ptr<QMimeData> copied()
    {
        return std::unique_ptr<QMimeData>(
            ImageClipboard::data(&canvas, ImageClipboard::ActiveLayer));
    }

    QRandomGenerator random{99};
    PaletteWidget grid;
    ColorPalette colorPalette{&grid};
    ImageCanvas canvas{&colorPalette};
};

unsigned pixelOf(const QImage& image, int x, int y)
{
    return image.depth() == 8 ? image.constScanLine(y)[x]
                              : reinterpret_cast<const QRgb*>(image.constScanLine(y))[x];
}

QByteArray fileOf(const QImage& image, const char* format = "PNG")
{
    QBuffer buffer;
    image.save(&buffer, format);
    return buffer.data();
}

bool paste(Studio* studio, const QByteArray& bytes, const QString& format)
{
    QMimeData data;
    data.setData(format, bytes);
    return ImageClipboard::paste(&studio->canvas, ImageClipboard::NewLayer, &data);
}

using Act = std::function<bool(Studio*)>;

}  // namespace

Q_DECLARE_METATYPE(Act)

class TestImageClipboard : public QObject
{
    Q_OBJECT

private slots:
    void thereAndBack_data();
    void thereAndBack();
    void cut();
    void fromOthers_data();
    void fromOthers();
    void mixing();
    void rubbish();
    void refused_data();
    void refused();
};

void TestImageClipboard::thereAndBack_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<int>("palette");
    QTest::addColumn<int>("clear");
    QTest::newRow("indexed") << int(ImageCanvas::IndexedFormat) << int(OneClear) << 7;
    QTest::newRow("no entry transparent") << int(ImageCanvas::IndexedFormat) << int(Opaque) << 3;
    QTest::newRow("all transparent") << int(ImageCanvas::IndexedFormat) << int(AllClear) << 0;
    QTest::newRow("true colour") << int(ImageCanvas::RGBAFormat) << int(OneClear) << 0;
}

/// What is pasted stands where it was, index for index, and the rest of its layer is clear.
void TestImageClipboard::thereAndBack()
{
    QFETCH(int, format);
    QFETCH(int, palette);
    QFETCH(int, clear);
    Studio studio{ImageCanvas::Format(format), PaletteKind(palette)};
    studio.selectAtRandom();
    const QImage before = studio.image();
    const auto data = studio.copied();
    QVERIFY(data);
    QVERIFY(ImageClipboard::paste(&studio.canvas, ImageClipboard::NewLayer, data.get()));
    QCOMPARE(int(studio.canvas.layers()->count()), 2);
    const QImage after = studio.image();
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 30; ++x) {
            const bool isKept = studio.isSelected(x, y) && palette != AllClear;
            QCOMPARE(pixelOf(after, x, y), isKept ? pixelOf(before, x, y) : unsigned(clear));
        }
    }
    studio.canvas.undoStack()->undo();
    QCOMPARE(int(studio.canvas.layers()->count()), 1);

    // Onto the layer it came from it changes nothing, and makes no step.
    studio.canvas.setActiveLayer(studio.canvas.layers()->at(0));
    const int steps = studio.canvas.undoStack()->index();
    QVERIFY(ImageClipboard::paste(&studio.canvas, ImageClipboard::OntoActiveLayer, data.get()));
    QCOMPARE(studio.image(), before);
    QCOMPARE(studio.canvas.undoStack()->index(), steps);
}

/// By the clipboard itself.
void TestImageClipboard::cut()
{
    for (const auto format : {ImageCanvas::IndexedFormat, ImageCanvas::RGBAFormat}) {
        Studio studio(format);
        studio.selectAtRandom();
        const QImage before = studio.image();
        QVERIFY(ImageClipboard::cut(&studio.canvas));
        const unsigned clear = format == ImageCanvas::IndexedFormat ? 7 : 0;
        for (int i = 0; i < 600; ++i) {
            const bool isCut = studio.isSelected(i % 30, i / 30);
            QCOMPARE(pixelOf(studio.image(), i % 30, i / 30),
                     isCut ? clear : pixelOf(before, i % 30, i / 30));
        }
        QVERIFY(ImageClipboard::canPaste());
        QVERIFY(ImageClipboard::paste(&studio.canvas, ImageClipboard::OntoActiveLayer));
        QCOMPARE(studio.image(), before);
        studio.canvas.undoStack()->undo();
        studio.canvas.undoStack()->undo();
        QCOMPARE(studio.image(), before);
    }
}

void TestImageClipboard::fromOthers_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("format");
    QTest::addColumn<QVector<QRgb>>("colors");

    QImage image(4, 1, QImage::Format_ARGB32);
    const QVector<QRgb> colors{0xff500a28, 0xff640a28, 0x00ffffff, 0xffc86428};
    std::copy(colors.begin(), colors.end(), reinterpret_cast<QRgb*>(image.bits()));
    QTest::newRow("true colour") << fileOf(image) << "image/png" << colors;

    QImage indexed(4, 1, QImage::Format_Indexed8);
    indexed.setColorTable({colors[3], colors[2], colors[1], colors[0]});
    for (int x = 0; x < 4; ++x) {
        indexed.setPixel(x, 0, unsigned(3 - x));
    }
    QTest::newRow("other order of colours") << fileOf(indexed) << "image/png" << colors;
    indexed.setOffset({std::numeric_limits<int>::max(), -90});
    QTest::newRow("a place far away") << fileOf(indexed) << "image/png" << colors;

    QVector<QRgb> opaque = colors;
    opaque[2] = 0xffffffff;
    QTest::newRow("bitmap") << fileOf(image.convertToFormat(QImage::Format_RGB32), "BMP")
                            << "image/bmp" << opaque;
    QTest::newRow("larger than the canvas")
        << fileOf(image.scaled(4000, 1)) << "image/png" << QVector<QRgb>(30, colors[0]);
}

void TestImageClipboard::fromOthers()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, format);
    QFETCH(QVector<QRgb>, colors);
    for (const auto canvasFormat : {ImageCanvas::IndexedFormat, ImageCanvas::RGBAFormat}) {
        Studio studio(canvasFormat);
        QVERIFY(paste(&studio, file, format));
        QCOMPARE(studio.image().size(), QSize(30, 20));
        for (int x = 0; x < colors.size(); ++x) {
            const QRgb color = colors[x];
            unsigned expected = qAlpha(color) == 0 ? 0 : color;
            if (canvasFormat == ImageCanvas::IndexedFormat) {
                expected = qAlpha(color) == 0 ? 7 : studio.colorPalette.index(color);
            }
            QCOMPARE(pixelOf(studio.image(), x, 0), expected);
        }
    }
}

/// In true colour a half transparent pixel lets shine through what it is pasted onto.
void TestImageClipboard::mixing()
{
    Studio studio(ImageCanvas::RGBAFormat);
    QImage ground(30, 20, QImage::Format_ARGB32);
    ground.fill(qRgba(200, 100, 0, 255));
    studio.canvas.activeLayer()->setImage(ground);
    QImage glass(1, 1, QImage::Format_ARGB32);
    glass.fill(qRgba(0, 0, 255, 51));
    QMimeData data;
    data.setImageData(glass);
    QVERIFY(ImageClipboard::paste(&studio.canvas, ImageClipboard::OntoActiveLayer, &data));
    QCOMPARE(studio.image().pixel(0, 0), qRgba(160, 80, 51, 255));
}

/// No bytes do harm: they are a picture, or refused with one text.
void TestImageClipboard::rubbish()
{
    Studio studio(ImageCanvas::IndexedFormat);
    QSignalSpy refused(&studio.canvas, &ImageCanvas::refused);
    int times = 0;
    const auto check = [&](const QByteArray& bytes, const char* format) {
        if (paste(&studio, bytes, QLatin1String(format))) {
            studio.canvas.undoStack()->undo();
        } else {
            ++times;
        }
        QCOMPARE(int(studio.canvas.layers()->count()), 1);
        QCOMPARE(refused.size(), times);
    };
    QImage small(2, 2, QImage::Format_RGB32);
    small.fill(Qt::red);
    const QPair<const char*, const char*> formats[] = {
        {"png", "image/png"}, {"bmp", "image/bmp"}, {"ppm", "image/x-portable-pixmap"}};
    for (const auto& format : formats) {
        forEachBrokenForm(fileOf(small, format.first),
                          [&](const QByteArray& bytes) { check(bytes, format.second); });
    }
    check("P6 32767 32767 255 ", "image/x-portable-pixmap");
    QVERIFY(times > 100);
}

void TestImageClipboard::refused_data()
{
    QTest::addColumn<Act>("act");
    QTest::newRow("nothing selected") << Act([](Studio* studio) {
        QImage mask({30, 20}, QImage::Format_Indexed8);
        mask.fill(0);
        studio->canvas.setSelection(mask);
        return ImageClipboard::cut(&studio->canvas);
    });
    QTest::newRow("hidden") << Act([](Studio* studio) {
        studio->canvas.activeLayer()->setVisible(false);
        return ImageClipboard::cut(&studio->canvas);
    });
    QTest::newRow("onto hidden") << Act([](Studio* studio) {
        studio->canvas.activeLayer()->setVisible(false);
        const auto data = studio->copied();
        return ImageClipboard::paste(&studio->canvas, ImageClipboard::OntoActiveLayer, data.get());
    });
    QTest::newRow("no layer") << Act([](Studio* studio) {
        studio->canvas.layers()->removeAll();
        return ImageClipboard::copy(&studio->canvas, ImageClipboard::AllLayers);
    });
    QTest::newRow("text") << Act([](Studio* studio) { return paste(studio, "a", "text/plain"); });
    QTest::newRow("no image") << Act([](Studio* studio) {
        ImageCanvas empty;
        connect(&empty, &ImageCanvas::refused, &studio->canvas, &ImageCanvas::refused);
        return ImageClipboard::paste(&empty);
    });
}

void TestImageClipboard::refused()
{
    QFETCH(Act, act);
    Studio studio(ImageCanvas::IndexedFormat);
    const unsigned before = pixelOf(studio.image(), 4, 4);
    QSignalSpy refused(&studio.canvas, &ImageCanvas::refused);
    QVERIFY(!act(&studio));
    QCOMPARE(refused.size(), 1);
    QVERIFY(!refused.first().first().toString().isEmpty());
    QVERIFY(!studio.canvas.activeLayer() || pixelOf(studio.image(), 4, 4) == before);
}

QTEST_MAIN(TestImageClipboard)
#include "tst_imageclipboard.moc"
