#include "plainsprites.h"

#include "family/assets/newsprites.h"
#include "family/assets/spritefolder.h"
#include "family/shades.h"

#include "support/folders.h"

#include <zorv/core/filesystemarchive.h>
#include <zorv/media/losslessimages.h>

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

using namespace Family;

class TestSpriteFolder : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Zorv::setLosslessImages(true); }
    void init();
    void opensImagesAsSprites();
    void savesAndReadsTheSame();
    void undoesAcrossSaving();
    void savingElsewhereForgetsTheOldFolder();
    void leavesAloneWhatItCannotRead();
    void writesAsPngWhatAFormatWouldLose();
    void writesThroughNoLink();

private:
    QString path(const char* name) const { return m_folder->filePath(QString::fromLatin1(name)); }
    QByteArray bytes(const char* name) const { return readFile(path(name)); }
    void write(const char* name, const QByteArray& data) { QVERIFY(writeFile(path(name), data)); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestSpriteFolder::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(shades(1).save(path("20_3.png")));
    QVERIFY(shades(2).save(path("b.png")));
    QVERIFY(shades(1).convertToFormat(QImage::Format_RGB32).save(path("c.png")));
    write("sprites.txt", "image 7,8 -3,4 b.png\nimage 1,1 5,6 -\nimage 9,9 1,2 gone.png\n"
                         "palette 4,5 b.png\nremap 8,8 9,9\nsomething else\n");
    write("broken.pcx", "no picture");
}

void TestSpriteFolder::opensImagesAsSprites()
{
    QString error;
    std::unique_ptr<SpriteCollection> sprites(openSprites(m_folder->path(), &error));
    QVERIFY2(sprites, qPrintable(error));
    const struct
    {
        const char* id;
        QPoint axis;
        QImage image;
    } expected[] = {
        {"7,8", {-3, 4}, shades(2)},
        {"1,1", {5, 6}, {}},
        {"20,3", {}, shades(1)},
        {"0,0", {}, shades(1).convertToFormat(QImage::Format_ARGB32)},
    };
    QCOMPARE(sprites->count(), 4u);
    for (int row = 0; row < 4; ++row) {
        QCOMPARE(sprites->sprite(row)->id().text(), QString::fromLatin1(expected[row].id));
        QCOMPARE(sprites->sprite(row)->axis(), expected[row].axis);
        QCOMPARE(sprites->sprite(row)->image().convertToFormat(QImage::Format_ARGB32),
                 expected[row].image.convertToFormat(QImage::Format_ARGB32));
    }
    QCOMPARE(sprites->palettes()->count(), 2);
    QCOMPARE(sprites->palettes()->palette(0)->id().text(), QStringLiteral("4,5"));
    QCOMPARE(sprites->loadErrors().size(), 2);
    QCOMPARE(sprites->cache()->type(), Zorv::StreamCache::MemoryStore);
    QVERIFY(qobject_cast<SpriteFolder*>(sprites.get()));
}

void TestSpriteFolder::savesAndReadsTheSame()
{
    SpriteFolder sprites;
    QVERIFY(sprites.fromFile(disk(), m_folder->path(), false));
    const QByteArray untouched = bytes("b.png");
    sprites.sprite(2)->setImage(shades(3));
    sprites.sprite(3)->duplicate();
    sprites.move(0, 3);
    sprites.removeSprite(1);
    QVERIFY2(sprites.toFile(disk(), m_folder->path(), false), qPrintable(sprites.errorString()));
    QVERIFY(!sprites.isModified());
    QCOMPARE(bytes("b.png"), untouched);
    QCOMPARE(QImage(path("0_1.png")).convertToFormat(QImage::Format_RGB32), QImage(path("c.png")));
    SpriteFolder again;
    QVERIFY(again.fromFile(disk(), m_folder->path(), false));
    sprites.palettes()->removeUnused();
    sprites.palettes()->autoOrganize();
    again.palettes()->autoOrganize();
    QCOMPARE(PlainSprites::linesOf(again), PlainSprites::linesOf(sprites));
}

