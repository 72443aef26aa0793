#include "family/assets/newsprites.h"
#include "family/assets/palettelist.h"
#include "family/assets/spritecollection.h"
#include "operations/hostinterface.h"
#include "operations/media/imagefiles.h"
#include "operations/media/spriteexport.h"
#include "operations/media/spriteimport.h"
#include "operations/media/spritesheet.h"

#include "support/folders.h"
#include "support/release.h"
#include "support/testtable.h"

#include <zorv/core/filesystemarchive.h>
#include <zorv/media/imagefile.h>
#include <zorv/media/imagetransfer.h>
#include <zorv/media/losslessimages.h>
#include <zorv/media/pcx.h>

#include <QBuffer>
#include <QDir>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>
#include <memory>

using namespace Family;
using namespace Operations;

namespace {

const quint32 Seed = 20260806;

using Collection = std::unique_ptr<SpriteCollection, Release>;

QVector<QRgb> randomTable(QRandomGenerator& random)
{
    QVector<QRgb> table{0x00ff00ff};
    while (table.size() < 256) {
        table.append(random.generate() | 0xff000000);
    }
    return table;
}

// One in four is of true colour.
QImage randomImage(QRandomGenerator& random, const QVector<QVector<QRgb>>& tables)
{
    const QSize size(random.bounded(1, 40), random.bounded(1, 40));
    const bool isIndexed = random.bounded(4) > 0;
    QImage image(size, isIndexed ? QImage::Format_Indexed8 : QImage::Format_ARGB32);
    if (isIndexed) {
        image.setColorTable(tables[random.bounded(tables.size())]);
    }
    for (int y = 0; y < size.height(); ++y) {
        uchar* line = image.scanLine(y);
        for (int x = 0; x < size.width() * image.depth() / 8; ++x) {
            line[x] = uchar(random.bounded(256));
        }
    }
    return image;
}

Collection randomSprites(QRandomGenerator& random, int count)
{
    Collection sprites(newSprites("a.sprites"));
    const QVector<QVector<QRgb>> tables{randomTable(random), randomTable(random)};
    for (int i = 0; i < count; ++i) {
        // Identifiers are met again now and then.
        const AssetId id{quint16(random.bounded(3)), quint16(random.bounded(8))};
        const QPoint axis(random.bounded(-100, 100), random.bounded(-100, 100));
        sprites->insertSprite(int(sprites->count()) - 1, id, axis, randomImage(random, tables));
    }
    return sprites;
}

QStringList filesIn(const QString& folder)
{
    QStringList files;
    const QStringList names = QDir(folder).entryList(QDir::Files, QDir::Name);
    for (const QString& name : names) {
        files.append(QDir(folder).filePath(name));
    }
    return files;
}

}  // namespace

class TestSpriteExchange : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        startHost(&m_host);
        Zorv::setLosslessImages(true);
        qInfo("seed %u", Seed);
    }
    void comesBack();
    void standsOnTheSheet_data();
    void standsOnTheSheet();
    void isWholeOrNothing();
    void storesAsOneThreadWould_data();
    void storesAsOneThreadWould();
    void imageWithoutPalette();
    void palettesOfFewColors();

private:
    HostInterface m_host;
};

// Exported and imported, a collection is the same: sorted, for files have no order.
void TestSpriteExchange::comesBack()
{
    QRandomGenerator random(Seed);
    for (int round = 0; round < 8; ++round) {
        QTemporaryDir folder;
        const Collection sprites = randomSprites(random, 30);
        OutputRequest request;
        request.place = folder.path();
        QCOMPARE(exportSprites(*sprites, {}, request).errors, QStringList());
        const Collection again(newSprites("b.sprites"));
        QCOMPARE(importSprites(again.get(), imagesOfFiles(filesIn(folder.path())), {}).errors,
                 QStringList());
        sprites->autoOrganize();
        again->autoOrganize();
        QCOMPARE(again->count(), sprites->count());
        for (int row = 0; row < int(sprites->count()); ++row) {
            const FamilySprite* was = sprites->sprite(row);
            const FamilySprite* is = again->sprite(row);
            QCOMPARE(is->id().text(), was->id().text());
            QCOMPARE(is->axis(), was->axis());
            QCOMPARE(is->property("Palette"), was->property("Palette"));
            QCOMPARE(is->image(), was->image());
        }
    }
}

