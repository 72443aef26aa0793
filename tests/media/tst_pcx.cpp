#include "media/pcx.h"

#include "support/brokenbytes.h"
#include "support/plaincodecs.h"
#include "support/spritepixels.h"
#include "support/testtable.h"

#include <QBuffer>
#include <QDataStream>
#include <QImage>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

using namespace Zorv;

namespace {

constexpr uint seed = 20261121;

QByteArray saved(const QImage& image, bool (*save)(const QImage&, QIODevice*) = savePCX)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return save(image, &buffer) ? buffer.data() : QByteArray();
}

QByteArray bytesOf(const QImage& image)
{
    QByteArray bytes;
    const int length = image.width() * image.depth() / 8;
    for (int y = 0; y < image.height(); ++y) {
        bytes.append(reinterpret_cast<const char*>(image.constScanLine(y)), length);
    }
    return bytes;
}

QImage colored(QImage::Format format, int width, int height, QRandomGenerator& random)
{
    const QByteArray bytes =
        SpritePixels::make(SpritePixels::Repeated, width * 4, height, 256, random);
    QImage image(width, height, format);
    memcpy(image.bits(), bytes.constData(), size_t(bytes.size()));
    return image;
}

QVector<QImage> images(int width, int height, QRandomGenerator& random)
{
    QVector<QImage> images = {colored(QImage::Format_RGB32, width, height, random),
                              colored(QImage::Format_ARGB32, width, height, random)};
    for (int kind = 0; kind < SpritePixels::kinds; ++kind) {
        images += SpritePixels::image(
            SpritePixels::make(SpritePixels::Kind(kind), width, height, 256, random), width,
            height);
    }
    return images;
}

/// Reads a file with both readers; a text if they differ.
QString differenceOf(const QByteArray& file)
{
    QBuffer buffer, plainBuffer;
    buffer.setData(file);
    plainBuffer.setData(file);
    plainBuffer.open(QIODevice::ReadOnly);
    QImage image, plain;
    const bool read = loadPCX(image, &buffer);
    if (read != Plain::loadPcx(plain, &plainBuffer)) {
        return QStringLiteral("result %1").arg(read);
    }
    return image.format() == plain.format() && image.size() == plain.size() &&
                   bytesOf(image) == bytesOf(plain) && image.colorTable() == plain.colorTable()
               ? QString()
               : QStringLiteral("image");
}

/// A file of a header with these fields, and bytes behind it.
QByteArray fileOf(const QPCXHeader& header, const QByteArray& bytes)
{
    QByteArray file;
    QDataStream stream(&file, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << header;
    return file + bytes;
}

QPCXHeader headerOf(int width, int height, int planes = 1, int bits = 8)
{
    QPCXHeader header;
    header.right = quint16(width - 1);
    header.bottom = quint16(height - 1);
    header.bytesPerLine = quint16(width);
    header.planes = quint8(planes);
    header.bitsPerPixel = quint8(bits);
    return header;
}

}  // namespace

class TestPcx : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qInfo("seed %u", seed); }
    void roundTrip();
    void palettes_data();
    void palettes();
    void forms_data();
    void forms();
    void brokenFiles();
    void refused_data();
    void refused();
    void otherPrograms();
};

void TestPcx::roundTrip()
{
    QRandomGenerator random(seed);
    for (const int width : {1, 2, 7, 63, 64, 200}) {
        const auto all = images(width, 1 + random.bounded(40), random);
        for (const QImage& image : all) {
            const QByteArray file = saved(image);
            QCOMPARE(file, saved(image, Plain::savePcx));
            QCOMPARE(differenceOf(file), QString());
            QBuffer buffer;
            buffer.setData(file);
            QImage back;
            QVERIFY(loadPCX(back, &buffer));
            QVERIFY(back == image);
        }
    }
    QVERIFY(saved(QImage()).isEmpty());
    QVERIFY(saved(QImage(8, 8, QImage::Format_Mono)).isEmpty());
    QVERIFY(saved(QImage(65536, 1, QImage::Format_Indexed8)).isEmpty());
}

void TestPcx::palettes_data()
{
    columns<QByteArray, int, bool>("behind", "colors", "result");
    const QByteArray colors(768, '\x21');
    QTest::newRow("nothing") << QByteArray() << 0 << true;
    QTest::newRow("right behind") << '\x0C' + colors << 256 << true;
    QTest::newRow("another marker") << '\x0D' + colors << 0 << true;
    QTest::newRow("cut") << '\x0C' + colors.left(500) << 256 << false;
    // Found a byte late: the first red is taken for the marker.
    QTest::newRow("bytes between") << "between\x0C" + colors << 0 << true;
    QTest::newRow("bytes between, red of 12") << "between\x0C\x0C" + colors.mid(1) << 256 << false;
}

void TestPcx::palettes()
{
    const auto [behind, colors, result] = fetched<QByteArray, int, bool>();
    const QByteArray file = fileOf(headerOf(2, 1), "\1\2" + behind);
    QBuffer buffer;
    buffer.setData(file);
    QImage image = SpritePixels::image("\7\7", 2, 1);
    QCOMPARE(loadPCX(image, &buffer), result);
    QCOMPARE(image.colorCount(), colors);
    QCOMPARE(bytesOf(image), QByteArray("\1\2"));
    QCOMPARE(differenceOf(file), QString());
}

