#include "media/imagefile.h"

#include "core/extensionmanager.h"
#include "media/colorconversion.h"
#include "media/losslessimages.h"
#include "media/png.h"
#include "support/brokenbytes.h"
#include "support/testtable.h"
#include "support/tool.h"

#include <QBuffer>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryFile>
#include <QtTest>

#include <malloc.h>
#include <unistd.h>

using namespace Zorv;

namespace {

QImage loaded(QByteArray bytes, const QByteArray& format)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImage image;
    const bool ok = loadImage(&buffer, format.constData(), image);
    return ok ? image : QImage();
}

QByteArray saved(const QImage& image, const QByteArray& format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return saveImage(&buffer, format.constData(), image) ? bytes : QByteArray();
}

ImageInfo infoOf(QByteArray bytes, const QByteArray& format)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return imageInfoFromFile(&buffer, format.constData());
}

/// Red, green, blue and alpha of every pixel; red, green and blue of what is transparent do not
/// count.
QByteArray rgba(const QImage& image)
{
    QByteArray bytes;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb color = image.pixel(x, y);
            for (int channel : {qRed(color), qGreen(color), qBlue(color), qAlpha(color)}) {
                bytes.append(char(qAlpha(color) == 0 ? 0 : channel));
            }
        }
    }
    return bytes;
}

/// The same as ImageMagick sees a file.
QByteArray rgbaByMagick(const QByteArray& bytes, const QString& format)
{
    const QStringList arguments = {format + QStringLiteral(":-"), QStringLiteral("-depth"),
                                   QStringLiteral("16"),          QStringLiteral("-endian"),
                                   QStringLiteral("LSB"),         QStringLiteral("rgba:-")};
    const QByteArray wide = runTool(QStringLiteral("convert"), arguments, bytes);
    QByteArray pixels;
    for (int i = 0; i + 7 < wide.size(); i += 8) {
        const bool clear = qFromLittleEndian<quint16>(wide.constData() + i + 6) == 0;
        for (int channel = 0; channel < 4; ++channel) {
            const int value = qFromLittleEndian<quint16>(wide.constData() + i + 2 * channel);
            pixels.append(char(clear ? 0 : (value + 128) / 257));
        }
    }
    return pixels;
}

/// A file that ImageMagick makes of a picture of 23 by 17 with some transparent pixels.
QByteArray madeByMagick(const QString& arguments, const QString& target)
{
    QRandomGenerator random(5);
    QByteArray pixels;
    for (int i = 0; i < 23 * 17; ++i) {
        const bool clear = i % 11 == 0;
        const int shade = (i / 23) * 15;
        pixels.append(char(clear ? 0 : shade)).append(char(clear ? 0 : random.bounded(4) * 80));
        pixels.append(char(clear ? 0 : 255 - shade)).append(char(clear ? 0 : 255));
    }
    QStringList all = {QStringLiteral("-size"), QStringLiteral("23x17"), QStringLiteral("-depth"),
                       QStringLiteral("8"), QStringLiteral("rgba:-")};
    all << arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts) << target + QStringLiteral(":-");
    return runTool(QStringLiteral("convert"), all, pixels);
}

/// Compares indices, too, that no colour stands behind.
bool isSame(const QImage& one, const QImage& other)
{
    const auto bytes = [](const QImage& image) {
        QByteArray lines;
        for (int y = 0; y < image.height(); ++y) {
            lines.append(reinterpret_cast<const char*>(image.constScanLine(y)),
                         image.width() * image.depth() / 8);
        }
        return lines;
    };
    return one.size() == other.size() && one.format() == other.format() &&
           one.colorTable() == other.colorTable() && bytes(one) == bytes(other);
}

QImage indexedPicture(int colors)
{
    QRandomGenerator random(8);
    QImage image(19, 7, QImage::Format_Indexed8);
    QVector<QRgb> table;
    for (int i = 0; i < colors; ++i) {
        table.append(random.generate() | 0xff000000);
    }
    image.setColorTable(table);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            image.setPixel(x, y, uint(random.bounded(colors)));
        }
    }
    return image;
}

