#include "media/tools/rotateimage.h"
#include "pictures.h"

#include <QtMath>
#include <QtTest>

#include <array>
#include <cmath>
#include <limits>

using namespace Zorv;

namespace {

const ImageResizeFilter Filters[] = {ImageResizeFilter::Nearest, ImageResizeFilter::Bilinear,
                                     ImageResizeFilter::Epx, ImageResizeFilter::Hq};

/// Where the centre of a pixel of a turned image lies in the source.
QPointF sourcePoint(const QImage& source, const QImage& made, double degrees, int x, int y)
{
    const double cosine = std::cos(qDegreesToRadians(degrees));
    const double sine = std::sin(qDegreesToRadians(degrees));
    const double dx = x + 0.5 - made.width() / 2.0;
    const double dy = y + 0.5 - made.height() / 2.0;
    return {dx * cosine + dy * sine + source.width() / 2.0,
            dy * cosine - dx * sine + source.height() / 2.0};
}

QRgb pixelOr(const QImage& image, int x, int y, QRgb fill)
{
    return image.valid(x, y) ? image.pixel(x, y) : fill;
}

/// The mixture of four pixels, each part multiplied by alpha: red, green, blue, alpha.
std::array<double, 4> mixture(const QImage& image, const QPointF& point, QRgb fill)
{
    const int x = qFloor(point.x() - 0.5);
    const int y = qFloor(point.y() - 0.5);
    const double fx = point.x() - 0.5 - x;
    const double fy = point.y() - 0.5 - y;
    std::array<double, 4> sum = {};
    for (int i = 0; i < 4; ++i) {
        const QRgb pixel = pixelOr(image, x + i % 2, y + i / 2, fill);
        const double part = (i % 2 != 0 ? fx : 1 - fx) * (i / 2 != 0 ? fy : 1 - fy);
        const double a = part * qAlpha(pixel) / 255;
        sum = {sum[0] + a * qRed(pixel), sum[1] + a * qGreen(pixel), sum[2] + a * qBlue(pixel),
               sum[3] + a * 255};
    }
    return sum;
}

}  // namespace

class TestRotateImage : public QObject
{
    Q_OBJECT

private slots:
    void quarterTurnsAreExact();
    void nearestIsByCentres();
    void bilinearMixesFour();
    void thereAndBackAgain();
    void keepsForms();
    void fillsCorners();
    void refusesAndEdges();
};

void TestRotateImage::quarterTurnsAreExact()
{
    for (const QImage::Format form : Pictures::Forms) {
        for (const QSize size : {QSize(37, 21), QSize(64, 16), QSize(1, 9), QSize(130, 70)}) {
            const QImage image = Pictures::inForm(form, size, 4);
            for (const ImageResizeFilter filter : Filters) {
                const QImage right = rotateImage(image, 90, 1, filter);
                QCOMPARE(right.size(), size.transposed());
                QCOMPARE(right.format(), form);
                for (int i = 0; i < size.width() * size.height(); ++i) {
                    const int x = i % size.width();
                    const int y = i / size.width();
                    QCOMPARE(right.pixel(size.height() - 1 - y, x), image.pixel(x, y));
                }
                QCOMPARE(rotateImage(image, 180, 1, filter), image.mirrored(true, true));
                QCOMPARE(rotateImage(image, -90, 1, filter), right.mirrored(true, true));
                QCOMPARE(rotateImage(image, 630, 1, filter), right.mirrored(true, true));
                QCOMPARE(rotateImage(image, 720, 1, filter), image);
            }
        }
    }
}

void TestRotateImage::nearestIsByCentres()
{
    QRandomGenerator random(12);
    for (int round = 0; round < 30; ++round) {
        const QSize size(random.bounded(1, 60), random.bounded(1, 60));
        const QImage image = Pictures::inForm(Pictures::Forms[round % 2], size, quint32(round));
        const float degrees = float(random.bounded(7200)) / 10 - 360.25F;
        const QRgb fill = image.pixel(0, 0);
        const unsigned value = round % 2 == 0 ? unsigned(image.pixelIndex(0, 0)) : fill;
        const QImage made = rotateImage(image, degrees, value, ImageResizeFilter::Nearest);
        for (int i = 0; i < made.width() * made.height(); ++i) {
            const int x = i % made.width();
            const int y = i / made.width();
            const QPointF point = sourcePoint(image, made, double(degrees), x, y);
            const double edge = std::min(std::abs(point.x() - qRound(point.x())),
                                         std::abs(point.y() - qRound(point.y())));
            if (edge > 1e-6) {
                QCOMPARE(made.pixel(x, y),
                         pixelOr(image, qFloor(point.x()), qFloor(point.y()), fill));
            }
        }
    }
}

