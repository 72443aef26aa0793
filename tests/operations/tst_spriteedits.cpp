#include "operations/media/spriteedits.h"

#include "family/assets/newsprites.h"
#include "family/assets/palettelist.h"
#include "family/assets/remapmodel.h"
#include "family/assets/spritefile.h"
#include "operations/hostinterface.h"
#include "operations/media/paletteedits.h"
#include "operations/media/paletteuses.h"
#include "operations/media/spriteimport.h"

#include "support/folders.h"
#include "support/release.h"

#include <zorv/core/filesystemarchive.h>
#include <zorv/core/progressreporter.h>
#include <zorv/media/tools/colorchanges.h>

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>
#include <algorithm>
#include <memory>

using namespace Family;
using namespace Operations;

namespace {

/// Shows nothing, and gives up when it was told often enough how far work is.
class ImpatientHost final : public HostInterface
{
public:
    Zorv::ProgressReporter* progress(const QString&, int) override
    {
        struct Reporter final : Zorv::ProgressReporter
        {
            explicit Reporter(int* left) : patience(left) {}
            void update(int, int) override { --*patience; }
            bool isCanceled() const override { return *patience < 0; }
            void finish() override { delete this; }
            int* patience;
        };
        return new Reporter(&patience);
    }

    int patience = INT_MAX;
};

using Collection = std::unique_ptr<SpriteCollection, Release>;
using Pictures = QVector<QImage>;

QVector<int> allRows(int count)
{
    QVector<int> rows(count);
    std::iota(rows.begin(), rows.end(), 0);
    return rows;
}

/// Three palettes, the first of which is shown as the second, and sprites of them, of greys and of
/// true colour, some with the same pixels.
QByteArray someSprites(QRandomGenerator& random, int count)
{
    const Collection sprites(new SpriteFile);
    for (int i = 0; i < 3; ++i) {
        Zorv::RGBA colors[256];
        for (Zorv::RGBA& color : colors) {
            color = {quint8(random.bounded(256)), quint8(random.bounded(256)), quint8(i), 255};
        }
        colors[0].a = 0;
        sprites->palettes()->addPalette(colors, 0, true);
    }
    sprites->palettes()->remaps()->add({1, 1}, {1, 2});
    for (int i = 0; i < count; ++i) {
        const bool isTrue = i % 7 == 5;
        QImage image(random.bounded(1, 30), random.bounded(1, 30),
                     isTrue ? QImage::Format_ARGB32 : QImage::Format_Indexed8);
        for (int y = 0; y < image.height(); ++y) {
            std::generate_n(image.scanLine(y), image.bytesPerLine(),
                            [&] { return uchar(random.bounded(i % 2 ? 20 : 256)); });
        }
        FamilySprite* sprite =
            sprites->insertSprite(i - 1, {quint16(200 + i % 3), quint16(i)}, {i, -i},
                                  i % 5 == 4 && !isTrue ? sprites->sprite(i - 1)->image() : image);
        sprite->setPalette(i % 4 == 3 ? nullptr : sprites->palettes()->palette(i % 4));
    }
    // That of greys, which images without colours bring.
    sprites->palettes()->remove(3);
    QTemporaryDir folder;
    const QString name = folder.filePath("a.sprites");
    return sprites->toFile(*Zorv::FileSystemArchive::instance(), name, false) ? readFile(name)
                                                                              : QByteArray();
}

/// A collection with the bytes of a file, and its bytes as they would be saved.
class Opened
{
public:
    explicit Opened(const QByteArray& bytes) : sprites(new SpriteFile)
    {
        QFile file(m_folder.filePath("a.sprites"));
        file.open(QIODevice::WriteOnly);
        file.write(bytes);
        file.close();
        sprites->fromFile(archive(), file.fileName(), false);
    }

    QByteArray save()
    {
        const QString name = m_folder.filePath("b.sprites");
        return sprites->toFile(archive(), name, true) ? readFile(name) : QByteArray();
    }

