#include "core/extensionmanager.h"
#include "media/imagefile.h"
#include "media/losslessimages.h"
#include "media/palettefiles.h"
#include "media/paletteobject.h"
#include "support/brokenbytes.h"
#include "support/testtable.h"

#include <QBuffer>
#include <QImage>
#include <QSignalSpy>
#include <QTest>
#include <QtEndian>

#include <cstring>

using Zorv::PaletteObject;
using Zorv::RGBA;

using Colors = QVector<QPair<int, QRgb>>;  ///< some entries of a palette

Q_DECLARE_METATYPE(Colors)

namespace {

struct Colors256
{
    RGBA entries[256] = {};

    QRgb at(int i) const { return qRgba(entries[i].r, entries[i].g, entries[i].b, entries[i].a); }
};

template <class Integer>
QByteArray big(Integer value)
{
    QByteArray bytes(sizeof value, 0);
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray words(std::initializer_list<int> values)
{
    QByteArray bytes;
    for (const int value : values) {
        bytes += big(quint16(value));
    }
    return bytes;
}

QByteArray act()
{
    QByteArray bytes;
    for (int i = 0; i < 256; ++i) {
        bytes += char(i);
        bytes += char(i / 2);
        bytes += char(255 - i);
    }
    return bytes;
}

QByteArray riff(const QByteArray& colors)
{
    QByteArray size(4, 0);
    qToLittleEndian(quint32(colors.size() + 8), size.data());
    return "RIFF????PAL data" + size + QByteArray("\0\3??", 4) + colors;
}

QByteArray jasc(const QByteArray& lines)
{
    return "JASC-PAL\r\n0100\r\n256\r\n" + lines;
}

QByteArray aseColor(const QByteArray& model, std::initializer_list<double> parts)
{
    QByteArray block = words({1}) + big(quint32(0)) + words({2, 'a', 0}) + model;
    for (const double part : parts) {
        block += big(float(part));
    }
    return block + words({0});
}

QByteArray ase(quint32 count, const QByteArray& blocks)
{
    return "ASEF" + words({1, 0}) + big(count) + blocks;
}

QByteArray lines(int count, const QByteArray& pattern, const QByteArray& end)
{
    QByteArray text;
    for (int i = 0; i < count; ++i) {
        text += QByteArray(pattern).replace('#', QByteArray::number(i % 256)) + end;
    }
    return text;
}

bool load(QByteArray bytes, const QByteArray& format, Colors256& colors)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return PaletteObject(colors.entries).fromFile(&buffer, format.constData());
}

/// Puts fixed colours where a real one would read a file.
class Loader : public Zorv::Extension
{
public:
    Loader(bool works, quint8 level) : m_works(works), m_level(level) {}
    Type type() const override { return PaletteLoader; }
    QByteArray name() const override { return "XYZ"; }
    bool loadPalette(QIODevice*, RGBA (&palette)[256]) override
    {
        palette[1] = {m_level, m_level, m_level, 255};
        return m_works;
    }

private:
    bool m_works;
    quint8 m_level;
};

}  // namespace

class TestPaletteFiles : public QObject
{
    Q_OBJECT

private slots:
    void read_data();
    void read();
    void refuse_data();
    void refuse();
    void imagesGiveTheirPalette_data();
    void imagesGiveTheirPalette();
    void actRoundTrip();
    void brokenBytes_data();
    void brokenBytes();
};

