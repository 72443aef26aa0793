#include "family/assets/newsprites.h"
#include "family/assets/spritecollection.h"
#include "family/import/sheetcutter.h"
#include "operations/hostinterface.h"
#include "operations/media/spriteimport.h"

#include "support/folders.h"
#include "support/release.h"
#include "support/testtable.h"

#include <QTemporaryDir>
#include <QtTest>
#include <memory>

using namespace Family;
using namespace Operations;

namespace {

using Collection = std::unique_ptr<SpriteCollection, Release>;

QImage shade(int i, QSize size = {4, 6})
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(qRgb(i % 256, i / 256, 77));
    return image;
}

Collection withSprite(AssetId id)
{
    Collection sprites(newSprites("a.sprites"));
    sprites->insertSprite(-1, id, {1, 1}, shade(0));
    return sprites;
}

}  // namespace

/// Images that become sprites: their numbers, sheets, palettes.
class TestImageImport : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { startHost(&m_host); }
    void numbers_data();
    void numbers();
    void comesFromASheet();
    void refusesSheets_data();
    void refusesSheets();
    void reducesColours();
    void leavesOutWhatIsBroken();

private:
    HostInterface m_host;
};

void TestImageImport::numbers_data()
{
    columns<QString, int, WhenTaken, QStringList>("pattern", "group", "taken", "ids");
    const QString usual = Numbering::defaultPattern();
    const auto refuse = WhenTaken::Refuse;
    const auto next = WhenTaken::NextFree;
    row("names", usual, -1, refuse, QStringList{"taken", "5,1", "twice", "unknown", "7,2"});
    row("moved", usual, 9, next, QStringList{"5,2", "5,1", "5,3", "9,0", "7,2"});
    row("replaced", usual, 9, WhenTaken::Replace, QStringList{"5,0", "5,1", "twice", "9,0", "7,2"});
    row("group alone", QString(), 5, refuse, QStringList{"5,1", "5,2", "5,3", "5,4", "5,5"});
    row("number alone", QStringLiteral("x{number}"), 5, next,
        QStringList{"5,1", "5,2", "5,3", "5,4", "5,5"});
    row("any text", QStringLiteral("{group}*"), -1, refuse,
        QStringList{"5,1", "5,2", "5,3", "unknown", "7,0"});
}

void TestImageImport::numbers()
{
    const auto [pattern, group, taken, ids] = fetched<QString, int, WhenTaken, QStringList>();
    const Collection sprites = withSprite({5, 0});
    const QVector<ImportImage> images =
        imagesOfFiles({"5-0.png", "5-1.png", "b/5-1.png", "hit.png", "7-2.png"});
    Numbering numbering;
    numbering.pattern = pattern;
    numbering.group = group;
    numbering.whenTaken = taken;
    const auto numbers = numberImages(images, numbering, *sprites);
    QStringList found;
    for (int i = 0; i < numbers.size(); ++i) {
        const ImageNumber& number = numbers[i];
        found.append(number.state == ImageNumber::Taken      ? QStringLiteral("taken")
                     : number.state == ImageNumber::Twice    ? QStringLiteral("twice")
                     : number.state == ImageNumber::NoNumber ? QStringLiteral("unknown")
                                                             : number.target.id.text());
        QVERIFY(!number.isFault() || !tellNumber(images, numbers, i).isEmpty());
    }
    QCOMPARE(found, ids);
}

/// Frames of a sheet come with their axis, also when they are cropped; equal ones are one sprite.
void TestImageImport::comesFromASheet()
{
    const QTemporaryDir folder;
    QImage page(20, 10, QImage::Format_ARGB32);
    page.fill(0);
    for (int i = 0; i < 12; ++i) {
        page.setPixel(2 + i % 4, 3 + i / 4, qRgb(i * 9, 200, 0));
    }
    QVERIFY(page.save(folder.filePath("a.png")));
    const QByteArray frame = "{\"frame\":{\"x\":0,\"y\":0,\"w\":10,\"h\":10},\"duration\":50}";
    writeFile(folder.filePath("a.json"),
              "{\"frames\":{\"walk 1-0.ase\":" + frame + ",\"walk 1-1.ase\":" + frame +
                  ",\"far\":{\"frame\":{\"x\":15,\"y\":0,\"w\":10,\"h\":1}}},"
                  "\"meta\":{\"image\":\"C:\\\\art\\\\a.png\"}}");
    const SheetImages sheet = readSheetFile(folder.filePath("a.json"));
    QCOMPARE(sheet.error, QString());
    QCOMPARE(sheet.images.size(), 2);
    QCOMPARE(sheet.warnings.size(), 1);
    for (const bool crops : {false, true}) {
        const Collection sprites(newSprites("a.sprites"));
        ImportRequest request;
        request.crops = crops;
        request.axisBase = AxisBase::Bottom;
        QVector<ImportedId> ids;
        QCOMPARE(importSprites(sprites.get(), sheet.images, request, &ids).errors, QStringList());
        QCOMPARE(sprites->count(), 1u);
        QVERIFY(ids.size() == 2 && ids[0].id == ids[1].id);
        const FamilySprite* sprite = sprites->sprite(0);
        const QRect part = crops ? QRect(2, 3, 4, 3) : QRect(0, 0, 10, 10);
        QCOMPARE(sprite->image().convertToFormat(QImage::Format_ARGB32), page.copy(part));
        QCOMPARE(sprite->axis(), QPoint(5, 9) - part.topLeft());
        sprites->undo();
        QVERIFY(sprites->count() == 0 && !sprites->canUndo());
    }
}

