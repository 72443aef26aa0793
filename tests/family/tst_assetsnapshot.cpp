#include "plainsprites.h"

#include "family/assets/assetsnapshot.h"
#include "family/assets/newsprites.h"
#include "family/assets/soundfile.h"
#include "family/assets/spritefile.h"
#include "family/shades.h"
#include "support/folders.h"
#include "support/testinterface.h"
#include "support/testsounds.h"
#include "support/testtable.h"

#include <zorv/core/filesystemarchive.h>
#include <zorv/media/losslessimages.h>

#include <QBuffer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <thread>

using namespace Family;

namespace {

Zorv::SoundSample noise(int kind)
{
    return soundOf(QByteArray(400 * (kind + 1), char(kind)));
}

QStringList linesOf(const SpriteCollection& sprites)
{
    return PlainSprites::linesOf(sprites);
}

QStringList linesOf(const SoundFile& sounds)
{
    QStringList lines;
    for (const auto& sound : sounds.items()) {
        lines += sound->id().text() + QLatin1Char(' ') + sound->sampleData().toHex();
    }
    return lines;
}

void change(SpriteCollection& sprites)
{
    sprites.sprite(0)->duplicate();
    sprites.sprite(1)->setImage(shades(7));
    sprites.removeSprite(2);
    sprites.move(0, 2);
    const Zorv::RGBA colors[256] = {{1, 2, 3, 255}};
    sprites.sprite(0)->palette()->setColors(colors, Zorv::Palette::KeepPixels);
    sprites.palettes()->remaps()->add({1, 1}, {9, 9});
}

void change(SoundFile& sounds)
{
    sounds.add(1, QStringLiteral("7,7"), noise(8));
    sounds.sound(0)->duplicate();
    sounds.remove(2);
    sounds.move(0, 1);
}

bool restore(SpriteCollection& sprites, QIODevice* device, const QStringList& images)
{
    QString error;
    return sprites.restore(device, images, &error);
}

bool restore(SoundFile& sounds, QIODevice* device, const QStringList&)
{
    QString error;
    return sounds.restore(device, &error);
}

/// Unsaved work in one object is taken, goes on changing, and is brought back into another one.
template <class Assets>
void bringBack(Assets& old, Assets& fresh, const QString& path)
{
    QVERIFY(old.fromFile(disk(), path, false) && old.loadErrors().isEmpty());
    const QStringList saved = linesOf(old);
    QSignalSpy spy(&old, &Assets::modificationChanged);
    change(old);
    QCOMPARE(spy.size(), 1);
    const QStringList unsaved = linesOf(old);
    const auto snapshot = old.snapshot();
    QVERIFY(!snapshot->isWhole());
    change(old);
    old.remove(0);
    snapshot->gather(-1);
    QVERIFY(snapshot->isWhole());
    const auto late = old.snapshot();
    QVERIFY(old.fromFile(disk(), path, false));
    QVERIFY(late->isCanceled() && !snapshot->isCanceled());
    QCOMPARE(spy.size(), 2);

    QBuffer buffer;
    buffer.open(QIODevice::ReadWrite);
    bool isWritten = false;
    std::thread writer([&] { isWritten = snapshot->write(&buffer); });
    writer.join();
    QVERIFY(isWritten);

    QVERIFY(fresh.fromFile(disk(), path, false));
    buffer.seek(0);
    QVERIFY(restore(fresh, &buffer, snapshot->images));
    QCOMPARE(linesOf(fresh), unsaved);
    QVERIFY(fresh.isModified());
    fresh.undo();
    QCOMPARE(linesOf(fresh), saved);
    QVERIFY(!fresh.isModified() && !fresh.steps().canUndo());
    QVERIFY2(fresh.toFile(disk(), path, false), qPrintable(fresh.errorString()));
    fresh.redo();
    QCOMPARE(linesOf(fresh), unsaved);
    QVERIFY2(fresh.toFile(disk(), path, false), qPrintable(fresh.errorString()));
    QVERIFY(old.fromFile(disk(), path, false));
    QCOMPARE(old.count(), fresh.count());
    QBuffer nothing;
    nothing.open(QIODevice::ReadOnly);
    QVERIFY(!restore(fresh, &nothing, {}));
    QCOMPARE(linesOf(fresh), unsaved);
}

}  // namespace

/// What is unsaved in a collection, taken by another thread and brought back.
class TestAssetSnapshot : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Zorv::setLosslessImages(true); }
    void comesBack_data();
    void comesBack();
};

void TestAssetSnapshot::comesBack_data()
{
    columns<QString, int>("kind", "cacheType");
    for (const char* kind : {"sprites", "folder", "sounds"}) {
        QTest::addRow("%s in memory", kind) << kind << 1;
        QTest::addRow("%s in a temporary file", kind) << kind << 2;
    }
}

void TestAssetSnapshot::comesBack()
{
    const auto [kind, cacheType] = fetched<QString, int>();
    TestInterface interface;
    interface.options.insert(QStringLiteral("cache_type"), cacheType);
    QTemporaryDir folder;
    if (kind == QLatin1String("sounds")) {
        SoundFile sounds;
        for (int i = 0; i < 4; ++i) {
            sounds.add(i, {}, noise(i));
        }
        const QString path = folder.filePath(QStringLiteral("a.sounds"));
        QVERIFY(sounds.toFile(disk(), path, false));
        SoundFile fresh;
        bringBack(sounds, fresh, path);
        return;
    }
    QString path = folder.filePath(QStringLiteral("a.sprites"));
    if (kind == QLatin1String("folder")) {
        path = folder.path();
        const QByteArray gif =
            QByteArray::fromBase64("R0lGODdhAgACAIAAAAAAAP///ywAAAAAAgACAAACA0QCBQA7");
        QVERIFY(writeFile(folder.filePath(QStringLiteral("3_3.gif")), gif));
    }
    for (int i = 0; i < 4 && kind == QLatin1String("folder"); ++i) {
        QVERIFY(shades(i).save(folder.filePath(QStringLiteral("2_%1.png").arg(i))));
    }
    if (kind == QLatin1String("sprites")) {
        SpriteFile sprites;
        for (int i = 0; i < 5; ++i) {
            sprites.insertSprite(i, {2, quint16(i)}, {i, 1}, shades(i));
        }
        QVERIFY(sprites.toFile(disk(), path, false));
    }
    std::unique_ptr<SpriteCollection> old(newSprites(path));
    std::unique_ptr<SpriteCollection> fresh(newSprites(path));
    bringBack(*old, *fresh, path);
}

QTEST_MAIN(TestAssetSnapshot)
#include "tst_assetsnapshot.moc"