    /// In the colours of each palette, as the person would see them.
    Pictures pictures() const
    {
        Pictures pictures;
        for (const auto& sprite : sprites->items()) {
            QImage image = sprite->image();
            pictures.append(image.convertToFormat(QImage::Format_ARGB32));
            for (const auto& palette : sprites->palettes()->items()) {
                if (sprite->palette() && !image.isNull()) {
                    image.setColorTable(palette->colorTable());
                    pictures.append(image.convertToFormat(QImage::Format_ARGB32));
                }
            }
        }
        return pictures;
    }

    /// One step has been made, which leads back to these bytes, and forth again.
    bool isOneStepFrom(const QByteArray& bytes)
    {
        const QByteArray changed = save();
        sprites->undo();
        const bool isBack = !sprites->canUndo() && save() == bytes;
        sprites->redo();
        return isBack && save() == changed;
    }

    Collection sprites;

private:
    static Zorv::Archive& archive() { return *Zorv::FileSystemArchive::instance(); }
    QTemporaryDir m_folder;
};

}  // namespace

class TestSpriteEdits : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { startHost(&m_host); }
    void reorderKeepsPictures();
    void whoChangesTogether();
    void brokenOnesStay();
    void givenUpChangesNothing();
    void givenUpImportKeepsTheOneBefore();
    void imagesOfAFolder();
    void colorsOfPalettes();
    void countsUses();
    void axesAndNumbers();
    void recolors();

private:
    ImpatientHost m_host;
};

void TestSpriteEdits::reorderKeepsPictures()
{
    QRandomGenerator random(18);
    const QByteArray bytes = someSprites(random, 40);
    for (int round = 0; round < 6; ++round) {
        Opened file(bytes);
        Zorv::PaletteOrder order = Zorv::sameOrder();
        std::shuffle(order.begin(), order.end(), random);
        if (round == 0) {
            order = Zorv::movedOrder(7, 5);
        }
        const Pictures before = file.pictures();
        const auto last = file.sprites->palettes()->item(2)->state.colors;
        const bool isAll = round % 2 == 0;
        const MediaResult result =
            reorderPalettes(file.sprites.get(), isAll ? allRows(3) : QVector<int>{1}, order);
        QCOMPARE(result.errors + result.warnings, QStringList());
        QCOMPARE(result.done, isAll ? 3 : 2);
        // Palette 3 alone is not shown with the others.
        if (isAll) {
            QVERIFY(file.pictures() == before);
        } else {
            QVERIFY(file.sprites->palettes()->item(2)->state.colors == last);
            for (int i = 0; i < 40; ++i) {
                const Opened old(bytes);
                QVERIFY(file.sprites->sprite(i)->image().convertToFormat(QImage::Format_ARGB32) ==
                        old.sprites->sprite(i)->image().convertToFormat(QImage::Format_ARGB32));
            }
        }
        QVERIFY(file.isOneStepFrom(bytes));
        // Sprites 8 and 9 show the same pixels, in two of the palettes that go along.
        QVERIFY(file.sprites->sprite(8)->state.pixels == file.sprites->sprite(9)->state.pixels);
    }
}

void TestSpriteEdits::whoChangesTogether()
{
    QRandomGenerator random(4);
    const Opened file(someSprites(random, 4));
    const SpriteCollection& sprites = *file.sprites;
    QCOMPARE(palettesShownTogether(sprites, {0}), (QVector<int>{0, 1}));
    QCOMPARE(palettesShownTogether(sprites, {2, 77}), QVector<int>{2});
    file.sprites->palettes()->remaps()->add({1, 3}, {1, 1});
    QCOMPARE(palettesShownTogether(sprites, {1}), (QVector<int>{0, 1, 2}));
}

