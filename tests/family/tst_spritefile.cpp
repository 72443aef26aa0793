#include "plainsprites.h"

#include "family/assets/newsprites.h"
#include "family/assets/pixelstore.h"
#include "family/assets/recordbytes.h"
#include "family/assets/spritefile.h"
#include "family/assets/spritefiledata.h"
#include "family/assets/spritejobs.h"
#include "support/brokenbytes.h"
#include "support/faultshim.h"
#include "support/folders.h"
#include "support/testinterface.h"
#include "support/testtable.h"

#include <zorv/core/filesystemarchive.h>
#include <zorv/media/losslessimages.h>

#include <QBuffer>
#include <QDirIterator>
#include <QMutex>
#include <QTemporaryDir>
#include <QtTest>
#include <cerrno>

using namespace Family;

namespace {

/// Where the tables and records of the small file begin.
constexpr int PalettesAt = 64;
constexpr int StreamsAt = PalettesAt + 2 * 1040;
constexpr int SpritesAt = StreamsAt + 4 * 48;
constexpr int RemapsAt = SpritesAt + 5 * 32;

/// Gives the bytes of a file to a collection, and takes the bytes that it saves.
class Disk
{
public:
    QString name() const { return m_folder.filePath(QStringLiteral("a.sprites")); }

    bool open(SpriteCollection& sprites, const QByteArray& bytes)
    {
        QFile file(name());
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() &&
               file.flush() &&
               sprites.fromFile(*Zorv::FileSystemArchive::instance(), name(), false);
    }

    QByteArray save(SpriteCollection& sprites)
    {
        return sprites.toFile(*Zorv::FileSystemArchive::instance(), name(), false)
                   ? readFile(name())
                   : QByteArray();
    }

private:
    QTemporaryDir m_folder;
};

QImage picture(int width, int height, int kind)
{
    QImage image(width, height, kind == 4 ? QImage::Format_ARGB32 : QImage::Format_Indexed8);
    if (kind != 4) {
        image.setColorTable(tableOfColors(greyColors()));
    }
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            image.setPixel(x, y, kind == 4 ? qRgba(x, y, 9, 40 * x) : uint(x * y + kind) % 20);
        }
    }
    return image;
}

/// Five sprites of four streams, one in each codec, with two palettes and a remap.
QByteArray smallFile()
{
    SpriteFile file;
    const struct
    {
        const char* codec;
        int kind;
    } rows[] = {{"LZ5", 1}, {"RLE8", 2}, {"PCX", 3}, {"PNG", 4}, {"", 1}};
    for (int i = 0; i < 5; ++i) {
        FamilySprite* sprite = file.insertSprite(i, {quint16(i / 2), quint16(i)}, {i, -i},
                                                 picture(6, 5, rows[i].kind));
        if (rows[i].codec[0]) {
            sprite->setProperty(QStringLiteral("Codec"), QString::fromLatin1(rows[i].codec));
        }
    }
    file.sprite(4)->state.pixels = file.sprite(0)->state.pixels;
    Zorv::RGBA colors[256] = {{1, 2, 3, 4}};
    file.palettes()->addPalette(colors, QStringLiteral("9,9"), false);
    file.palettes()->remaps()->add({1, 1}, {9, 9});
    return Disk().save(file);
}

QByteArray resealed(QByteArray file, int record, int size)
{
    return file.replace(record, size, sealed(file.mid(record, size)));
}

}  // namespace

class TestSpriteFile : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Zorv::setLosslessImages(true); }
    void cleanup() { faultArm("", FaultOpen, 0, 0, 0); }
    void savesTheSameBytes_data();
    void savesTheSameBytes();
    void takesAnyBytes();
    void keepsBrokenRecords_data();
    void keepsBrokenRecords();
    void refusesWhatIsNoSpriteFile_data();
    void refusesWhatIsNoSpriteFile();
    void findsBrokenPixels();
    void mendsWhatIsChanged();
    void takesNoMoreMemoryThanTheFileHas();
    void failedSaveLosesNothing();
    void givesEachImageToAJob();
    void readsTheSamples();
};

void TestSpriteFile::savesTheSameBytes_data()
{
    QTest::addColumn<int>("cacheType");
    row("in memory", 1);
    row("in a temporary file", 2);
}

