// The pictures and sounds of the sample game as the library reads them. They were written by the
// script, which knows the formats by itself: what both agree on is what the docs tell.

#include "family/assets/familysound.h"
#include "family/assets/familysprite.h"
#include "family/assets/newsprites.h"
#include "family/assets/soundfile.h"
#include "family/assets/spritecollection.h"
#include "samplefiles.h"
#include "support/release.h"
#include "support/testinterface.h"

#include <zorv/code/codecs/textcodecs.h>
#include <zorv/core/filesystemarchive.h>
#include <zorv/media/losslessimages.h>
#include <zorv/media/paletteobject.h>

#include <QtTest>

using namespace Family;

namespace {

std::unique_ptr<SpriteCollection, Release> opened(const QString& fileName)
{
    QString error;
    SpriteCollection* sprites = openSprites(fileName, &error);
    if (!sprites) {
        qWarning("%s", qPrintable(error));
    }
    return std::unique_ptr<SpriteCollection, Release>(sprites);
}

}  // namespace

class TestSampleSprites : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void filesAreWhole_data();
    void filesAreWhole();
    void costumesAreThePaletteFiles_data();
    void costumesAreThePaletteFiles();
    void soundsAreHeard_data();
    void soundsAreHeard();

private:
    void addFighters();
    TestInterface m_interface;
};

void TestSampleSprites::initTestCase()
{
    Zorv::setLosslessImages(true);
    Zorv::TextCodecs::setDefaultCodec(Zorv::TextCodecs::index("UTF-8"));
}

void TestSampleSprites::addFighters()
{
    QTest::addColumn<QString>("folder");
    for (const char* name : {"maren", "iwao"}) {
        QTest::newRow(name) << gameFolder("arena/characters/") + name;
    }
}

void TestSampleSprites::filesAreWhole_data()
{
    QTest::addColumn<QString>("fileName");
    for (const char* name :
         {"characters/maren/maren", "characters/iwao/iwao", "stages/quay/quay"}) {
        QTest::newRow(name) << gameFolder("arena/") + name + ".sprites";
    }
}

/// Nothing is broken, each picture unpacks, and LZ5 has no more than the colours it can keep.
void TestSampleSprites::filesAreWhole()
{
    QFETCH(QString, fileName);
    const auto sprites = opened(fileName);
    QVERIFY(sprites);
    QCOMPARE(sprites->loadErrors(), QStringList());
    for (uint i = 0; i < sprites->count(); ++i) {
        FamilySprite* sprite = sprites->sprite(int(i));
        QCOMPARE(sprite->pixelFault(), QString());
        QVERIFY2(!sprite->image().isNull(), qPrintable(sprite->id().text()));
        if (sprite->codec() == PixelCodec::Lz5) {
            const QByteArray rows = sprite->pixelRows();
            QVERIFY(std::all_of(rows.begin(), rows.end(), [](char c) { return quint8(c) < 32; }));
            QVERIFY(sprite->state.palette->colorCount() <= 32);
        }
    }
}

void TestSampleSprites::costumesAreThePaletteFiles_data()
{
    addFighters();
}

void TestSampleSprites::costumesAreThePaletteFiles()
{
    QFETCH(QString, folder);
    const auto sprites = opened(folder + '/' + QDir(folder).dirName() + ".sprites");
    QVERIFY(sprites);
    int row = 0;
    for (const char* name : {"light", "medium", "heavy", "start"}) {
        QFile file(folder + "/palettes/" + name + ".act");
        QVERIFY(file.open(QIODevice::ReadOnly));
        Zorv::RGBA colors[256], expected[256];
        Zorv::PaletteObject palette(colors);
        QVERIFY(palette.fromFile(&file, "ACT"));
        const FamilyPalette* costume = sprites->palettes()->palette(row++);
        costume->toPalette(expected);
        QVERIFY(costume->colorCount() > 16);
        for (int i = 0; i < costume->colorCount(); ++i) {
            QVERIFY2(colors[i] == expected[i], qPrintable(QString::number(i)));
        }
    }
}

void TestSampleSprites::soundsAreHeard_data()
{
    addFighters();
}

/// Each sound opens, and is loud enough to be heard.
void TestSampleSprites::soundsAreHeard()
{
    QFETCH(QString, folder);
    const std::unique_ptr<SoundFile, Release> sounds(new SoundFile);
    QVERIFY(sounds->fromFile(*Zorv::FileSystemArchive::instance(),
                             folder + '/' + QDir(folder).dirName() + ".sounds", false));
    QCOMPARE(sounds->loadErrors(), QStringList());
    QVERIFY(sounds->count() > 10);
    for (uint i = 0; i < sounds->count(); ++i) {
        const QByteArray data = sounds->sound(int(i))->sampleData();
        const auto* samples = reinterpret_cast<const qint16*>(data.constData());
        const auto ends = std::minmax_element(samples, samples + data.size() / 2);
        QVERIFY(qMax(-int(*ends.first), int(*ends.second)) > 12000);
    }
}

QTEST_MAIN(TestSampleSprites)
#include "tst_sample_sprites.moc"