void TestSpriteFolder::undoesAcrossSaving()
{
    SpriteFolder sprites;
    QVERIFY(sprites.fromFile(disk(), m_folder->path(), false));
    const QStringList before = PlainSprites::linesOf(sprites);
    sprites.sprite(2)->setImage(shades(3));
    sprites.removeSprite(0);
    QVERIFY(sprites.toFile(disk(), m_folder->path(), false));
    QVERIFY(!QFile::exists(path("b.png")));
    sprites.undo();
    sprites.undo();
    QCOMPARE(PlainSprites::linesOf(sprites), before);
    QVERIFY(sprites.toFile(disk(), m_folder->path(), false));
    SpriteFolder again;
    QVERIFY(again.fromFile(disk(), m_folder->path(), false));
    QCOMPARE(PlainSprites::linesOf(again), before);
}

/// A file that only the old folder had is somebody else's in the new one.
void TestSpriteFolder::savingElsewhereForgetsTheOldFolder()
{
    const QTemporaryDir other;
    const QString stranger = other.filePath("b.png");
    SpriteFolder sprites;
    QVERIFY(sprites.fromFile(disk(), m_folder->path(), false));
    sprites.removeSprite(0);
    QVERIFY2(sprites.toFile(disk(), other.path(), false), qPrintable(sprites.errorString()));
    QVERIFY(writeFile(stranger, "not ours"));
    QVERIFY2(sprites.toFile(disk(), other.path(), false), qPrintable(sprites.errorString()));
    QCOMPARE(readFile(stranger), QByteArray("not ours"));
    QCOMPARE(bytes("b.png").isEmpty(), false);
}

void TestSpriteFolder::leavesAloneWhatItCannotRead()
{
    SpriteFolder sprites;
    QVERIFY(sprites.fromFile(disk(), m_folder->path(), false));
    sprites.removeSprites({0, 1, 2, 3});
    QVERIFY(sprites.toFile(disk(), m_folder->path(), false));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files),
             QStringList({QStringLiteral("broken.pcx"), QStringLiteral("sprites.txt")}));
    QCOMPARE(bytes("broken.pcx"), QByteArray("no picture"));
    const QByteArray list = bytes("sprites.txt");
    QVERIFY(list.contains("\nimage 9,9 1,2 gone.png\n"));
    QVERIFY(list.contains("\nsomething else\n"));
    QVERIFY(!list.contains("b.png"));
    QVERIFY(!sprites.fromFile(disk(), path("sprites.txt"), false));
    QVERIFY(!sprites.errorString().isEmpty());
}

void TestSpriteFolder::writesAsPngWhatAFormatWouldLose()
{
    SpriteFolder sprites;
    QVERIFY(sprites.fromFile(disk(), m_folder->path(), false));
    sprites.removeSprites({0, 1, 2, 3});
    for (const char* suffix : {"pcx", "gif"}) {
        sprites.insertSprite(0, {0, 0}, {}, shades(1))->state.file =
            QStringLiteral("a.") + QString::fromLatin1(suffix);
    }
    QVERIFY2(sprites.toFile(disk(), m_folder->path(), false), qPrintable(sprites.errorString()));
    for (int row = 0; row < 2; ++row) {
        FamilySprite* sprite = sprites.sprite(row);
        QVERIFY(!sprite->state.file.endsWith(QLatin1String("png")));
        sprite->setImage(shades(4, 7));
    }
    QVERIFY2(sprites.toFile(disk(), m_folder->path(), false), qPrintable(sprites.errorString()));
    SpriteFolder again;
    QVERIFY(again.fromFile(disk(), m_folder->path(), false));
    QCOMPARE(again.count(), 2u);
    for (int row = 0; row < 2; ++row) {
        QCOMPARE(again.sprite(row)->image(), shades(4, 7));
    }
    QVERIFY(!QFile::exists(path("a.pcx")));
}

// A link in a folder from somebody else can lead to any file of the person.
void TestSpriteFolder::writesThroughNoLink()
{
    for (const char* link : {"sprites.txt", "0_1.png"}) {
        init();
        QTemporaryDir outside;
        QFile::remove(path(link));
        QVERIFY(QFile::link(outside.filePath("target"), path(link)));
        SpriteFolder sprites;
        QVERIFY(sprites.fromFile(disk(), m_folder->path(), false));
        sprites.sprite(sprites.rowCount() - 1)->duplicate();
        QVERIFY(!sprites.toFile(disk(), m_folder->path(), false));
        QVERIFY2(sprites.errorString().contains(link), qPrintable(sprites.errorString()));
        QVERIFY(QDir(outside.path()).isEmpty());
    }
}

QTEST_GUILESS_MAIN(TestSpriteFolder)
#include "tst_spritefolder.moc"