void TestPaletteFiles::read_data()
{
    columns<QByteArray, QByteArray, Colors>("bytes", "format", "expected");
    const auto row = [](const char* name, const QByteArray& bytes, const char* kind,
                        const Colors& expected) { ::row(name, bytes, QByteArray(kind), expected); };
    const QRgb black = qRgb(0, 0, 0);
    row("ACT, last colour first", act() + "more", "ACT",
        {{0, qRgba(255, 127, 0, 0)}, {1, qRgb(254, 127, 1)}, {255, qRgb(0, 0, 255)}});
    row("RIFF, last colour first", riff(QByteArray("\1\2\3\0\4\5\6\0", 8)), "PAL",
        {{0, 0}, {253, black}, {254, qRgb(4, 5, 6)}, {255, qRgb(1, 2, 3)}});
    row("RIFF without colours", riff({}), "PAL", {{255, black}});
    row("Jasc", jasc("1 2 3\r\n999 20 30 40\r\n"), "PAL",
        {{0, qRgba(1, 2, 3, 0)}, {1, qRgba(255, 20, 30, 40)}, {2, 0}});
    row("Jasc, a bad line keeps its place", jasc("1 2 3\r\nred\r\n\r\n7 8 9"), "PAL",
        {{1, 0}, {2, 0}, {3, qRgb(7, 8, 9)}});
    row("Jasc, 300 lines", jasc(lines(300, "# 1 2", "\r\n")), "PAL",
        {{1, qRgb(1, 1, 2)}, {255, qRgb(255, 1, 2)}});
    row("Jasc, a line of 100,000 bytes",
        jasc("1 2 3\r\n" + QByteArray(100000, '1') + "\r\n4 5 6\r\n"), "PAL",
        {{1, 0}, {2, qRgb(4, 5, 6)}});
    row("Painter, a bad line takes no entry",
        "ROWS 2\nR: 1, G:2, B: 3\nnothing\nR:4,G:5,B:300 A:7 rest\r\n", "TXT",
        {{0, qRgba(1, 2, 3, 0)}, {1, qRgba(4, 5, 255, 7)}, {2, 0}});
    row("Painter, 300 lines", "ROWS\n" + lines(300, "R:#, G:1, B:2", "\n"), "TXT",
        {{2, qRgb(2, 1, 2)}, {255, qRgb(255, 1, 2)}});
    row("Painter, nothing", "ROWS", "TXT", {{0, 0}});

    const QByteArray rgb = words({0, 0x1234, 0xFFFF, 257, 9});
    row("ACO, as many as it says", words({1, 1}) + rgb + rgb, "ACO",
        {{0, qRgba(0x12, 255, 1, 0)}, {1, black}});
    row("ACO, other spaces take no entry",
        words({1, 3}) + words({7, 1, 2, 3, 4}) + words({0, 0, 0, 0, 0}) + rgb, "ACO",
        {{1, qRgb(0x12, 255, 1)}, {2, black}});
    row("ACO, HSB, CMYK, grey",
        words({1, 5, 1, 0, 0, 0, 0, 1, 21906, 0xFFFF, 0xFFFF, 0, 1, 0xFFFF, 0xFFFF, 0xFFFF, 0}) +
            words({2, 0xFFFF, 0, 0xFFFF, 0xFFFF, 8, 2500, 0, 0, 0}),
        "ACO",
        {{1, qRgb(0, 255, 0)},
         {2, qRgb(255, 0, 4)},
         {3, qRgb(255, 0, 255)},
         {4, qRgb(191, 191, 191)}});

    const QByteArray red = aseColor("RGB ", {1, 0, 0.5});
    const QByteArray others =
        aseColor("LAB ", {1, 2, 3}) + aseColor("CMYK", {0, 1, 1, 0}) + aseColor("Gray", {0.2});
    row("ASE, models", ase(4, red + others), "ASE",
        {{0, qRgba(255, 0, 128, 0)}, {1, qRgb(255, 0, 0)}, {2, qRgb(51, 51, 51)}, {3, 0}});
    row("ASE, shares beyond 1", ase(2, red + aseColor("RGB ", {7e30, -1, qQNaN()})), "ASE",
        {{1, qRgb(255, 0, 0)}});
    row("ASE, groups and unknown blocks",
        ase(5, words({0xC001}) + big(quint32(99)) + words({1, 'g'}) + red + words({5}) +
                   big(quint32(3)) + "???" + red + words({0xC002}) + big(quint32(0))),
        "ASE", {{1, qRgb(255, 0, 128)}, {2, 0}});
    row("ASE, a block of four billion bytes", ase(9, red + red + words({5}) + big(~0U) + red),
        "ASE", {{1, qRgb(255, 0, 128)}, {2, 0}});
    row("ASE, four billion blocks", ase(~0U, red), "ASE", {{0, qRgba(255, 0, 128, 0)}, {1, 0}});
    row("ACO, more than there are", words({1, 0xFFFF}), "ACO", {{1, black}, {255, black}});
}

void TestPaletteFiles::read()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QByteArray, format);
    QFETCH(const Colors, expected);
    Colors256 colors;
    std::memset(colors.entries, 99, sizeof colors.entries);
    QVERIFY(load(bytes, format, colors));
    QCOMPARE(int(colors.entries[0].a), 0);
    for (const auto& [index, color] : expected) {
        QCOMPARE(QByteArray::number(colors.at(index), 16), QByteArray::number(color, 16));
    }
}

void TestPaletteFiles::refuse_data()
{
    columns<QByteArray, QByteArray>("bytes", "format");
    row("ACT of 767 bytes", act().left(767), QByteArray("ACT"));
    row("RIFF, other data", riff({}).replace("PAL ", "WAVE"), QByteArray("PAL"));
    row("RIFF, 257 colours", riff(QByteArray(257 * 4, 'x')), QByteArray("PAL"));
    row("RIFF, size below its head", riff({}).replace(16, 4, QByteArray("\7\0\0\0", 4)),
        QByteArray("PAL"));
    row("RIFF, cut", riff("abcdefgh").chopped(1), QByteArray("PAL"));
    row("Jasc, LF only", jasc("1 2 3\r\n").replace("\r\n", "\n"), QByteArray("PAL"));
    row("Jasc, other version", jasc("").replace("0100", "0200"), QByteArray("PAL"));
    row("ACO, version 2", words({2, 0}), QByteArray("ACO"));
    row("ASE, version 1.1", ase(0, {}).replace(6, 2, words({1})), QByteArray("ASE"));
    row("nothing known", QByteArray("hello, palette"), QByteArray("PAL"));
    row("ACT in lower case", act(), QByteArray("act"));
    row("no image", QByteArray("hello, image"), QByteArray("PNG"));
}