void TestSpriteExchange::standsOnTheSheet_data()
{
    QTest::addColumn<int>("columns");
    QTest::newRow("square") << 0;
    QTest::newRow("one column") << 1;
    QTest::newRow("one row") << 1000;
}

// Every sprite is found where the sheet says, and no two share a pixel.
void TestSpriteExchange::standsOnTheSheet()
{
    QFETCH(int, columns);
    QRandomGenerator random(Seed);
    const Collection sprites = randomSprites(random, 25);
    const SpriteSheet sheet = makeSpriteSheet(*sprites, {}, columns);
    QCOMPARE(sheet.error, QString());
    QCOMPARE(sheet.places.size(), 25);
    QRegion taken;
    for (const SpriteSheet::Place& place : sheet.places) {
        QVERIFY(sheet.image.rect().contains(place.rect));
        QVERIFY(!taken.intersects(place.rect));
        taken += place.rect;
        QCOMPARE(sheet.image.copy(place.rect).convertToFormat(QImage::Format_ARGB32),
                 sprites->sprite(place.row)->image().convertToFormat(QImage::Format_ARGB32));
    }
}

void TestSpriteExchange::isWholeOrNothing()
{
    QTemporaryDir folder;
    const auto path = [&folder](const char* name) { return folder.filePath(name); };
    QImage flat(8, 8, QImage::Format_Indexed8);
    flat.setColorTable({qRgb(0, 0, 0), qRgb(9, 9, 9)});
    flat.fill(1);
    QVERIFY(flat.save(path("1-0.png")));
    flat.setColorCount(200);
    flat.fill(199);
    QVERIFY(flat.save(path("1-1.png")));
    const Collection sprites(newSprites("a.sprites"));
    ImportRequest request;
    request.codec = PixelCodec::Lz5;  // which has no place for index 199
    const MediaResult result =
        importSprites(sprites.get(), imagesOfFiles({path("1-0.png"), path("1-1.png")}), request);
    QCOMPARE(result.errors.size(), 1);
    QVERIFY(result.errors.first().contains("1-1.png"));
    QCOMPARE(sprites->count(), 0u);
    QCOMPARE(sprites->palettes()->count(), 0);
}

void TestSpriteExchange::storesAsOneThreadWould_data()
{
    columns<QString, bool, bool, int>("palette", "recolors", "reverses", "codec");
    QTest::newRow("as they are") << "" << false << false << 0;
    QTest::newRow("reversed") << "" << false << true << 0;
    QTest::newRow("in a palette") << "1,1" << false << false << 0;
    QTest::newRow("palette takes the colours") << "1,1" << true << true << 0;
    QTest::newRow("in a codec") << "1,1" << false << false << int(PixelCodec::Png);
}

