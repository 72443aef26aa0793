// LZ5, RLE5 and RLE8 against plain loops: the same bytes, the same pixels, the same results.

#include "media/lz5.h"
#include "media/rle.h"

#include "support/brokenbytes.h"
#include "support/plaincodecs.h"
#include "support/spritepixels.h"
#include "support/testtable.h"

#include <QBuffer>
#include <QImage>
#include <QRandomGenerator>
#include <QtTest>

using namespace Zorv;

namespace {

constexpr uint seed = 20261121;
constexpr uchar Untouched = 0xAA;

struct Codec
{
    const char* name;
    bool (*load)(QImage&, QIODevice*);
    bool (*save)(const QImage&, QIODevice*);
    int (*plainRead)(Plain::Bytes&, uchar*, int);
    QByteArray (*plainWrite)(const QByteArray&);
    bool clears;  ///< what is not decoded becomes 0
};

bool saveLz5(const QImage& image, QIODevice* device)
{
    return saveLZ5(image, device, true);
}

bool saveLz5Runs(const QImage& image, QIODevice* device)
{
    return saveLZ5(image, device, false);
}

/// There is no writer of RLE5: four pixels a packet, a run of one and three repeats of none.
QByteArray writeRle5(const QByteArray& pixels)
{
    QByteArray out;
    for (int i = 0; i < pixels.size(); i += 4) {
        out += QByteArray(1, 0) + char(0x83) + pixels.mid(i, 4).leftJustified(4);
    }
    return out;
}

const Codec codecs[] = {
    {"LZ5", loadLZ5, saveLz5, Plain::readLz5,
     [](const QByteArray& pixels) { return Plain::writeLz5(pixels, true); }, true},
    {"LZ5 of runs", loadLZ5, saveLz5Runs, Plain::readLz5,
     [](const QByteArray& pixels) { return Plain::writeLz5(pixels, false); }, true},
    {"RLE8", loadRLE8, saveRLE8, Plain::readRle8, Plain::writeRle8, false},
    {"RLE5", loadRLE5, nullptr, Plain::readRle5, writeRle5, false},
};

QByteArray saved(const Codec& codec, const QImage& image)
{
    QBuffer buffer;
    return codec.save(image, &buffer) ? buffer.data() : QByteArray("failed");
}

/// Reads bytes with both readers; a text if they differ.
QString differenceOf(const Codec& codec, const QByteArray& bytes, int width, int height)
{
    QByteArray expected(Plain::Lz5Front + width * height, 0);
    Plain::Bytes in(bytes);
    const int count = codec.plainRead(
        in, reinterpret_cast<uchar*>(expected.data()) + Plain::Lz5Front, width * height);
    expected.remove(0, Plain::Lz5Front);
    if (!codec.clears) {
        std::fill(expected.begin() + count, expected.end(), char(Untouched));
    }

    QImage image(width, height, QImage::Format_Indexed8);
    image.fill(Untouched);
    QBuffer buffer;
    buffer.setData(bytes);
    const bool read = codec.load(image, &buffer);
    if (read == in.ranOut) {
        return QStringLiteral("result %1").arg(read);
    }
    if (buffer.bytesAvailable() != in.end - in.at) {
        return QStringLiteral("%1 bytes left").arg(buffer.bytesAvailable());
    }
    return SpritePixels::pixels(image) == expected ? QString() : QStringLiteral("pixels");
}

/// A device that tells nothing of its size, or takes a few bytes only.
class Pipe : public QIODevice
{
public:
    explicit Pipe(QByteArray bytes, int room = 0) : m_bytes(std::move(bytes)), m_room(room) {}
    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override { return m_bytes.size() + QIODevice::bytesAvailable(); }

protected:
    qint64 readData(char* data, qint64 size) override
    {
        const QByteArray taken = m_bytes.left(int(size));
        m_bytes.remove(0, taken.size());
        memcpy(data, taken.constData(), size_t(taken.size()));
        return taken.size();
    }
    qint64 writeData(const char*, qint64 size) override
    {
        const qint64 taken = qMin(size, m_room);
        m_room -= taken;
        return taken;
    }

private:
    QByteArray m_bytes;
    qint64 m_room;
};

}  // namespace

class TestPixelCodecs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qInfo("seed %u", seed); }
    void writers_data();
    void writers();
    void matches();
    void streams_data();
    void streams();
    void brokenStreams_data() { addCodecs(); }
    void brokenStreams();
    void randomStreams_data() { addCodecs(); }
    void randomStreams();
    void widePixels();
    void formsWithoutBytes_data() { addCodecs(); }
    void formsWithoutBytes();
    void devices_data() { addCodecs(); }
    void devices();