void TestSpriteEdits::brokenOnesStay()
{
    QRandomGenerator random(6);
    const QByteArray whole = someSprites(random, 3);
    QByteArray bytes = whole;
    bytes[bytes.size() - 1] = char(~bytes[bytes.size() - 1]);
    {
        Opened file(bytes);
        const QByteArray last = bytes.right(16);
        const auto pixels = file.sprites->sprite(2)->state.pixels;
        const MediaResult result =
            reorderPalettes(file.sprites.get(), allRows(3), Zorv::movedOrder(1, 200));
        QCOMPARE(result.warnings,
                 QStringList("Sprite 202,2 stays as it is: its pixels are broken."));
        QVERIFY(file.sprites->sprite(2)->state.pixels == pixels);
        QVERIFY(file.isOneStepFrom(bytes));
        const MediaResult recolored =
            recolorSprites(file.sprites.get(), {2}, "1,1", PixelsKeep::Looks);
        QCOMPARE(recolored.warnings, result.warnings);
        QCOMPARE(recolored.done, 0);
        QCOMPARE(countUses(*file.sprites).broken, QVector<int>{2});
    }
    bytes = whole;
    const int firstPalette = 64;
    bytes[firstPalette + 20] = char(~bytes[firstPalette + 20]);
    Opened file(bytes);
    for (const MediaResult& result :
         {reorderPalettes(file.sprites.get(), {1}, Zorv::movedOrder(1, 200)),
          fillRamp(file.sprites.get(), allRows(3), 1, 5, Zorv::ColorSpace::RGB)}) {
        QCOMPARE(result.errors.size(), 1);
        QVERIFY(result.errors.first().contains("palette 1,1"));
    }
    QVERIFY(file.save() == bytes);
}

void TestSpriteEdits::givenUpChangesNothing()
{
    QRandomGenerator random(2);
    const QByteArray bytes = someSprites(random, 30);
    int ends = 0;
    for (int patience = 0; patience < 100; ++patience) {
        Opened file(bytes);
        m_host.patience = patience;
        const bool isGivenUp =
            reorderPalettes(file.sprites.get(), {0}, Zorv::movedOrder(1, 200)).isCanceled ||
            recolorSprites(file.sprites.get(), allRows(30), "1,2", PixelsKeep::Looks).isCanceled;
        m_host.patience = INT_MAX;
        if (!isGivenUp) {
            break;
        }
        ++ends;
        if (file.sprites->canUndo()) {  // the first of them was over
            file.sprites->undo();
        }
        QVERIFY(!file.sprites->canUndo());
        QVERIFY(file.save() == bytes);
    }
    QVERIFY(ends > 5 && ends < 100);  // behind sprites of true colour, too
}

/// The same images once more change nothing, so there is no step to take back.
void TestSpriteEdits::givenUpImportKeepsTheOneBefore()
{
    QRandomGenerator random(3);
    Opened file(someSprites(random, 4));
    QImage sheet(40, 1, QImage::Format_RGB32);
    QVector<ImportImage> images;
    for (int i = 0; i < sheet.width(); ++i) {
        sheet.setPixel(i, 0, qRgb(i, 2 * i, 7));
    }
    for (int i = 0; i < sheet.width(); ++i) {
        SheetFrame frame;
        frame.rect = {i, 0, 1, 1};
        frame.original = frame.rect.size();
        images.append({QString("9-%1").arg(i), "sheet.png", sheet, frame});
    }
    ImportRequest request;
    request.numbering.whenTaken = WhenTaken::Replace;
    QCOMPARE(importSprites(file.sprites.get(), images, request).done, images.size());
    const QByteArray bytes = file.save();
    bool isGivenUp = false;
    for (int patience = 0; patience < 30; patience += 3) {
        m_host.patience = patience;
        isGivenUp |= importSprites(file.sprites.get(), images, request).isCanceled;
        m_host.patience = INT_MAX;
        QVERIFY(file.save() == bytes);
    }
    QVERIFY(isGivenUp);
}

