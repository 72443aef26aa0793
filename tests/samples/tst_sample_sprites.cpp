// The pictures and sounds of the sample game as the library reads them. They were written by the
// script, which knows the formats by itself: what both agree on is what the docs tell.

#include "family/assets/familysound.h"
#include "family/assets/familysprite.h"
#include "family/assets/newsprites.h"
#include "family/assets/soundfile.h"
#include "family/assets/spritecollection.h"
#include "family/nodes/animationnode.h"
#include "family/nodes/framenode.h"
#include "samplefiles.h"
#include "support/testinterface.h"

#include <zorv/code/codecs/textcodecs.h>
#include <zorv/code/codedoc/contactboxescode.h>
#include <zorv/core/filesystemarchive.h>
#include <zorv/media/losslessimages.h>
#include <zorv/media/paletteobject.h>

#include <QtTest>
#include <functional>

using namespace Family;

namespace {

using Visit = std::function<void(const QString&, Zorv::FrameCode*)>;

/// Shows all frames of the animations of a fighter.
void visitFrames(const QString& folder, const Visit& visit)
{
    for (const QString& name : codeFiles(folder)) {
        const auto document = openSample(folder + '/' + name);
        QVERIFY(document);
        for (int i = 0; i < document->childCount(); ++i) {
            auto* animation = dynamic_cast<AnimationNode*>(document->childAt(unsigned(i)));
            const auto frames = animation ? animation->frames() : QList<Zorv::FrameCode*>();
            for (int frame = 0; frame < frames.size(); ++frame) {
                visit(QStringLiteral("%1, frame %2").arg(animation->displayName()).arg(frame),
                      frames.at(frame));
            }
        }
    }
}

/// The boxes of a frame, one kind.
QVector<QRect> boxesOf(Zorv::FrameCode* frame, Zorv::ContactBoxCode::BoxType type)
{
    QVector<QRect> result;
    const Zorv::ContactBoxesCode* boxes = frame->contactBoxes(type);
    for (int i = 0; boxes && i < boxes->count(); ++i) {
        result += boxes->at(i)->rect();
    }
    return result;
}

/// What of a frame is drawn, around the axis of the fighter.
QRegion drawn(FamilySprite* sprite, Zorv::FrameCode* frame)
{
    const QImage image = sprite->image();
    const bool flipped = frame->flip() & Zorv::FrameCode::FlipHorizontally;
    QRegion region;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0, end = 0; x < image.width(); x = end + 1) {
            end = x;
            while (end < image.width() && image.pixelIndex(end, y) != 0) {
                ++end;
            }
            const int left = flipped ? sprite->axis().x() - end : x - sprite->axis().x();
            region += QRect(left, y - sprite->axis().y(), end - x, 1);
        }
    }
    return region.translated(frame->offset());
}

int areaOf(const QRegion& region)
{
    int area = 0;
    for (const QRect& rect : region) {
        area += rect.width() * rect.height();
    }
    return area;
}

/// Percent of a region that another one fills.
int filled(const QRegion& region, const QRegion& by)
{
    return areaOf(region & by) * 100 / qMax(1, areaOf(region));
}

std::unique_ptr<SpriteCollection, void (*)(SpriteCollection*)> opened(const QString& fileName)
{
    QString error;
    SpriteCollection* sprites = openSprites(fileName, &error);
    if (!sprites) {
        qWarning("%s", qPrintable(error));
    }
    return {sprites, [](SpriteCollection* each) { each->release(); }};
}

}  // namespace

class TestSampleSprites : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void filesAreWhole_data();
    void filesAreWhole();
    void figuresFillTheirBoxes_data();
    void figuresFillTheirBoxes();
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

void TestSampleSprites::figuresFillTheirBoxes_data()
{
    addFighters();
}

/// What can be hit is mostly body, what hits is limb or water, and no figure stands beside its
/// boxes. Turned and stretched frames are left out.
void TestSampleSprites::figuresFillTheirBoxes()
{
    QFETCH(QString, folder);
    const auto sprites = opened(folder + '/' + QDir(folder).dirName() + ".sprites");
    QVERIFY(sprites);
    int count = 0;
    visitFrames(folder, [&](const QString& name, Zorv::FrameCode* frame) {
        const AssetId id{quint16(frame->spriteGroup()), quint16(frame->spriteNumber())};
        FamilySprite* sprite = sprites->byId(id);
        QVERIFY2(sprite, qPrintable(name));
        if (frame->angle() != 0 || frame->scale() != QPointF(1, 1)) {
            return;
        }
        const QRegion figure = drawn(sprite, frame);
        QRegion boxes;
        for (const QRect& box : boxesOf(frame, Zorv::ContactBoxCode::Collision)) {
            QVERIFY2(filled(box, figure) >= 25, qPrintable(name));
            boxes += box;
        }
        const bool hittable = !boxes.isEmpty();
        for (const QRect& box : boxesOf(frame, Zorv::ContactBoxCode::Attack)) {
            QVERIFY2(filled(box, figure) >= 30, qPrintable(name));
            const bool right = box.right() > -box.left();
            const QRect end = right ? box.adjusted(box.width() - 10, 0, 0, 0)
                                    : box.adjusted(0, 0, 10 - box.width(), 0);
            QVERIFY2(figure.intersects(end), qPrintable(name));
            boxes += box;
        }
        QVERIFY2(!hittable || filled(figure, boxes) >= 50, qPrintable(name));
        count += hittable;
    });
    QVERIFY(count > 200);
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

/// Each sound opens, is loud enough to be heard, is not overdriven, and ends in silence.
void TestSampleSprites::soundsAreHeard()
{
    QFETCH(QString, folder);
    std::unique_ptr<SoundFile, void (*)(SoundFile*)> sounds(
        new SoundFile, [](SoundFile* each) { each->release(); });
    QVERIFY(sounds->fromFile(*Zorv::FileSystemArchive::instance(),
                             folder + '/' + QDir(folder).dirName() + ".sounds", false));
    QCOMPARE(sounds->loadErrors(), QStringList());
    QVERIFY(sounds->count() > 10);
    for (uint i = 0; i < sounds->count(); ++i) {
        const QByteArray data = sounds->sound(int(i))->sampleData();
        const int frames = sounds->sound(int(i))->sampleInfo().frames;
        QCOMPARE(data.size(), 2 * frames);
        const auto* samples = reinterpret_cast<const qint16*>(data.constData());
        const auto ends = std::minmax_element(samples, samples + frames);
        const int loudest = qMax(-int(*ends.first), int(*ends.second));
        QVERIFY2(loudest > 12000 && loudest < 32767, qPrintable(QString::number(i)));
        QVERIFY(qAbs(int(samples[frames - 1])) < 200);
    }
}

QTEST_MAIN(TestSampleSprites)
#include "tst_sample_sprites.moc"