private:
    static void addCodecs();
};

void TestPixelCodecs::addCodecs()
{
    QTest::addColumn<int>("codec");
    for (int i = 0; i < int(std::size(codecs)); ++i) {
        QTest::newRow(codecs[i].name) << i;
    }
}

void TestPixelCodecs::writers_data()
{
    columns<int, int>("codec", "kind");
    for (int codec = 0; codecs[codec].save; ++codec) {
        for (int kind = 0; kind < SpritePixels::kinds; ++kind) {
            QTest::addRow("%s, %s", codecs[codec].name,
                          SpritePixels::name(SpritePixels::Kind(kind)))
                << codec << kind;
        }
    }
}

void TestPixelCodecs::writers()
{
    const auto [codec, kind] = fetched<int, int>();
    QRandomGenerator random(seed);
    for (const int colors : {2, 3, 16, 32, 256}) {
        for (const QSize size :
             {QSize(1, 1), QSize(3, 2), QSize(17, 1), QSize(64, 64), QSize(131, 57),
              QSize(1 + random.bounded(90), 1 + random.bounded(90))}) {
            const QByteArray pixels = SpritePixels::make(SpritePixels::Kind(kind), size.width(),
                                                         size.height(), colors, random);
            const QImage image = SpritePixels::image(pixels, size.width(), size.height());
            const QByteArray bytes = saved(codecs[codec], image);
            QCOMPARE(bytes, codecs[codec].plainWrite(pixels));
            QCOMPARE(differenceOf(codecs[codec], bytes, size.width(), size.height()), QString());
            QImage back(size, QImage::Format_Indexed8);
            QBuffer buffer;
            buffer.setData(bytes);
            QVERIFY(codecs[codec].load(back, &buffer));
            QVERIFY(SpritePixels::pixels(back) == pixels || (colors > 32 && codec < 2));
        }
    }
}

void TestPixelCodecs::matches()
{
    QRandomGenerator random(seed);
    for (int round = 0; round < 40; ++round) {
        const auto kind = SpritePixels::Kind(round % SpritePixels::kinds);
        const QByteArray bytes = SpritePixels::make(kind, 61, 25, 2 + round / 2, random);
        const auto* pixels = reinterpret_cast<const uchar*>(bytes.constData());
        for (int i = 0; i < bytes.size(); i += 1 + random.bounded(3)) {
            const QPack found = lzFind(pixels + i, i, uint(bytes.size()));
            const QPack plain = Plain::lzFind(pixels, i, bytes.size());
            QCOMPARE(found.length, plain.length);
            QCOMPARE(found.value, plain.value);
            QCOMPARE(found.isShort, plain.isShort);
        }
    }
}

void TestPixelCodecs::streams_data()
{
    columns<int, QByteArray, QByteArray>("codec", "pixels", "bytes");
    const auto row = [](const char* name, int codec, const QByteArray& pixels, const char* hex) {
        QTest::newRow(name) << codec << pixels << QByteArray::fromHex(hex);
    };
    const QByteArray pair("\1\2", 2);
    row("nothing", 0, "", "");
    row("one pixel", 0, "\5", "00 25");
    row("indices beyond five bits", 1, "\x29\x29", "00 49");
    row("long run and the rest", 1, QByteArray(264, '\3'), "00 03 ff 23");
    row("run of seven, then a copy", 0, pair + pair + QByteArray(7, '\5') + pair + pair,
        "14 21 22 01 01 e5 03 0a");
    // The fourth and the eighth have no byte for their distance.
    row("nine short copies", 0,
        QByteArray::fromHex("01020304 05 01020304 06 01020304 07 01020304 08 01020304 09 01020304"
                            "0a 01020304 0b 01020304 0c 01020304 0d 01020304"),
        "a0 21 22 23 24 25 03 04 26 03 04 aa 27 43 04 28 03 29 03 04 2a 03 04"
        " 2a 2b 43 04 2c 03 2d 03 04");
    row("RLE8: a run of 64", 2, QByteArray(64, '\1'), "7f 01 01");
    row("RLE8: marks alone", 2, QByteArray::fromHex("3f407f80c8ff"), "3f 41 40 41 7f 80 c8 ff");
    row("RLE8: pairs", 2, QByteArray::fromHex("c8c8404040"), "42 c8 43 40");
}