/// The largest amount of memory that the process has had so far, in KiB.
qint64 peakMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    status.open(QIODevice::ReadOnly);
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmPeak:")) {
            return line.mid(7).trimmed().split(' ').first().toLongLong();
        }
    }
    return 0;
}

QByteArray bigEndian(quint32 value)
{
    QByteArray bytes(4, 0);
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray littleEndian(quint32 value, int size)
{
    QByteArray bytes(4, 0);
    qToLittleEndian(value, bytes.data());
    return bytes.left(size);
}

QByteArray pngChunk(const QByteArray& type, const QByteArray& data)
{
    const QByteArray chunk = type + data;
    quint32 crc = 0xffffffff;
    for (const char byte : chunk) {
        crc ^= uchar(byte);
        for (int i = 0; i < 8; ++i) {
            crc = crc & 1 ? crc >> 1 ^ 0xedb88320 : crc >> 1;
        }
    }
    return bigEndian(quint32(data.size())) + chunk + bigEndian(~crc);
}

QByteArray pngHead(quint32 width, quint32 height, int depth, int type)
{
    QByteArray head = bigEndian(width) + bigEndian(height);
    head.append(char(depth)).append(char(type)).append(QByteArray(3, 0));
    return "\x89PNG\r\n\x1a\n" + pngChunk("IHDR", head);
}

QByteArray bmpHead(qint32 width, qint32 height, int bits, quint32 compression = 0)
{
    return "BM" + littleEndian(1024, 4) + littleEndian(0, 4) + littleEndian(54, 4) +
           littleEndian(40, 4) + littleEndian(quint32(width), 4) +
           littleEndian(quint32(height), 4) + littleEndian(1, 2) + littleEndian(quint32(bits), 2) +
           littleEndian(compression, 4) + QByteArray(20, 0);
}

QByteArray gifHead(int width, int height, int flags)
{
    return "GIF89a" + littleEndian(quint32(width), 2) + littleEndian(quint32(height), 2) +
           QByteArray(1, char(flags)) + QByteArray(2, 0);
}

QByteArray gifFrameHead(int width, int height)
{
    return "," + QByteArray(4, 0) + littleEndian(quint32(width), 2) +
           littleEndian(quint32(height), 2) + QByteArray(1, 0) + "\x08";
}

/// Catches what goes to standard error, past the messages of Qt.
class CaughtErrors
{
public:
    CaughtErrors()
    {
        m_file.open();
        dup2(m_file.handle(), STDERR_FILENO);
    }
    ~CaughtErrors()
    {
        dup2(m_stderr, STDERR_FILENO);
        close(m_stderr);
    }

    QByteArray text() const
    {
        QFile file(m_file.fileName());
        file.open(QIODevice::ReadOnly);
        return file.readAll();
    }

private:
    QTemporaryFile m_file;
    int m_stderr = dup(STDERR_FILENO);
};

/// A format that turns one byte into a picture of one pixel.
class OneByteFormat : public Extension
{
public:
    explicit OneByteFormat(Type type) : m_type(type) {}
    Type type() const override { return m_type; }
    QByteArray name() const override { return "png"; }
    bool loadImage(QIODevice* device, QImage& image) override
    {
        char byte = 0;
        if (!device->getChar(&byte)) {
            return false;
        }
        image = QImage(1, 1, QImage::Format_RGB32);
        image.fill(uint(uchar(byte)));
        return true;
    }
    bool saveImage(QIODevice* device, const QImage& image) override
    {
        return device->putChar(char(qBlue(image.pixel(0, 0))));
    }

private:
    Type m_type;
};

}  // namespace