void TestSpriteFile::savesTheSameBytes()
{
    QFETCH(int, cacheType);
    TestInterface interface;
    interface.options.insert(QStringLiteral("cache_type"), cacheType);
    const QByteArray bytes = smallFile();
    Disk disk;
    SpriteFile file;
    QVERIFY2(disk.open(file, bytes), qPrintable(file.errorString()));
    QCOMPARE(int(file.cache()->type()), cacheType);
    QCOMPARE(file.loadErrors(), QStringList());
    QCOMPARE(disk.save(file), bytes);
    for (int i = 0; i < 5; ++i) {
        QCOMPARE(file.sprite(i)->size(), QSize(6, 5));
        QCOMPARE(file.sprite(i)->axis(), QPoint(i, -i));
        QCOMPARE(file.sprite(i)->pixelRows(), rowsOfImage(picture(6, 5, i == 4 ? 1 : i + 1)));
    }
    const QString before = PlainSprites::linesOf(file).join(QLatin1Char('\n'));
    file.insertSprite(1, {5, 5}, {}, picture(3, 3, 2));
    file.removeSprite(0);
    QVERIFY(disk.save(file) != bytes);
    file.undo();
    file.undo();
    QVERIFY(file.isModified());
    QCOMPARE(disk.save(file), bytes);
    QCOMPARE(PlainSprites::linesOf(file).join(QLatin1Char('\n')), before);
}

void TestSpriteFile::takesAnyBytes()
{
    const QByteArray whole = smallFile();
    int opened = 0;
    forEachBrokenForm(whole, [&](const QByteArray& bytes) {
        QBuffer buffer;
        buffer.setData(bytes);
        buffer.open(QIODevice::ReadOnly);
        SpriteFileData data;
        QString error;
        if (!data.read(&buffer, &error)) {
            QVERIFY(!error.isEmpty());
            return;
        }
        // Whatever is wrong is told, or is in the pixels of one sprite and is found there.
        bool isBroken = !data.problems.isEmpty();
        for (const auto& stream : data.streams) {
            const QByteArray packed = SpriteFileData::readStream(&buffer, stream);
            isBroken |=
                unpackPixels(stream.format, packed) !=
                    unpackPixels(stream.format, whole.mid(int(stream.offset), int(stream.size))) ||
                packed != whole.mid(int(stream.offset), int(stream.size));
        }
        QVERIFY(isBroken || bytes == whole);
        ++opened;
    });
    QVERIFY(opened > whole.size());
}

void TestSpriteFile::keepsBrokenRecords_data()
{
    // `flipped`: bits of the byte
    // `resealedSize`: 0: the checksum stays wrong
    columns<int, int, int, QString>("at", "flipped", "resealedSize", "told");
    row("palette", PalettesAt + 20, 0x55, 0, "Palette 1 is broken: its checksum is wrong.");
    row("count of colours", PalettesAt + 5, 0x55, 1040,
        "Palette 1 is broken: its values make no sense.");
    row("pixels", StreamsAt + 12, 0x55, 0, "Pixels 1 are broken: its checksum is wrong.");
    row("codec", StreamsAt + 16, 0x55, 48, "Pixels 1 are broken: its values make no sense.");
    row("no codec", StreamsAt + 16, int(PixelCodec::Lz5), 48,
        "Pixels 1 are broken: its values make no sense.");
    row("place of pixels", StreamsAt + 3, 0x55, 48,
        "Pixels 1 are broken: they are not in the file.");
    row("sprite", SpritesAt + 4, 0x55, 0, "Sprite 1 is broken: its checksum is wrong.");
    row("its pixels", SpritesAt + 9, 0x55, 32,
        "Sprite 1 (0,0) is broken: it names pixels or a palette that are not there.");
    row("its palette", SpritesAt + 14, 0x55, 32,
        "Sprite 1 (0,0) is broken: it names pixels or a palette that are not there.");
    row("remap", RemapsAt, 0x55, 0, "Remap 1 is broken: its checksum is wrong.");
}