// The same bytes as of images that are stored one after the other. Some are there twice.
void TestSpriteExchange::storesAsOneThreadWould()
{
    const auto [palette, recolors, reverses, codec] = fetched<QString, bool, bool, int>();
    QRandomGenerator random(Seed);
    const QVector<QVector<QRgb>> tables{randomTable(random), randomTable(random)};
    const QTemporaryDir folder;
    const Collection sprites(newSprites("a.sprites"));
    const Collection plain(newSprites("b.sprites"));
    for (SpriteCollection* each : {sprites.get(), plain.get()}) {
        each->palettes()->ensure(colorsOfTable(tables[0]));
    }
    const int mode = palette.isEmpty() ? Zorv::Sprite::ImagePalette
                     : recolors        ? Zorv::Sprite::ReplacePalette
                                       : Zorv::Sprite::ForcePalette;
    QStringList files;
    for (int i = 0; i < 24; ++i) {
        files.append(folder.filePath(QStringLiteral("2-%1.png").arg(i)));
        const QImage image = i % 5 == 4 ? QImage(files.at(i - 2)) : randomImage(random, tables);
        QVERIFY(image.save(files.last()));
        FamilySprite* sprite = plain->addSprite();
        sprite->setProperty("Identifier", QStringLiteral("2,%1").arg(i));
        QString error;
        sprite->setImage(Zorv::readImageFile(files.last(), &error), reverses, mode,
                         palette.isEmpty() ? nullptr : plain->palettes()->item(0));
        sprite->setProperty("Codec", codecName(PixelCodec(codec)));
    }
    plain->refresh();
    ImportRequest request;
    request.palette = palette;
    request.recolors = recolors;
    request.reverses = reverses;
    request.codec = PixelCodec(codec);
    QCOMPARE(importSprites(sprites.get(), imagesOfFiles(files), request).done, 24);
    QByteArray bytes[2];
    for (const bool isPlain : {false, true}) {
        const QString path = folder.filePath("out.sprites");
        (isPlain ? plain : sprites)->toFile(*Zorv::FileSystemArchive::instance(), path, true);
        bytes[isPlain] = readFile(path);
    }
    QVERIFY(bytes[0].size() > 1000 && bytes[0] == bytes[1]);
}

// Its indices are seen as shades of grey in whatever it becomes.
void TestSpriteExchange::imageWithoutPalette()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath("1_2.pcx");
    QImage image(3, 1, QImage::Format_Indexed8);
    image.setColorTable({0xff000000});
    std::fill_n(image.bits(), 3, 200);
    QFile file(name);
    QVERIFY(Zorv::savePCX(image, &file) && file.resize(file.pos() - 769));
    file.close();

    QString error;
    for (const char* format : {"PNG", "BMP", "GIF", "PCX"}) {
        QByteArray bytes = imageFile(Zorv::readImageFile(name, &error), format, name, &error);
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::ReadOnly);
        QImage other;
        QVERIFY2(Zorv::loadImage(&buffer, format, other), format);
        QCOMPARE(other.pixel(1, 0), qRgb(200, 200, 200));
    }
    const Collection sprites(newSprites("a.sprites"));
    QCOMPARE(importSprites(sprites.get(), imagesOfFiles({name}), {}).errors, QStringList());
    QCOMPARE(sprites->sprite(0)->image().pixel(1, 0), qRgb(200, 200, 200));
}

// What a palette lacks is black in its file, whatever the one before it left in memory.
void TestSpriteExchange::palettesOfFewColors()
{
    QRandomGenerator random(Seed);
    const Collection sprites(newSprites("a.sprites"));
    for (quint16 group = 0; group < 8; ++group) {
        QImage image(4, 4, QImage::Format_Indexed8);
        image.setColorTable(randomTable(random));
        image.fill(1);
        sprites->insertSprite(int(sprites->count()) - 1, {group, 0}, {}, image);
    }
    const QTemporaryDir folder;
    OutputRequest request;
    request.place = folder.path();
    const auto& palettes = sprites->palettes()->items();
    for (int i = 0; i < palettes.size(); ++i) {
        palettes[i]->state.count = 256 >> i;
    }
    QCOMPARE(exportPalettes(*sprites, {}, request).done, 8);
    for (const auto& palette : palettes) {
        QByteArray expected;
        for (int i = 255; i >= 0; --i) {
            const bool isGiven = i < palette->state.count;
            const Zorv::RGBA color = isGiven ? palette->state.colors[size_t(i)] : Zorv::RGBA{};
            expected.append(char(color.r)).append(char(color.g)).append(char(color.b));
        }
        QCOMPARE(readFile(folder.filePath(palette->id().text().replace(',', '-') + ".act")),
                 expected);
    }
}

QTEST_MAIN(TestSpriteExchange)
#include "tst_spriteexchange.moc"
