#include "media/tools/gifimage.h"

#include "media/imagefile.h"
#include "support/brokenbytes.h"
#include "support/testtable.h"
#include "support/tool.h"

#include <QBuffer>
#include <QRandomGenerator>
#include <QtTest>

using namespace Zorv;

namespace {

const quint32 Seed = 4711;

bool load(GIFImage& gif, QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return gif.load(&buffer);
}

QByteArray saved(const GIFImage& gif)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return gif.save(&buffer) ? bytes : QByteArray();
}

QVector<RGB> randomColors(QRandomGenerator& random, int count)
{
    QVector<RGB> colors;
    for (int i = 0; i < count; ++i) {
        const quint32 value = random.generate();
        colors.append({quint8(value), quint8(value >> 8), quint8(value >> 16)});
    }
    return colors;
}

/// Frames of all sizes, with tables of their own or without, some of them interlaced. Tables have
/// sizes that a file can tell.
GIFImage randomGIF(QRandomGenerator& random)
{
    GIFImage gif;
    gif.size = QSize(1 + random.bounded(300), 1 + random.bounded(60));
    gif.colors = randomColors(random, 2 << random.bounded(8));
    gif.loops = random.bounded(4) - 1;
    gif.background = random.bounded(gif.colors.size());
    for (int i = random.bounded(1, 5); i > 0; --i) {
        GIFImage::SubImage frame;
        if (random.bounded(2) == 0) {
            frame.colors = randomColors(random, 2 << random.bounded(8));
        }
        const int colors = frame.colors.isEmpty() ? gif.colors.size() : frame.colors.size();
        frame.left = random.bounded(gif.size.width());
        frame.top = random.bounded(gif.size.height());
        const QSize size = gif.size - QSize(frame.left, frame.top);
        frame.image = QImage(size, QImage::Format_Indexed8);
        const int varied = 1 + random.bounded(colors);
        for (int y = 0; y < size.height(); ++y) {
            std::generate_n(frame.image.scanLine(y), size.width(),
                            [&] { return uchar(random.bounded(varied)); });
        }
        frame.transparent = random.bounded(colors + 1) - 1;
        frame.delay = random.bounded(65536);
        frame.disposal = GIFImage::Disposal(random.bounded(4));
        frame.interlaced = random.bounded(2) == 0;
        gif.images.append(frame);
    }
    return gif;
}

/// The pixels of a frame as a PPM file has them.
QByteArray ppm(const GIFImage& gif, const GIFImage::SubImage& frame)
{
    const QVector<RGB>& colors = frame.colors.isEmpty() ? gif.colors : frame.colors;
    QByteArray bytes = "P6\n" + QByteArray::number(frame.image.width()) + ' ' +
                       QByteArray::number(frame.image.height()) + "\n255\n";
    for (int y = 0; y < frame.image.height(); ++y) {
        for (int x = 0; x < frame.image.width(); ++x) {
            const RGB color = colors.at(frame.image.constScanLine(y)[x]);
            bytes.append(char(color.r)).append(char(color.g)).append(char(color.b));
        }
    }
    return bytes;
}

QByteArray bytesOf(std::initializer_list<int> values)
{
    QByteArray bytes;
    for (const int value : values) {
        bytes.append(char(value));
    }
    return bytes;
}

const QByteArray twoColors("\x01\x02\x03\x04\x05\x06");

/// A canvas of 2 by 1.
QByteArray head(bool colors, int background = 0)
{
    return "GIF89a" + bytesOf({2, 0, 1, 0, colors ? 0x80 : 0, background, 0}) +
           (colors ? twoColors : QByteArray());
}

/// The indices 0 and 1, on a frame of 2 by 1 unless other things are told.
QByteArray frame(int left = 0, int width = 2)
{
    return "," + bytesOf({left, 0, 0, 0, width, 0, 1, 0, 0, 2, 2, 0x44, 0x0a, 0});
}

}  // namespace