class TestImageFile : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { setLosslessImages(false); }
    void filesOfMagick_data();
    void filesOfMagick();
    void clearedAsHostsExpect();
    void whatIsSavedIsReadByOthers_data();
    void whatIsSavedIsReadByOthers();
    void headers_data();
    void headers();
    void hugeHeadersTakeNoMemory_data();
    void hugeHeadersTakeNoMemory();
    void wholeBMP_data();
    void wholeBMP();
    void brokenFiles_data();
    void brokenFiles();
    void nearestColorIsThatOfAPlainSearch();
};

void TestImageFile::filesOfMagick_data()
{
    columns<QString, QString, int>("arguments", "target", "format");
    const int indexed = QImage::Format_Indexed8;
    const int solid = QImage::Format_RGB32;
    const int clear = QImage::Format_ARGB32;
    const QString gray = QStringLiteral("-alpha off -colorspace gray ");
    const QString flat = QStringLiteral("-alpha off ");
    row("PNG 1 bit", gray + "-threshold 50% -type bilevel", "png", indexed);
    row("PNG 2 bits of grey", gray + "-depth 2", "png", indexed);
    row("PNG grey", gray, "png", indexed);
    row("PNG 16 bits of grey", gray, "png48", solid);
    row("PNG palette", flat + "-colors 9", "png8", indexed);
    row("PNG palette with alpha", "-colors 9", "png8", indexed);
    row("PNG RGB", flat, "png24", solid);
    row("PNG RGBA", "", "png32", clear);
    row("PNG RGBA 16 bits", "", "png64", clear);
    row("PNG interlaced", "-interlace PNG", "png32", clear);
    row("BMP 1 bit", gray + "-threshold 50% -type bilevel", "bmp", indexed);
    row("BMP 4 bits", flat + "-colors 9 -type palette", "bmp3", indexed);
    row("BMP runs", flat + "-colors 40 -type palette -compress RLE", "bmp3", indexed);
    row("BMP RGB", flat, "bmp3", solid);
    row("BMP RGBA", "", "bmp", clear);
    row("GIF", "-colors 20", "gif", indexed);
    row("GIF interlaced", "-colors 20 -interlace GIF", "gif", indexed);
    row("PCX palette", flat + "-colors 200 -type palette", "pcx", indexed);
    row("PCX RGB", flat + "-type truecolor", "pcx", solid);
}

void TestImageFile::filesOfMagick()
{
    const auto [arguments, target, format] = fetched<QString, QString, int>();
    setLosslessImages(true);
    const QByteArray bytes = madeByMagick(arguments, target);
    const QString reader = target.left(3);
    const QImage image = loaded(bytes, reader.toUpper().toLatin1());
    QCOMPARE(int(image.format()), format);
    QCOMPARE(image.size(), QSize(23, 17));
    QCOMPARE(rgba(image), rgbaByMagick(bytes, reader));
}

void TestImageFile::clearedAsHostsExpect()
{
    const QByteArray rgb = madeByMagick(QStringLiteral("-alpha off"), QStringLiteral("png24"));
    const QByteArray bilevel = madeByMagick(
        QStringLiteral("-alpha off -threshold 50% -type bilevel"), QStringLiteral("png"));
    const QImage cut = loaded(rgb, "PNG");
    setLosslessImages(true);
    const QImage whole = loaded(rgb, "PNG");
    QCOMPARE(cut.size(), whole.size());
    for (int y = 0; y < cut.height(); ++y) {
        const QByteArray expected =
            QByteArray(reinterpret_cast<const char*>(whole.constScanLine(y)), 3 * whole.width()) +
            QByteArray(whole.width(), 0);
        QCOMPARE(QByteArray(reinterpret_cast<const char*>(cut.constScanLine(y)), expected.size()),
                 expected);
    }
    setLosslessImages(false);
    const QImage mono = loaded(bilevel, "PNG");
    QVERIFY(!mono.isNull());
    for (int y = 0; y < mono.height(); ++y) {
        const auto* const line = reinterpret_cast<const char*>(mono.constScanLine(y));
        QCOMPARE(QByteArray(line, mono.bytesPerLine()), QByteArray(mono.bytesPerLine(), 0));
    }
}