void TestSpriteFile::keepsBrokenRecords()
{
    const auto [at, flipped, resealedSize, told] = fetched<int, int, int, QString>();
    const QByteArray whole = smallFile();
    QByteArray bytes = whole;
    bytes[at] = char(bytes[at] ^ flipped);
    const int table = at < StreamsAt ? PalettesAt : at < SpritesAt ? StreamsAt : SpritesAt;
    if (resealedSize > 0) {
        bytes = resealed(bytes, table + (at - table) / resealedSize * resealedSize, resealedSize);
    }
    Disk disk;
    SpriteFile file;
    QVERIFY2(disk.open(file, bytes), qPrintable(file.errorString()));
    QCOMPARE(file.loadErrors().value(0), told);
    QVERIFY(file.brokenCount() > 0);
    QCOMPARE(file.count(), 5u);
    QVERIFY(!file.sprite(1)->image().isNull());
    QVERIFY(disk.save(file) == bytes);

    // A change elsewhere moves the pixels, and no broken record is lost by it.
    const int sprites = int(file.count());
    file.insertSprite(sprites, {7, 7}, {}, picture(9, 9, 3));
    QVERIFY(!disk.save(file).isEmpty());
    SpriteFile again;
    QVERIFY(disk.open(again, readFile(disk.name())));
    QCOMPARE(again.loadErrors(), file.loadErrors());
    QCOMPARE(PlainSprites::linesOf(again), PlainSprites::linesOf(file));

    file.removeBroken();
    QCOMPARE(file.brokenCount(), 0);
    QVERIFY(!disk.save(file).isEmpty());
    QVERIFY(disk.open(again, readFile(disk.name())));
    QCOMPARE(again.loadErrors(), QStringList());
    file.undo();
    file.undo();
    QVERIFY(disk.save(file) == bytes);
}

void TestSpriteFile::refusesWhatIsNoSpriteFile_data()
{
    columns<QByteArray, QString>("bytes", "reason");
    const QByteArray whole = smallFile();
    const auto with = [&](int at, char value, bool seal) {
        QByteArray bytes = whole;
        bytes[at] = value;
        return seal ? resealed(bytes, 0, 64) : bytes;
    };
    row("empty", QByteArray(), "it is no sprite file");
    row("other magic", with(3, 'x', true), "it is no sprite file");
    row("newer", with(8, 2, true), "newer version");
    row("too many", with(15, 127, true), "it is cut off");
    row("cut off", whole.left(SpritesAt), "it is cut off");
    row("broken head", with(12, 1, false), "its head is broken");
}

void TestSpriteFile::refusesWhatIsNoSpriteFile()
{
    const auto [bytes, reason] = fetched<QByteArray, QString>();
    Disk disk;
    SpriteFile file;
    file.insertSprite(-1, {3, 4}, {}, picture(2, 2, 1));
    const QStringList before = PlainSprites::linesOf(file);
    QVERIFY(!disk.open(file, bytes));
    QVERIFY2(file.errorString().contains(reason), qPrintable(file.errorString()));
    QVERIFY(file.errorString().contains(disk.name()));
    QCOMPARE(PlainSprites::linesOf(file), before);
    file.undo();
    QCOMPARE(file.count(), 0u);
}

void TestSpriteFile::findsBrokenPixels()
{
    const QByteArray whole = smallFile();
    const int firstStream = RemapsAt + 16;
    QByteArray bytes = whole;
    bytes[firstStream + 1] = char(bytes[firstStream + 1] ^ 1);
    Disk disk;
    SpriteFile file;
    QVERIFY(disk.open(file, bytes));
    QVERIFY(file.sprite(0)->image().isNull());
    QVERIFY(!file.sprite(0)->pixelFault().isEmpty());
    QVERIFY(file.sprite(1)->pixelFault().isEmpty());
    QVERIFY(disk.save(file) == bytes);
    // Bytes of that sprite are no duplicate of what they should have been.
    FamilySprite* added = file.insertSprite(5, {}, {}, picture(6, 5, 1));
    QVERIFY(added->state.pixels != file.sprite(0)->state.pixels);
}

void TestSpriteFile::mendsWhatIsChanged()
{
    QByteArray bytes = smallFile();
    bytes[SpritesAt + 4] = char(77);
    bytes[PalettesAt + 9] = char(88);
    Disk disk;
    SpriteFile file;
    QVERIFY(disk.open(file, bytes));
    QCOMPARE(file.brokenCount(), 2);
    file.sprite(0)->setProperty(QStringLiteral("Axis"), QPoint(1, 2));
    file.palettes()->palette(0)->setProperty(QStringLiteral("Number"), 12);
    QCOMPARE(file.brokenCount(), 0);
    SpriteFile again;
    QVERIFY(disk.open(again, disk.save(file)));
    QCOMPARE(again.loadErrors(), QStringList());
    QCOMPARE(again.sprite(0)->axis(), QPoint(1, 2));
    QCOMPARE(again.palettes()->palette(0)->id().text(), QStringLiteral("1,12"));
}

