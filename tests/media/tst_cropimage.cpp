#include "media/tools/cropimage.h"
#include "pictures.h"

#include <QtTest>

using namespace Zorv;

namespace {

/// By looking at all pixels.
QRect slowRect(const QImage& image, int background)
{
    QRect rect;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const bool indexed = image.format() == QImage::Format_Indexed8;
            const int index = indexed ? image.pixelIndex(x, y) : 0;
            const bool background0 = indexed && index == background;
            const bool behind = indexed && index >= image.colorCount();
            if (!background0 && (behind || qAlpha(image.pixel(x, y)) != 0)) {
                rect |= QRect(x, y, 1, 1);
            }
        }
    }
    return rect;
}

}  // namespace

class TestCropImage : public QObject
{
    Q_OBJECT

private slots:
    void findsWhatShows();
    void cutsToIt();
    void nothingShows();
};

void TestCropImage::findsWhatShows()
{
    QRandomGenerator random(31);
    for (int round = 0; round < 300; ++round) {
        QImage image(random.bounded(1, 20), random.bounded(1, 20), QImage::Format_Indexed8);
        image.setColorTable({0xFF000000, 0, 0xFF102030, 0x01000000});
        image.fill(round % 2);
        for (int dots = random.bounded(4); dots > 0; --dots) {
            image.setPixel(random.bounded(image.width()), random.bounded(image.height()),
                           random.bounded(4));
        }
        for (const int background : {-1, 0, 2}) {
            QCOMPARE(cropImageRect(image, background), slowRect(image, background));
        }
        const QImage clear = image.convertToFormat(QImage::Format_ARGB32);
        QCOMPARE(cropImageRect(clear), slowRect(clear, 0));
        QCOMPARE(cropImageRect(clear.convertToFormat(QImage::Format_RGB32)), image.rect());
        QImage bare = image;
        bare.setColorTable({});
        QCOMPARE(cropImageRect(bare, 1), slowRect(bare, 1));
    }
}

void TestCropImage::cutsToIt()
{
    for (const QImage::Format form : Pictures::Forms) {
        const QImage content = Pictures::inForm(form, {9, 6}, 3);
        QImage image(30, 20, form);
        image.setColorTable(content.colorTable());
        image.fill(0);
        for (int i = 0; i < 9 * 6; ++i) {
            const QPoint at(i % 9, i / 9);
            if (form == QImage::Format_Indexed8) {
                image.setPixel(at + QPoint(7, 11), std::max(content.pixelIndex(at), 1));
            } else {
                image.setPixel(at + QPoint(7, 11), content.pixel(at) | 0xFF000000U);
            }
        }
        const QImage before = image;
        QPoint offset(-1, -1);
        cropImage(image, &offset);
        const QRect expected = form == QImage::Format_RGB32 ? before.rect() : QRect(7, 11, 9, 6);
        QCOMPARE(offset, expected.topLeft());
        QCOMPARE(image, before.copy(expected));
    }
}

void TestCropImage::nothingShows()
{
    for (const QImage::Format form : {QImage::Format_Indexed8, QImage::Format_ARGB32}) {
        QImage image(8, 5, form);
        image.setColorTable({0xFF112233});
        image.fill(0);
        QPoint offset(3, 3);
        QCOMPARE(cropImageRect(image), QRect());
        cropImage(image, &offset);
        QCOMPARE(image.size(), QSize(1, 1));
        QCOMPARE(offset, QPoint());
    }
    QImage null;
    cropImage(null);
    QVERIFY(null.isNull());
    QCOMPARE(cropImageRect(null), QRect());
}

QTEST_GUILESS_MAIN(TestCropImage)
#include "tst_cropimage.moc"