void TestPaletteFiles::refuse()
{
    QFETCH(QByteArray, bytes);
    QFETCH(const QByteArray, format);
    Colors256 colors;
    std::memset(colors.entries, 99, sizeof colors.entries);
    const Colors256 before = colors;
    PaletteObject object(colors.entries);
    const QSignalSpy changing(&object, &PaletteObject::changing);
    const QSignalSpy changed(&object, &PaletteObject::changed);
    QBuffer buffer(&bytes);
    QVERIFY(!object.fromFile(&buffer, format.constData()));
    buffer.open(QIODevice::ReadOnly);
    QVERIFY(!object.fromFile(&buffer, format.constData()));
    QCOMPARE(std::memcmp(colors.entries, before.entries, sizeof colors.entries), 0);
    QCOMPARE(changing.count() + changed.count(), 0);
    QVERIFY(!object.toFile(&buffer, "ACT"));
}

void TestPaletteFiles::imagesGiveTheirPalette_data()
{
    QTest::addColumn<QByteArray>("format");
    for (const char* format : {"PNG", "BMP", "PCX", "GIF"}) {
        row(format, QByteArray(format));
    }
}

void TestPaletteFiles::imagesGiveTheirPalette()
{
    QFETCH(const QByteArray, format);
    QImage indexed(4, 4, QImage::Format_Indexed8);
    indexed.setColorTable({qRgb(9, 8, 7), qRgb(1, 2, 3), qRgb(200, 100, 50)});
    indexed.fill(1);
    const auto bytesOf = [&format](const QImage& image) {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        Zorv::saveImage(&buffer, format.constData(), image);
        return bytes;
    };
    const QByteArray trueColor = bytesOf(indexed.convertToFormat(QImage::Format_RGB32));
    Colors256 colors;

    Zorv::setLosslessImages(true);
    QVERIFY(load(bytesOf(indexed), format, colors));
    QCOMPARE(colors.at(0), qRgba(9, 8, 7, 0));
    QCOMPARE(colors.at(2), qRgb(200, 100, 50));
    QCOMPARE(load(trueColor, format, colors), format == "GIF");  // which knows no true colour
    if (format == "PCX") {
        QVERIFY(!load(bytesOf(indexed).chopped(769), format, colors));  // the pixels alone
    }

    Zorv::setLosslessImages(false);
    QVERIFY(!load(bytesOf(indexed), format, colors));
    if (format != "GIF") {
        QVERIFY(load(trueColor, format, colors));
        QCOMPARE(colors.at(2), qRgb(0, 0, 0));
    }
}

void TestPaletteFiles::actRoundTrip()
{
    Colors256 colors;
    QVERIFY(load(act(), "ACT", colors));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    PaletteObject object(colors.entries);
    QVERIFY(object.toFile(&buffer, "ACT"));
    QCOMPARE(bytes, act());
    QVERIFY(!object.toFile(&buffer, "PAL"));
}

void TestPaletteFiles::brokenBytes_data()
{
    columns<QByteArray, QByteArray>("bytes", "format");
    row("RIFF", riff("abcdefgh"), QByteArray("PAL"));
    row("Jasc", jasc("1 2 3\r\n4 5 6 7\r\n"), QByteArray("PAL"));
    row("ACO", words({1, 2, 0, 1, 2, 3, 4, 1, 5, 6, 7, 8}), QByteArray("ACO"));
    row("ASE", ase(2, aseColor("CMYK", {0, 1, 1, 0}) + aseColor("RGB ", {1, 0, 1})),
        QByteArray("ASE"));
    row("Painter", QByteArray("ROWS\nR:1,G:2,B:3 A:4\n"), QByteArray("TXT"));
}

/// Whatever the bytes, a palette is either left alone or one of a file.
void TestPaletteFiles::brokenBytes()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QByteArray, format);
    forEachBrokenForm(bytes, [&format](const QByteArray& broken) {
        Colors256 colors;
        std::memset(colors.entries, 99, sizeof colors.entries);
        const bool loaded = load(broken, format, colors);
        QCOMPARE(int(colors.entries[0].a), loaded ? 0 : 99);
        QCOMPARE(colors.at(255) == qRgba(99, 99, 99, 99), !loaded);
    });
}

QTEST_GUILESS_MAIN(TestPaletteFiles)

#include "tst_palettefiles.moc"