void TestSpriteEdits::imagesOfAFolder()
{
    QRandomGenerator random(5);
    const Opened file(someSprites(random, 12));
    QTemporaryDir folder;
    Zorv::Archive& archive = *Zorv::FileSystemArchive::instance();
    const Collection written(newSprites(folder.path()));
    for (const auto& sprite : file.sprites->items()) {
        written->insertSprite(sprite->row - 1, sprite->id(), {}, sprite->image());
    }
    QVERIFY2(written->toFile(archive, folder.path(), false), qPrintable(written->errorString()));
    const auto pictures = [&] {
        QString error;
        const Collection sprites(openSprites(folder.path(), &error));
        Pictures images;
        for (const auto& sprite : sprites->items()) {
            images.append(sprite->image().convertToFormat(QImage::Format_ARGB32));
        }
        return images;
    };
    const Pictures before = pictures();
    QString error;
    const Collection sprites(openSprites(folder.path(), &error));
    const QByteArray rows = sprites->sprite(0)->pixelRows();
    QVERIFY(reorderPalettes(sprites.get(), {0},
                            Zorv::sortedOrder(sprites->palettes()->palette(0)->state.colors.data(),
                                              Zorv::PaletteKey::Hue))
                .done > 0);
    QVERIFY(sprites->toFile(archive, folder.path(), false));
    QVERIFY(sprites->sprite(0)->pixelRows() != rows);
    QVERIFY(before.size() == 12 && pictures() == before);
}

void TestSpriteEdits::colorsOfPalettes()
{
    QRandomGenerator random(7);
    const QByteArray bytes = someSprites(random, 3);
    Opened file(bytes);
    const Zorv::RGBA white{255, 255, 255, 255};
    PaletteList* palettes = file.sprites->palettes();
    const PaletteColors first = palettes->item(0)->state.colors;
    const Zorv::RGBA wanted = palettes->item(1)->state.colors[9];
    const MediaResult result = replaceColor(file.sprites.get(), allRows(3), wanted, white);
    QCOMPARE(result.done, 1);
    QVERIFY(palettes->item(1)->state.colors[9] == white);
    QVERIFY(palettes->item(0)->state.colors == first);
    QVERIFY(file.isOneStepFrom(bytes));
    file.sprites->undo();

    QCOMPARE(fillRamp(file.sprites.get(), {2}, 20, 10, Zorv::ColorSpace::OKLab).done, 11);
    const PaletteColors& colors = palettes->item(2)->state.colors;
    const auto ramp = Zorv::rampBetween(colors[10], colors[20], 11, Zorv::ColorSpace::OKLab);
    QVERIFY(std::equal(ramp.begin(), ramp.end(), colors.begin() + 10));
    QVERIFY(file.isOneStepFrom(bytes));
    file.sprites->undo();

    FamilyPalette* copy = duplicatePalette(file.sprites.get(), 0);
    QCOMPARE(copy->id().text(), "1,4");
    QVERIFY(copy->row == 1 && copy->state.colors == palettes->item(0)->state.colors);
    QVERIFY(file.isOneStepFrom(bytes));
    QVERIFY(!duplicatePalette(file.sprites.get(), 9));
}

void TestSpriteEdits::countsUses()
{
    QRandomGenerator random(9);
    const Opened file(someSprites(random, 30));
    const PaletteUseCount count = countUses(*file.sprites);
    QCOMPARE(count.broken, QVector<int>());
    for (const auto& palette : file.sprites->palettes()->items()) {
        const PaletteUses& uses = count.palettes[palette->row];
        int sprites = 0;
        std::array<int, 256> having{};
        std::array<qint64, 256> pixels{};
        for (const auto& sprite : file.sprites->items()) {
            if (sprite->palette() != palette.get()) {
                continue;
            }
            ++sprites;
            const QByteArray rows = sprite->pixelRows();
            for (int i = 0; i < 256; ++i) {
                pixels[size_t(i)] += rows.count(char(i));
                having[size_t(i)] += rows.contains(char(i));
            }
        }
        QCOMPARE(uses.sprites, sprites);
        for (size_t i = 0; i < 256; ++i) {
            QCOMPARE(uses.entries[i].sprites, having[i]);
            QCOMPARE(uses.entries[i].pixels, pixels[i]);
        }
    }
}