void TestPcx::forms_data()
{
    columns<int, int>("planes", "bits");
    for (const int depth : {4, 5, 8, 16, 24, 32}) {
        for (int planes = 1; planes <= depth; ++planes) {
            if (depth % planes == 0) {
                QTest::addRow("%d x %d", planes, depth / planes) << planes << depth / planes;
            }
        }
    }
}

/// Odd numbers of planes, of bytes a line and runs that reach over both.
void TestPcx::forms()
{
    const auto [planes, bits] = fetched<int, int>();
    QRandomGenerator random(seed);
    for (const int bytesPerLine : {1, 4, 8, 9, 10, 70}) {
        QPCXHeader header = headerOf(9, 5, planes, bits);
        header.bytesPerLine = quint16(bytesPerLine);
        header.encoding = 0;
        QByteArray bytes;
        while (bytes.size() < 5 * planes * bytesPerLine) {
            bytes += char(random.bounded(192, 256));
            bytes += char(random.bounded(256));
        }
        QCOMPARE(differenceOf(fileOf(header, bytes)), QString());
        for (const int part : {3, 7, 11}) {
            QCOMPARE(differenceOf(fileOf(header, bytes.left(bytes.size() / part))), QString());
        }
    }
}

void TestPcx::brokenFiles()
{
    QRandomGenerator random(seed);
    QVector<QImage> seeds = {colored(QImage::Format_RGB32, 5, 2, random),
                             colored(QImage::Format_ARGB32, 3, 3, random),
                             SpritePixels::image(QByteArray(4, '\xD0') + "\1\2\3\4", 4, 2)};
    for (const QImage& image : qAsConst(seeds)) {
        forEachBrokenForm(saved(image),
                          [](const QByteArray& file) { QCOMPARE(differenceOf(file), QString()); });
    }
}

void TestPcx::refused_data()
{
    QTest::addColumn<QByteArray>("file");
    const QByteArray bytes(900, '\xFF');
    QPCXHeader header = headerOf(20000, 20000);
    QTest::newRow("20,000 by 20,000") << fileOf(header, bytes);
    header.bytesPerLine = 1;
    QTest::newRow("20,000 by 20,000 of short lines") << fileOf(header, bytes);
    header = headerOf(4, 4);
    header.left = 7;
    QTest::newRow("right below left") << fileOf(header, bytes);
    header.left = 4;
    QTest::newRow("no width") << fileOf(header, bytes);
    header = headerOf(4, 4);
    header.version = 3;
    QTest::newRow("version 3") << fileOf(header, bytes);
    header = headerOf(4, 4);
    header.bytesPerLine = 0;
    QTest::newRow("no bytes a line") << fileOf(header, bytes);
    QTest::newRow("no planes") << fileOf(headerOf(4, 4, 0), bytes);
}

void TestPcx::refused()
{
    QFETCH(QByteArray, file);
    QBuffer buffer;
    buffer.setData(file);
    QImage image;
    QVERIFY(!loadPCX(image, &buffer));
    QVERIFY(image.isNull());
}

/// ImageMagick and Netpbm read what is written here, and write what is read here.
void TestPcx::otherPrograms()
{
    QTemporaryDir folder;
    const auto run = [&](const QString& command) {
        QProcess process;
        process.setWorkingDirectory(folder.path());
        process.start(QStringLiteral("sh"), {QStringLiteral("-c"), command});
        return process.waitForFinished() && process.exitCode() == 0;
    };
    QRandomGenerator random(seed);
    QImage image =
        SpritePixels::image(SpritePixels::make(SpritePixels::Drawn, 61, 43, 256, random), 61, 43);
    const QImage color = colored(QImage::Format_RGB32, 61, 43, random);
    for (const QImage& source : {image, color}) {
        QFile file(folder.filePath(QStringLiteral("own.pcx")));
        QVERIFY(file.open(QIODevice::WriteOnly) && savePCX(source, &file));
        file.close();
        QVERIFY2(run(QStringLiteral("convert own.pcx im.png && pcxtoppm own.pcx >np.ppm && "
                                    "convert np.ppm im.pcx && ppmtopcx -24bit np.ppm >np.pcx")),
                 "ImageMagick and Netpbm have to be installed");
        const QImage expected = source.convertToFormat(QImage::Format_RGB32);
        for (const char* name : {"im.png", "np.ppm"}) {
            QImage read(folder.filePath(QLatin1String(name)));
            QVERIFY2(read.convertToFormat(QImage::Format_RGB32) == expected, name);
        }
        for (const char* name : {"im.pcx", "np.pcx"}) {
            QFile other(folder.filePath(QLatin1String(name)));
            QImage read;
            QVERIFY2(loadPCX(read, &other), name);
            QVERIFY2(read.convertToFormat(QImage::Format_RGB32) == expected, name);
        }
    }
}

QTEST_APPLESS_MAIN(TestPcx)
#include "tst_pcx.moc"