void TestImageImport::refusesSheets_data()
{
    columns<QByteArray, QString>("json", "says");
    const QByteArray frame = "[{\"frame\":{\"x\":0,\"y\":0,\"w\":1,\"h\":1}}]";
    row("wrong JSON", QByteArray("{"), QStringLiteral("line 1"));
    row("no picture", "{\"frames\":" + frame + ",\"meta\":{\"image\":\"gone.png\"}}",
        QStringLiteral("gone.png"));
    row("missing page",
        "{\"textures\":[{\"image\":\"a.png\",\"frames\":" + frame +
            "},{\"image\":\"b.png\",\"frames\":" + frame + "}]}",
        QStringLiteral("b.png"));
    row("missing file of the set",
        "{\"frames\":" + frame +
            ",\"meta\":{\"image\":\"a.png\",\"related_multi_packs\":[\"a-1.json\"]}}",
        QStringLiteral("a-1.json"));
    row("out of the folder", "{\"frames\":" + frame + ",\"meta\":{\"image\":\"../..\"}}",
        QStringLiteral("not beside"));
    row("all outside",
        QByteArray(
            "{\"frames\":[{\"frame\":{\"x\":9,\"y\":0,\"w\":9,\"h\":1}}],\"meta\":{\"image\":"
            "\"a.png\"}}"),
        QStringLiteral("None of the frames"));
}

void TestImageImport::refusesSheets()
{
    const auto [json, says] = fetched<QByteArray, QString>();
    const QTemporaryDir folder;
    QVERIFY(shade(1).save(folder.filePath("a.png")));
    writeFile(folder.filePath("sheet.json"), json);
    const SheetImages sheet = readSheetFile(folder.filePath("sheet.json"));
    QVERIFY(sheet.images.isEmpty());
    QVERIFY2(sheet.error.contains(says), qPrintable(sheet.error));
}

void TestImageImport::reducesColours()
{
    QVector<ImportImage> images;
    QImage page(60, 6, QImage::Format_ARGB32);
    for (int i = 0; i < 360; ++i) {
        page.setPixel(i % 60, i / 60, qRgb(i % 256, i / 2, 255 - i / 2));
    }
    SheetCut cut;
    cut.how = SheetCut::ByCount;
    cut.columns = 10;
    const Collection sprites(newSprites("a.sprites"));
    ImportRequest request;
    request.colors = 16;
    const SheetImages sheet = cutPicture("run-1.png", page, cut);
    QCOMPARE(importSprites(sprites.get(), sheet.images, request).done, 10);
    QCOMPARE(sprites->palettes()->count(), 1);
    QSet<QRgb> colors;
    for (const auto& sprite : sprites->items()) {
        QCOMPARE(sprite->bits(), 8);
        QCOMPARE(sprite->palette(), sprites->sprite(0)->palette());
        for (const char index : sprite->pixelRows()) {
            colors.insert(sprite->shownColors().at(uchar(index)));
        }
    }
    QVERIFY(colors.size() > 4 && colors.size() <= 15);
}

void TestImageImport::leavesOutWhatIsBroken()
{
    const QTemporaryDir folder;
    QVERIFY(shade(1).save(folder.filePath("1-0.png")));
    writeFile(folder.filePath("1-1.png"), "no picture");
    const auto images = imagesOfFiles(imageFilesIn(folder.path()));
    QCOMPARE(images.size(), 2);
    for (const bool leavesOut : {false, true}) {
        const Collection sprites(newSprites("a.sprites"));
        ImportRequest request;
        request.leavesOut = leavesOut;
        QVector<ImportedId> ids;
        QCOMPARE(importSprites(sprites.get(), images, request, &ids).errors.size(), 1);
        QCOMPARE(int(sprites->count()), int(leavesOut));
        QCOMPARE(ids.size(), int(leavesOut));
    }
}

Q_DECLARE_METATYPE(Operations::WhenTaken)

QTEST_GUILESS_MAIN(TestImageImport)
#include "tst_imageimport.moc"