void TestImageFile::whatIsSavedIsReadByOthers_data()
{
    columns<QByteArray, QString>("format", "tool");
    row("PNG", QByteArray("PNG"), "pngtopnm");
    row("BMP", QByteArray("BMP"), "bmptoppm");
    row("GIF", QByteArray("GIF"), "giftopnm");
    row("PCX", QByteArray("PCX"), "pcxtoppm");
}

/// Of one colour more than a table of a power of two, and of the most that there can be.
void TestImageFile::whatIsSavedIsReadByOthers()
{
    const auto [format, tool] = fetched<QByteArray, QString>();
    setLosslessImages(true);
    for (int colors : {2, 5, 33, 256}) {
        const QImage image = indexedPicture(colors);
        const QByteArray bytes = saved(image, format);
        QCOMPARE(rgba(loaded(bytes, format)), rgba(image));
        QByteArray expected = "P6\n19 7\n255\n";
        const QByteArray pixels = rgba(image);
        for (int i = 0; i < pixels.size(); i += 4) {
            expected += pixels.mid(i, 3);
        }
        QCOMPARE(runTool(tool, {}, bytes), expected);
    }
}

void TestImageFile::headers_data()
{
    columns<QByteArray, QByteArray, QSize, int>("bytes", "format", "size", "pixels");
    const int indexed = QImage::Format_Indexed8;
    const int none = QImage::Format_Invalid;
    const auto add = [](const char* name, const QByteArray& bytes, const char* format,
                        const QSize& size,
                        int pixels) { row(name, bytes, QByteArray(format), size, pixels); };
    add("unknown", pngHead(3, 4, 8, 6), "png", {0, 0}, indexed);
    add("PNG palette", pngHead(3, 4, 8, 3), "PNG", {3, 4}, indexed);
    add("PNG grey", pngHead(3, 4, 16, 0), "PNG", {3, 4}, indexed);
    add("PNG RGB", pngHead(70000, 4, 8, 2), "PNG", {70000 - 65536, 4}, QImage::Format_RGB32);
    add("PNG RGBA", pngHead(3, 4, 8, 6), "PNG", {3, 4}, QImage::Format_ARGB32);
    add("PNG signature", "X" + pngHead(3, 4, 8, 6).mid(1), "PNG", {0, 0}, indexed);
    add("PNG without head", pngHead(3, 4, 8, 6).replace("IHDR", "IDAT"), "PNG", {0, 0}, indexed);
    add("BMP upside down", bmpHead(-3, -4, 8), "BMP", {3, 4}, indexed);
    add("BMP 5", bmpHead(3, 4, 5), "BMP", {3, 4}, indexed);
    add("BMP 24", bmpHead(3, 4, 24), "BMP", {3, 4}, QImage::Format_RGB32);
    add("BMP 32", bmpHead(3, 4, 32), "BMP", {3, 4}, QImage::Format_ARGB32);
    add("BMP 4", bmpHead(3, 4, 4), "BMP", {3, 4}, none);
    add("BMP lowest", bmpHead(INT_MIN, 4, 8), "BMP", {0, 4}, indexed);
    add("GIF 32", gifHead(3, 4, 0xf4), "GIF", {3, 4}, indexed);
    add("GIF 256", gifHead(3, 4, 0xf7), "GIF", {3, 4}, indexed);
    add("GIF 16", gifHead(3, 4, 0xf3), "GIF", {3, 4}, none);
    add("GIF signature", "GIX" + gifHead(3, 4, 0xf7).mid(3), "GIF", {0, 0}, indexed);
    const auto pcx = [](int bits, int planes) {
        QByteArray head(128, 0);
        head.replace(0, 4, QByteArray("\x0a\x05\x01", 3) + char(bits));
        head.replace(4, 8, QByteArray("\x02\0\x01\0\x0b\0\x06\0", 8));
        head[65] = char(planes);
        return head;
    };
    add("PCX 8", pcx(8, 1), "PCX", {10, 6}, indexed);
    add("PCX 24", pcx(8, 3), "PCX", {10, 6}, QImage::Format_RGB32);
    add("PCX 32", pcx(8, 4), "PCX", {10, 6}, QImage::Format_ARGB32);
    add("PCX 16", pcx(4, 4), "PCX", {10, 6}, none);
}

