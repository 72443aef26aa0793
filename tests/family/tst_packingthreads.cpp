#include "family/assets/indexmapping.h"
#include "family/assets/pixelstore.h"
#include "family/assets/spritefile.h"
#include "family/assets/workpool.h"
#include "support/folders.h"

#include <zorv/core/filesystemarchive.h>
#include <zorv/media/losslessimages.h>

#include <QTemporaryDir>
#include <QtTest>

using namespace Family;

namespace {

QImage picture(int width, int kind)
{
    QImage image(width, 5, kind == 4 ? QImage::Format_ARGB32 : QImage::Format_Indexed8);
    if (kind != 4) {
        image.setColorTable(tableOfColors(greyColors()));
    }
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < width; ++x) {
            image.setPixel(x, y, kind == 4 ? qRgba(x, y, 9, 40 * x) : uint(x * y + kind) % 60);
        }
    }
    return image;
}

QVector<QImage> pictures()
{
    QVector<QImage> images;
    for (int i = 0; i < 300; ++i) {
        images.append(picture(4 + i % 23, i % 6));
        if (i % 9 == 1 && images.last().colorCount() > 0) {
            images.last().setColor(i % 3, 0xff102030);
        }
    }
    images += {QImage(), QImage(LargestSprite + 1, 1, QImage::Format_Indexed8),
               images[5].convertToFormat(QImage::Format_Mono),
               images[5].convertToFormat(QImage::Format_RGB888)};
    return images;
}

QByteArray saved(SpriteFile& sprites)
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("a.sprites"));
    return sprites.toFile(*Zorv::FileSystemArchive::instance(), name, true) ? readFile(name)
                                                                            : QByteArray();
}

}  // namespace

/// What packs and unpacks pixels on several threads, under the thread sanitizer.
class TestPackingThreads : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Zorv::setLosslessImages(true); }
    void takesPreparedImages();
    void mapsIndices();
};

/// Images that are packed on other threads make the same file as those that are packed here, and
/// share their pixels in the same way.
void TestPackingThreads::takesPreparedImages()
{
    const QVector<QImage> images = pictures();
    SpriteFile here;
    SpriteFile prepared;
    std::vector<std::shared_ptr<const Zorv::PreparedImage>> ready(size_t(images.size()));
    const Zorv::ImagePreparer prepare = prepared.imagePreparer();
    WorkPool pool(4);
    pool.start(images.size(), [&](int i) { ready[size_t(i)] = prepare(images.at(i)); });
    pool.wait();
    for (int i = 0; i < images.size(); ++i) {
        here.addSprite()->setImage(images[i]);
        prepared.addSprite()->setPrepared(*ready[size_t(i)]);
    }
    here.refresh();
    prepared.refresh();
    for (int i = 0; i < images.size(); ++i) {
        for (int j = 0; j < i; ++j) {
            QCOMPARE(prepared.sprite(i)->state.pixels == prepared.sprite(j)->state.pixels,
                     here.sprite(i)->state.pixels == here.sprite(j)->state.pixels);
        }
    }
    QVERIFY(saved(prepared) == saved(here));
    prepared.undo();
    QCOMPARE(prepared.count(), 0U);
    // That of another kind of collection is taken for its image.
    here.sprite(0)->setPrepared(Zorv::PreparedImage(images[3]));
    QCOMPARE(here.sprite(0)->image(), images[3]);
}

/// The order of the threads shows nowhere.
void TestPackingThreads::mapsIndices()
{
    QByteArray expected;
    for (const int threads : {1, 4}) {
        SpriteFile file;
        MappingJob job;
        job.threads = threads;
        IndexMap exchanged;
        IndexMap halved;
        for (size_t i = 0; i < exchanged.size(); ++i) {
            exchanged[i] = quint8(i ^ 1);
            halved[i] = quint8(i / 2);
        }
        job.mappings = {{{}, exchanged}, {{}, halved}};
        file.beginChange({});
        for (int row = 0; row < 600; ++row) {  // more than one batch
            file.insertSprite(row - 1, {1, quint16(row)}, {}, picture(4 + row, row % 4));
            job.mappings[row % 2].rows.append(row);
        }
        file.endChange();
        QVector<int> broken;
        const QByteArray before = saved(file);
        job.progress = [](int, int) { return false; };  // while the next ones are under way
        QVERIFY(!mapIndices(&file, job, &broken));
        QVERIFY(saved(file) == before);
        job.progress = nullptr;
        QVERIFY(mapIndices(&file, job, &broken));
        QVERIFY(broken.isEmpty());
        expected = expected.isEmpty() ? saved(file) : expected;
        QVERIFY(saved(file) == expected);
    }
}

QTEST_GUILESS_MAIN(TestPackingThreads)
#include "tst_packingthreads.moc"