class TestGIFImage : public QObject
{
    Q_OBJECT

private slots:
    void comesBack();
    void isReadByNetpbm();
    void animationOfMagick();
    void oddFiles_data();
    void oddFiles();
    void withoutColors();
    void refusesWhatHasNoPlaceInAFile();
    void brokenFiles();
};

void TestGIFImage::comesBack()
{
    QRandomGenerator random(Seed);
    for (int round = 0; round < 150; ++round) {
        const GIFImage gif = randomGIF(random);
        GIFImage back;
        QVERIFY(load(back, saved(gif)));
        QCOMPARE(back.size, gif.size);
        QCOMPARE(back.colors, gif.colors);
        QCOMPARE(back.loops, gif.loops);
        QCOMPARE(back.background, gif.background);
        QCOMPARE(back.images.size(), gif.images.size());
        for (int i = 0; i < gif.images.size(); ++i) {
            const GIFImage::SubImage& a = gif.images[i];
            const GIFImage::SubImage& b = back.images[i];
            QCOMPARE(QRect(QPoint(b.left, b.top), b.image.size()),
                     QRect(QPoint(a.left, a.top), a.image.size()));
            QCOMPARE(b.colors, a.colors);
            QCOMPARE(b.transparent, a.transparent);
            QCOMPARE(b.delay, a.delay);
            QCOMPARE(int(b.disposal), int(a.disposal));
            QCOMPARE(b.interlaced, a.interlaced);
            QCOMPARE(ppm(back, b), ppm(gif, a));
        }
    }
}

void TestGIFImage::isReadByNetpbm()
{
    QRandomGenerator random(Seed);
    for (int round = 0; round < 6; ++round) {
        const GIFImage gif = randomGIF(random);
        const QByteArray bytes = saved(gif);
        for (int i = 0; i < gif.images.size(); ++i) {
            const QString number = QStringLiteral("-image=%1").arg(i + 1);
            const QByteArray read = runTool(QStringLiteral("giftopnm"), {number}, bytes);
            // One of grey shades alone is given in another form.
            if (!read.startsWith("P5")) {
                QCOMPARE(read, ppm(gif, gif.images[i]));
            }
        }
    }
}

void TestGIFImage::animationOfMagick()
{
    const QString command = QStringLiteral(
        "-loop 3 -dispose previous -delay 7 -size 9x6 xc:red -dispose background -delay 300 "
        "-page 9x6+2+1 -size 4x3 xc:lime gif:-");
    GIFImage gif;
    QVERIFY(load(gif, runTool(QStringLiteral("convert"), command.split(QLatin1Char(' ')))));
    QCOMPARE(gif.size, QSize(9, 6));
    // Three times in all.
    QCOMPARE(gif.loops, 2);
    QCOMPARE(gif.images.size(), 2);
    const GIFImage::SubImage& first = gif.images[0];
    const GIFImage::SubImage& second = gif.images[1];
    QCOMPARE(first.delay, 7);
    QCOMPARE(int(first.disposal), int(GIFImage::ToPrevious));
    QCOMPARE(second.delay, 300);
    QCOMPARE(int(second.disposal), int(GIFImage::ToBackground));
    QCOMPARE(QRect(QPoint(second.left, second.top), second.image.size()), QRect(2, 1, 4, 3));
    QVERIFY(ppm(gif, second).endsWith(QByteArray("\x00\xff\x00", 3)));
}