void TestImageFile::headers()
{
    const auto [bytes, format, size, pixels] = fetched<QByteArray, QByteArray, QSize, int>();
    const ImageInfo info = infoOf(bytes, format);
    QCOMPARE(QSize(info.width, info.height), size);
    QCOMPARE(int(info.format), pixels);
}

void TestImageFile::hugeHeadersTakeNoMemory_data()
{
    columns<QByteArray, QByteArray>("head", "format");
    const QByteArray idat = bigEndian(5000) + "IDAT";
    row("PNG", pngHead(20000, 20000, 8, 6) + idat, QByteArray("PNG"));
    row("PNG 1 bit", pngHead(200000, 20000, 1, 0) + idat, QByteArray("PNG"));
    row("PNG with a huge chunk", pngHead(2, 2, 8, 0) + bigEndian(1500000000) + "tEXt",
        QByteArray("PNG"));
    QByteArray texts;
    for (int i = 0; i < 20; ++i) {
        texts +=
            pngChunk("zTXt", QByteArray("k\0\0", 3) + qCompress(QByteArray(7900000, 'a')).mid(4));
    }
    row("PNG with packed texts", pngHead(2, 2, 8, 0) + texts, QByteArray("PNG"));
    row("BMP", bmpHead(16000, 16000, 24), QByteArray("BMP"));
    row("BMP upside down", bmpHead(16000, -16000, 8), QByteArray("BMP"));
    row("BMP runs", bmpHead(16000, 16000, 8, 1), QByteArray("BMP"));
    row("GIF", gifHead(20000, 20000, 0) + gifFrameHead(20000, 20000), QByteArray("GIF"));
}

void TestImageFile::hugeHeadersTakeNoMemory()
{
    const auto [head, format] = fetched<QByteArray, QByteArray>();
    const QByteArray bytes = head.leftJustified(1024, '\x11');
    QVERIFY(!loaded(saved(indexedPicture(2), format), format).isNull());
    const qint64 before = peakMemory();
    QVERIFY(loaded(bytes, format).isNull());
    if (format == "PNG") {
        QByteArray copy = bytes;
        QBuffer buffer(&copy);
        QImage image(1, 1, QImage::Format_RGB32);
        QVERIFY(loadPNG(image, &buffer));
        QVERIFY(image.isNull());
    }
    QVERIFY(peakMemory() - before < 64 << 10);
}

void TestImageFile::wholeBMP_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const auto add = [](const char* name, const QString& arguments, const char* target = "bmp3") {
        row(name, madeByMagick("-alpha off " + arguments, target));
    };
    add("1 bit", "-threshold 50% -type bilevel");
    add("4 bits", "-colors 9 -type palette -compress none");
    add("8 bits", "-colors 40 -type palette -compress none");
    add("runs", "-colors 40 -type palette -compress RLE");
    add("16 bits", "-define bmp:subtype=RGB565", "bmp");
    add("24 bits", "");
    add("32 bits", "-alpha on", "bmp");
    add("of OS/2", "-colors 9 -type palette", "bmp2");
    QByteArray fromTheTop = madeByMagick("-alpha off", "bmp3");
    fromTheTop.replace(22, 4, littleEndian(quint32(-17), 4));
    row("from the top", fromTheTop);

    const QByteArray table = littleEndian(0xFF, 4) + QByteArray(15 * 4, '\x44');
    const QByteArray runs4 = QByteArrayLiteral("\x05\x10\0\0\0\x05\x12\x34\x50\0");
    row("runs of 4 bits, full", bmpHead(5, 2, 4, 2) + table + runs4);
    row("runs of 4 bits, ended",
        bmpHead(5, 3, 4, 2) + table + runs4 + QByteArrayLiteral("\0\0\0\2\2\0\1\x33\0\1"));
    row("runs with gaps", bmpHead(7, 3, 8, 1) + table + QByteArray(240 * 4, '\x66') +
                              QByteArrayLiteral("\3\1\0\0\0\2\3\1\0\3\7\x8\x9\0\0\1"));
}