void TestRotateImage::bilinearMixesFour()
{
    for (const QImage::Format form : {QImage::Format_ARGB32, QImage::Format_RGB32}) {
        for (const float degrees : {1.5F, 30.0F, 107.0F, 200.0F, 359.0F}) {
            for (const QRgb fill : {qRgb(10, 250, 90), qRgba(0, 0, 0, 0), qRgba(200, 0, 9, 90)}) {
                const QImage image = Pictures::inForm(form, {29, 41}, 8);
                const QImage made = rotateImage(image, degrees, fill, ImageResizeFilter::Bilinear);
                for (int i = 0; i < made.width() * made.height(); ++i) {
                    const int x = i % made.width();
                    const int y = i / made.width();
                    const QPointF point = sourcePoint(image, made, double(degrees), x, y);
                    const std::array<double, 4> expected = mixture(image, point, fill);
                    const QRgb pixel = made.pixel(x, y);
                    const double a = qAlpha(pixel) / 255.0;
                    // Positions are taken in 256 steps a pixel.
                    QVERIFY(std::abs(qAlpha(pixel) - expected[3]) < 3);
                    QVERIFY(std::abs(qRed(pixel) * a - expected[0]) < 3);
                    QVERIFY(std::abs(qGreen(pixel) * a - expected[1]) < 3);
                    QVERIFY(std::abs(qBlue(pixel) * a - expected[2]) < 3);
                }
            }
        }
    }
}

void TestRotateImage::thereAndBackAgain()
{
    // A picture of large shapes is nearly the same again after it was turned and turned back.
    const QImage small = Pictures::indexed({6, 5}, 21);
    const QImage image = small.scaled(small.size() * 24);
    for (const ImageResizeFilter filter : Filters) {
        for (const float degrees : {10.0F, 45.0F, 77.0F, 133.0F, 290.0F}) {
            const QImage back =
                rotateImage(rotateImage(image, degrees, 0, filter), -degrees, 0, filter);
            const QPoint offset((back.width() - image.width()) / 2,
                                (back.height() - image.height()) / 2);
            int same = 0;
            for (int i = 0; i < image.width() * image.height(); ++i) {
                const QPoint at(i % image.width(), i / image.width());
                same += int(back.pixelIndex(at + offset) == image.pixelIndex(at));
            }
            QVERIFY(same > image.width() * image.height() * 85 / 100);
        }
    }
}

void TestRotateImage::keepsForms()
{
    for (const QImage::Format form : Pictures::Forms) {
        const QImage image = Pictures::inForm(form, {30, 20}, 5);
        const unsigned fill = form == QImage::Format_Indexed8 ? 2 : 0xFF102030;
        for (const ImageResizeFilter filter : Filters) {
            const QImage made = rotateImage(image, 45, fill, filter);
            // (30 + 20) / sqrt(2)
            QCOMPARE(made.size(), QSize(36, 36));
            QCOMPARE(made.format(), form);
            QCOMPARE(made.colorTable(), image.colorTable());
            for (int i = 0; form == QImage::Format_Indexed8 && i < 36 * 36; ++i) {
                QVERIFY(made.pixelIndex(i % 36, i / 36) < 16);
            }
        }
    }
}

void TestRotateImage::fillsCorners()
{
    for (const ImageResizeFilter filter : Filters) {
        const QImage opaque = Pictures::inForm(QImage::Format_RGB32, {40, 40}, 5);
        const QImage clear = rotateImage(opaque, 30, 0, filter);
        QCOMPARE(clear.format(), QImage::Format_ARGB32);
        QCOMPARE(clear.pixel(0, 0), 0U);
        QCOMPARE(qAlpha(clear.pixel(27, 27)), 255);
        const QImage filled = rotateImage(opaque, 30, 0xFF0A0B0C, filter);
        QCOMPARE(filled.pixel(54, 0), 0xFF0A0B0CU);
        QCOMPARE(rotateImage(Pictures::indexed({40, 40}, 5), 30, 9, filter).pixelIndex(0, 54), 9);
        // Colours behind the table show nothing, and mix with nothing.
        QImage bare = Pictures::indexed({40, 40}, 5);
        bare.setColorTable({});
        QVERIFY(!rotateImage(bare, 30, 200, filter).isNull());
    }
}

void TestRotateImage::refusesAndEdges()
{
    for (const ImageResizeFilter filter : Filters) {
        QVERIFY(rotateImage(QImage(), 10, 0, filter).isNull());
        const QImage dot = Pictures::indexed({1, 1}, 1);
        QVERIFY(rotateImage(dot, std::numeric_limits<float>::quiet_NaN(), 0, filter).isNull());
        QVERIFY(rotateImage(dot, std::numeric_limits<float>::infinity(), 0, filter).isNull());
        QCOMPARE(rotateImage(dot, 45, 0, filter).size(), QSize(2, 2));
        // The corners of a square of the largest size do not fit.
        const QImage line = Pictures::indexed({30000, 1}, 1);
        const QImage steep = rotateImage(line, 89.9F, 0, filter);
        QVERIFY(steep.isNull() || steep.height() == 30000);
        const QImage mono(20, 10, QImage::Format_Mono);
        QCOMPARE(rotateImage(mono, 90, 0, filter).format(), QImage::Format_Indexed8);
    }
}

QTEST_GUILESS_MAIN(TestRotateImage)
#include "tst_rotateimage.moc"