void TestSpriteFile::takesNoMoreMemoryThanTheFileHas()
{
    // All streams claim the same bytes.
    QByteArray bytes = smallFile();
    for (int i = 1; i < 4; ++i) {
        bytes.replace(StreamsAt + i * 48, 12, bytes.mid(StreamsAt, 12));
        bytes.replace(StreamsAt + i * 48 + 8, 4, QByteArray("\0\1\0\0", 4));
        bytes = resealed(bytes, StreamsAt + i * 48, 48);
    }
    bytes.append(300, 'x');
    SpriteFileData data;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QString error;
    QVERIFY(data.read(&buffer, &error));
    quint64 total = 0;
    for (const auto& stream : data.streams) {
        total += stream.inFile ? stream.size : 0;
    }
    QVERIFY(total <= quint64(bytes.size() - RemapsAt - 16));
    // A large picture of few bytes is refused before its pixels are made.
    const QByteArray few(1000, 'x');
    for (const PixelCodec codec :
         {PixelCodec::Lz5, PixelCodec::Rle8, PixelCodec::Png, PixelCodec::Pcx, PixelCodec::Gif}) {
        QCOMPARE(unpackPixels({QSize(16384, 16384), 8, codec}, few), QByteArray());
    }
    // Where a stream ends too soon there is nothing, and not what was in memory before.
    const QByteArray stream(7, '\3');
    const QByteArray expected = stream + QByteArray(393, 0);
    QByteArray(400, 'x').clear();
    QCOMPARE(unpackPixels({QSize(20, 20), 8, PixelCodec::Rle8}, stream), expected);
}

void TestSpriteFile::failedSaveLosesNothing()
{
    const QByteArray bytes = smallFile();
    Disk disk;
    SpriteFile file;
    QVERIFY(disk.open(file, bytes));
    file.insertSprite(1, {5, 5}, {}, picture(30, 30, 2));
    for (const FaultCall call : {FaultOpen, FaultWrite, FaultSync, FaultRename, FaultClose}) {
        faultArm("a.sprites", call, 1, ENOSPC, call == FaultWrite);
        const bool isSaved = !disk.save(file).isEmpty();
        const bool wasCalled = faultCalls(call) > 0;
        faultArm("", FaultOpen, 0, 0, 0);
        QVERIFY(!isSaved || !wasCalled);
        if (!isSaved) {
            QVERIFY(!file.errorString().isEmpty());
            QVERIFY(file.isModified());
            QCOMPARE(readFile(disk.name()), bytes);
        } else {
            QVERIFY(disk.open(file, bytes));
            file.insertSprite(1, {5, 5}, {}, picture(30, 30, 2));
        }
    }
}

void TestSpriteFile::givesEachImageToAJob()
{
    SpriteFile file;
    for (int i = 0; i < 600; ++i) {
        file.insertSprite(i, {0, quint16(i)}, {}, picture(4 + i % 7, 5, i % 5));
    }
    ImageJob job;
    for (int row = 599; row >= 0; --row) {
        job.rows.append(row);
    }
    job.rows.append(-1);
    QMutex mutex;
    QMap<int, QImage> images;
    job.work = [&](int row, const QImage& image) {
        const QMutexLocker lock(&mutex);
        images.insert(row, image);
    };
    for (const int threads : {1, 4}) {
        images.clear();
        job.threads = threads;
        QVERIFY(forEachImage(file, job));
        QCOMPARE(images.size(), 601);
        QVERIFY(images.value(-1).isNull());
        for (int row = 0; row < 600; ++row) {
            QCOMPARE(images.value(row), file.sprite(row)->image());
        }
    }
    images.clear();
    job.progress = [](int done) { return done < 100; };
    QVERIFY(!forEachImage(file, job));
    QVERIFY(images.size() < 600);
}

void TestSpriteFile::readsTheSamples()
{
    // They are written by another program, in Python.
    Disk disk;
    int found = 0;
    QDirIterator files(QStringLiteral(ZORV_SAMPLES "/arena"), {QStringLiteral("*.sprites")},
                       QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QByteArray bytes = readFile(files.next());
        SpriteFile sprites;
        QVERIFY2(disk.open(sprites, bytes), qPrintable(sprites.errorString()));
        QCOMPARE(sprites.loadErrors(), QStringList());
        QVERIFY(sprites.count() > 0);
        for (const auto& sprite : sprites.items()) {
            QCOMPARE(sprite->pixelFault(), QString());
        }
        QVERIFY(disk.save(sprites) == bytes);
        ++found;
    }
    QVERIFY(found > 2);
}

QTEST_GUILESS_MAIN(TestSpriteFile)
#include "tst_spritefile.moc"