// A file that is cut short is refused, or has lost nothing that is seen.
void TestImageFile::wholeBMP()
{
    QFETCH(QByteArray, bytes);
    setLosslessImages(true);
    const QImage whole = loaded(bytes, "BMP");
    QVERIFY(!whole.isNull());
    QVERIFY(isSame(loaded(bytes + QByteArray(9, 0), "BMP"), whole));
    for (int length = 0; length < bytes.size(); ++length) {
        // What is read must not be what was in memory.
        for (const int memory : {0x11, 0xEE}) {
            mallopt(M_PERTURB, memory);
            const QImage cut = loaded(bytes.left(length), "BMP");
            QVERIFY2(cut.isNull() || isSame(cut, whole), qPrintable(QString::number(length)));
        }
    }
}

void TestImageFile::brokenFiles_data()
{
    columns<QByteArray, QByteArray>("bytes", "format");
    for (const char* format : {"PNG", "BMP", "GIF", "PCX"}) {
        row(format, saved(indexedPicture(5), format), QByteArray(format));
    }
    row("BMP runs",
        madeByMagick(QStringLiteral("-alpha off -colors 9 -type palette -compress "
                                    "RLE"),
                     QStringLiteral("bmp3")),
        QByteArray("BMP"));
}

void TestImageFile::brokenFiles()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, format);
    setLosslessImages(true);
    const qint64 before = peakMemory();
    const CaughtErrors errors;
    int read = 0;
    forEachBrokenForm(bytes, [&](const QByteArray& broken) {
        infoOf(broken, format);
        const QImage image = loaded(broken, format);
        if (format == "BMP") {
            mallopt(M_PERTURB, read % 255 + 1);
            QVERIFY(isSame(loaded(broken, format), image));
        }
        read += !image.isNull();
        const QImage::Format form = image.format();
        QVERIFY(image.isNull() || form == QImage::Format_Indexed8 || form == QImage::Format_RGB32 ||
                form == QImage::Format_ARGB32);
    });
    QVERIFY(read > 0);
    QVERIFY(peakMemory() - before < 160 << 10);
    QCOMPARE(errors.text(), QByteArray());
}

void TestImageFile::nearestColorIsThatOfAPlainSearch()
{
    QRandomGenerator random(77);
    for (int round = 0; round < 2000; ++round) {
        // Few values, so that there are many equal distances.
        const auto value = [&random] { return quint8(random.bounded(6) * 51); };
        RGBA palette[256];
        for (RGBA& entry : palette) {
            entry = {value(), value(), value(), value()};
        }
        const BGRA color = {value(), value(), value(), value()};
        quint32 best = ~0u;
        int expected = 0;
        for (int i = 0; i < 256; ++i) {
            const RGBA& entry = palette[i];
            quint32 sum = quint32(qPow(color.r - entry.r, 2) + qPow(color.g - entry.g, 2) +
                                  qPow(color.b - entry.b, 2));
            sum = sum * color.a / 255 + quint32(qPow(color.a - entry.a, 2));
            if (sum < best) {
                best = sum;
                expected = i;
            }
        }
        QCOMPARE(int(nearestColor(color, palette)), expected);
    }
}

QTEST_GUILESS_MAIN(TestImageFile)
#include "tst_imagefile.moc"