void TestGIFImage::oddFiles_data()
{
    columns<QByteArray, bool, int>("bytes", "whole", "frames");
    const QByteArray start = head(true);
    const QByteArray huge = "," + bytesOf({0, 0, 0, 0, 255, 255, 255, 255, 0, 2, 2, 0x44, 0x0a, 0});
    QTest::newRow("plain") << start + frame() + ';' << true << 1;
    QTest::newRow("no frames") << start + ';' << true << 0;
    QTest::newRow("no colours") << head(false) + frame() + ';' << true << 1;
    QTest::newRow("background beyond the table") << head(true, 255) + frame() + ';' << true << 1;
    QTest::newRow("frame outside of the canvas") << start + frame(200) + ';' << true << 1;
    QTest::newRow("no end") << start + frame() << false << 1;
    QTest::newRow("frame of no width") << start + frame() + frame(0, 0) + ';' << false << 1;
    QTest::newRow("huge frame") << start + frame() + huge + ';' << false << 1;
    QTest::newRow("frame with too few pixels") << start + frame() + frame(0, 3) + ';' << false << 1;
    QTest::newRow("frame cut off") << start + frame() + frame().chopped(3) << false << 1;
    QTest::newRow("unknown record") << start + frame() + "x" << false << 1;
    QTest::newRow("no GIF") << "GIX" + start.mid(3) + frame() + ';' << false << 0;
}

void TestGIFImage::oddFiles()
{
    const auto [bytes, whole, frames] = fetched<QByteArray, bool, int>();
    GIFImage gif;
    gif.images.resize(5);
    QCOMPARE(load(gif, bytes), whole);
    QCOMPARE(gif.images.size(), frames);
    for (const GIFImage::SubImage& image : qAsConst(gif.images)) {
        QCOMPARE(int(image.image.constScanLine(0)[0]), 0);
        QCOMPARE(int(image.image.constScanLine(0)[1]), 1);
    }
}

/// A canvas of no size is that of its first frame; colours that are nowhere are transparent.
void TestGIFImage::withoutColors()
{
    QByteArray bytes = head(false) + frame(3) + ';';
    bytes.replace(6, 4, QByteArray(4, 0));
    GIFImage gif;
    QVERIFY(load(gif, bytes));
    QCOMPARE(gif.size, QSize(5, 1));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImage image;
    QVERIFY(loadImage(&buffer, "GIF", image));
    QCOMPARE(image.colorTable(), QVector<QRgb>(256, 0));
}

void TestGIFImage::refusesWhatHasNoPlaceInAFile()
{
    QRandomGenerator random(Seed);
    const GIFImage good = randomGIF(random);
    const QVector<void (*)(GIFImage&)> faults = {
        [](GIFImage& gif) { gif.size.setWidth(65536); },
        [](GIFImage& gif) { gif.size.setHeight(0); },
        [](GIFImage& gif) { gif.colors.resize(257); },
        [](GIFImage& gif) { gif.images[0].colors.resize(257); },
        [](GIFImage& gif) { gif.images[0].left = -1; },
        [](GIFImage& gif) { gif.images[0].top = 65536; },
        [](GIFImage& gif) { gif.images[0].delay = 65536; },
        [](GIFImage& gif) { gif.images[0].transparent = 256; },
        [](GIFImage& gif) { gif.images[0].image = QImage(); },
        [](GIFImage& gif) { gif.images[0].image = QImage(2, 2, QImage::Format_RGB32); },
    };
    QVERIFY(!saved(good).isEmpty());
    for (int i = 0; i < faults.size(); ++i) {
        GIFImage gif = good;
        faults[i](gif);
        QVERIFY2(saved(gif).isEmpty(), qPrintable(QString::number(i)));
    }
}

void TestGIFImage::brokenFiles()
{
    QRandomGenerator random(Seed);
    GIFImage seed = randomGIF(random);
    while (saved(seed).size() > 1500 || seed.images.size() < 2) {
        seed = randomGIF(random);
    }
    forEachBrokenForm(saved(seed), [](const QByteArray& broken) {
        GIFImage gif;
        load(gif, broken);
        for (const GIFImage::SubImage& image : qAsConst(gif.images)) {
            QVERIFY(!image.image.isNull() && image.image.format() == QImage::Format_Indexed8);
            QVERIFY(image.left >= 0 && image.top >= 0 && image.transparent < 256);
        }
        // What was read can be written again.
        QVERIFY(gif.images.isEmpty() || !saved(gif).isEmpty());
    });
}

QTEST_GUILESS_MAIN(TestGIFImage)
#include "tst_gifimage.moc"