void TestPixelCodecs::streams()
{
    const auto [codec, pixels, bytes] = fetched<int, QByteArray, QByteArray>();
    QCOMPARE(saved(codecs[codec], SpritePixels::image(pixels, pixels.size(), !pixels.isEmpty()))
                 .toHex(' '),
             bytes.toHex(' '));
}

void TestPixelCodecs::brokenStreams()
{
    QFETCH(int, codec);
    QRandomGenerator random(seed);
    for (const auto kind : {SpritePixels::Repeated, SpritePixels::Drawn, SpritePixels::LongRuns}) {
        const QByteArray pixels = SpritePixels::make(kind, 31, 11, 29, random);
        forEachBrokenForm(codecs[codec].plainWrite(pixels) + "after", [&](const QByteArray& bytes) {
            QCOMPARE(differenceOf(codecs[codec], bytes, 31, 11), QString());
        });
    }
}

void TestPixelCodecs::randomStreams()
{
    QFETCH(int, codec);
    QRandomGenerator random(seed);
    for (int round = 0; round < 400; ++round) {
        const bool isLarge = round % 40 == 0;
        QByteArray bytes(random.bounded(isLarge ? 200000 : 200), 0);
        for (char& byte : bytes) {
            byte = char(random.generate() & (round % 3 ? 0xFF : 0x4F));
        }
        const int width = 1 + random.bounded(isLarge ? 700 : 40);
        const int height = 1 + random.bounded(isLarge ? 700 : 40);
        QCOMPARE(differenceOf(codecs[codec], bytes, width, height), QString());
    }
}

/// Three bytes a pixel are read into an image of `Format_RGB32`, whose lines have four.
void TestPixelCodecs::widePixels()
{
    QImage image(3, 2, QImage::Format_RGB32);
    memset(image.bits(), Untouched, size_t(image.sizeInBytes()));
    QBuffer buffer;
    buffer.setData(QByteArray::fromHex("49 01 49 02 03"));
    QVERIFY(loadRLE8(image, &buffer));
    QCOMPARE(QByteArray(reinterpret_cast<const char*>(image.constBits()), 24).toHex(),
             QByteArray(9, '\1').toHex() + "aaaaaa" + QByteArray(9, '\2').toHex() + "aaaaaa");
    QCOMPARE(buffer.bytesAvailable(), 1);
    QCOMPARE(saved(codecs[2], image),
             Plain::writeRle8(QByteArray(reinterpret_cast<const char*>(image.constBits()), 24)));
}

/// Lines that have fewer bytes than pixels, or none: nothing is read or written beside them.
void TestPixelCodecs::formsWithoutBytes()
{
    QFETCH(int, codec);
    for (QImage image :
         {QImage(), QImage(90, 5, QImage::Format_Mono), QImage(70000, 1, QImage::Format_MonoLSB),
          QImage(7, 3, QImage::Format_RGB888), QImage(300, 3, QImage::Format_RGB32)}) {
        QBuffer buffer;
        buffer.setData(QByteArray(2000, 'x'));
        QVERIFY(codecs[codec].load(image, &buffer));
        if (codecs[codec].save) {
            QVERIFY(saved(codecs[codec], image) != "failed");
        }
    }
}

void TestPixelCodecs::devices()
{
    QFETCH(int, codec);
    const Codec& it = codecs[codec];
    QRandomGenerator random(seed);
    const QByteArray pixels = SpritePixels::make(SpritePixels::Noise, 300, 200, 32, random);
    QImage image(300, 200, QImage::Format_Indexed8);
    QVERIFY(!it.load(image, nullptr));
    QFile missing(QStringLiteral("/nowhere/at/all"));
    QVERIFY(!it.load(image, &missing));

    Pipe pipe(it.plainWrite(pixels) + "after");
    pipe.open(QIODevice::ReadOnly);
    QVERIFY(it.load(image, &pipe));
    QCOMPARE(SpritePixels::pixels(image).left(290), pixels.left(290));
    QCOMPARE(pipe.readAll(), QByteArray("after"));

    if (it.save) {
        QVERIFY(!it.save(image, &missing));
        Pipe full(QByteArray(), 50000);
        full.open(QIODevice::WriteOnly);
        QVERIFY(!it.save(image, &full));
    } else {
        QBuffer buffer;
        QVERIFY(!saveRLE5(image, &buffer));
        QVERIFY(buffer.data().isEmpty());
    }
}

QTEST_APPLESS_MAIN(TestPixelCodecs)
#include "tst_pixelcodecs.moc"