void TestSpriteEdits::axesAndNumbers()
{
    QRandomGenerator random(3);
    const QByteArray bytes = someSprites(random, 4);
    Opened file(bytes);
    const QSize size = file.sprites->sprite(3)->size();
    QCOMPARE(setAxes(file.sprites.get(), {3, 0}, AxisBase::BottomRight, {1, -1}).done, 2);
    QCOMPARE(file.sprites->sprite(3)->axis(), QPoint(size.width(), size.height() - 2));
    QVERIFY(file.isOneStepFrom(bytes));
    file.sprites->undo();
    // Into each other's places.
    QCOMPARE(renumberSprites(file.sprites.get(), {3, 0}, {200, false, 3}).done, 2);
    QCOMPARE(file.sprites->sprite(0)->id().text(), QStringLiteral("200,4"));
    QVERIFY(file.isOneStepFrom(bytes));
    file.sprites->undo();
    for (const Renumbering how : {Renumbering{1, false, 65534}, Renumbering{1, true, 1}}) {
        QCOMPARE(renumberSprites(file.sprites.get(), allRows(4), how).errors.isEmpty(),
                 how.isShift);
    }
}

void TestSpriteEdits::recolors()
{
    QRandomGenerator random(12);
    const QByteArray bytes = someSprites(random, 12);
    {
        Opened file(bytes);
        const MediaResult result =
            recolorSprites(file.sprites.get(), allRows(12), "1,3", PixelsKeep::Indices);
        QCOMPARE(result.warnings.size(), 1);
        QCOMPARE(result.done, 11);
        const Opened old(bytes);
        for (int i = 0; i < 12; ++i) {
            const FamilySprite* sprite = file.sprites->sprite(i);
            QVERIFY(sprite->pixelRows() == old.sprites->sprite(i)->pixelRows());
            QCOMPARE(sprite->bits() == 32, !sprite->palette());
        }
        QVERIFY(file.isOneStepFrom(bytes));
    }
    // Each pixel has the nearest of the colours that it could have.
    Opened file(bytes);
    const Opened old(bytes);
    QCOMPARE(recolorSprites(file.sprites.get(), allRows(12), "1,3", PixelsKeep::Looks).done, 12);
    const PaletteColors colors = file.sprites->palettes()->item(2)->state.colors;
    const auto distance = [](Zorv::RGBA a, Zorv::RGBA b) {
        return (a.r - b.r) * (a.r - b.r) + (a.g - b.g) * (a.g - b.g) + (a.b - b.b) * (a.b - b.b) +
               (a.a - b.a) * (a.a - b.a);
    };
    for (int i = 0; i < 12; ++i) {
        const FamilySprite* was = old.sprites->sprite(i);
        const QByteArray rows = file.sprites->sprite(i)->pixelRows();
        const PaletteColors own =
            was->state.palette ? was->state.palette->state.colors : greyColors();
        for (int at = 0; at < rows.size() && was->bits() == 8; ++at) {
            const Zorv::RGBA color = own[uchar(was->pixelRows()[at])];
            const int reached = distance(color, colors[uchar(rows[at])]);
            QVERIFY(color.a == 0 || std::none_of(colors.begin(), colors.end(), [&](auto other) {
                        return distance(color, other) < reached;
                    }));
        }
        QCOMPARE(file.sprites->sprite(i)->state.palette->row, 2);
    }
    QVERIFY(file.isOneStepFrom(bytes));
    QVERIFY(!recolorSprites(file.sprites.get(), {0}, "9,9", PixelsKeep::Looks).errors.isEmpty());
}

QTEST_GUILESS_MAIN(TestSpriteEdits)
#include "tst_spriteedits.moc"
