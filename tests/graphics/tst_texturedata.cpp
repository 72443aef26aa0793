#include "graphics/glcontext.h"
#include "graphics/texture.h"
#include "support/testtable.h"

#include <QRandomGenerator>
#include <QTest>

#include <sys/mman.h>

using namespace Zorv;

/// The bytes of an upload, which need no GL.
class TestTextureData : public QObject
{
    Q_OBJECT

private slots:
    void bytes_data();
    void bytes();
    void roundsUpWithoutNpot_data();
    void roundsUpWithoutNpot();
    void wantsFourBytesAPixel_data();
    void wantsFourBytesAPixel();
    void leavesOutWhatIsTooLarge();
    void livesWithoutGl();
};

namespace {

/// With room behind each row if `padding` is not 0.
QImage noise(QSize size, QImage::Format format, int padding = 0)
{
    static QRandomGenerator random(71);
    const int bits = QImage(1, 1, format).depth();
    const int step = (size.width() * bits / 8 + 3) / 4 * 4 + padding;
    auto* const bytes = new uchar[size_t(step * size.height())];
    std::generate(bytes, bytes + step * size.height(), [] { return uchar(random.bounded(256)); });
    QImage image(
        bytes, size.width(), size.height(), step, format,
        [](void* data) { delete[] static_cast<uchar*>(data); }, bytes);
    if (format == QImage::Format_Indexed8) {
        image.setColorTable(QVector<QRgb>(256, 0));
    }
    return image;
}

}  // namespace

void TestTextureData::bytes_data()
{
    QTest::addColumn<QImage>("image");
    QTest::newRow("one pixel") << noise({1, 1}, QImage::Format_Indexed8);
    QTest::newRow("indices") << noise({7, 5}, QImage::Format_Indexed8);
    QTest::newRow("indices with long rows") << noise({7, 5}, QImage::Format_Indexed8, 12);
    QTest::newRow("colours") << noise({7, 5}, QImage::Format_ARGB32);
    QTest::newRow("colours with long rows") << noise({7, 5}, QImage::Format_ARGB32, 12);
    QTest::newRow("opaque") << noise({3, 9}, QImage::Format_RGB32);
    QTest::newRow("premultiplied") << noise({3, 9}, QImage::Format_ARGB32)
                                          .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

void TestTextureData::bytes()
{
    QFETCH(QImage, image);
    s_hasNPOT = true;
    Texture::ImageData data;
    Texture::dataFromImage(image, data);
    const bool indexed = image.format() == QImage::Format_Indexed8;
    QCOMPARE(data.indexed, indexed);
    QCOMPARE(data.size, image.size());
    QCOMPARE(data.textureSize, image.size());
    const QImage colors = image.convertToFormat(QImage::Format_ARGB32);
    QByteArray expected;
    for (int y = image.height() - 1; y >= 0; --y) {
        for (int x = 0; x < image.width(); ++x) {
            if (indexed) {
                expected += char(image.pixelIndex(x, y));
                continue;
            }
            const QRgb pixel = colors.pixel(x, y);
            expected += char(qRed(pixel));
            expected += char(qGreen(pixel));
            expected += char(qBlue(pixel));
            expected += char(qAlpha(pixel));
        }
    }
    QCOMPARE(data.bytes.toHex(), expected.toHex());
}

void TestTextureData::roundsUpWithoutNpot_data()
{
    columns<QSize, QSize>("size", "textureSize");
    QTest::newRow("larger") << QSize(100, 30) << QSize(128, 32);
    QTest::newRow("exact") << QSize(64, 1) << QSize(64, 1);
    QTest::newRow("one more") << QSize(3, 65) << QSize(4, 128);
}

void TestTextureData::roundsUpWithoutNpot()
{
    const auto [size, textureSize] = fetched<QSize, QSize>();
    s_hasNPOT = false;
    const QImage image = noise(size, QImage::Format_Indexed8);
    Texture::ImageData data;
    Texture::dataFromImage(image, data);
    QCOMPARE(data.textureSize, textureSize);
    QCOMPARE(data.bytes.size(), textureSize.width() * textureSize.height());
    for (int y = 0; y < size.height(); ++y) {
        const QByteArray row = data.bytes.mid(y * textureSize.width(), size.width());
        QCOMPARE(row, QByteArray(
                          reinterpret_cast<const char*>(image.constScanLine(size.height() - 1 - y)),
                          size.width()));
    }
}

void TestTextureData::wantsFourBytesAPixel_data()
{
    QTest::addColumn<QImage>("image");
    for (QImage::Format format : {QImage::Format_Mono, QImage::Format_RGB16, QImage::Format_RGB888,
                                  QImage::Format_Grayscale8, QImage::Format_RGBA64}) {
        QTest::addRow("format %d", format) << noise({8, 5}, format);
    }
    QTest::newRow("long rows") << noise({8, 5}, QImage::Format_RGB32, 400);
}

// Other rows are read where those of the given image would stand, as far as there are any.
void TestTextureData::wantsFourBytesAPixel()
{
    QFETCH(QImage, image);
    s_hasNPOT = true;
    Texture::ImageData data;
    Texture::dataFromImage(image, data);
    const QImage colors = image.convertToFormat(QImage::Format_ARGB32);
    QByteArray source(reinterpret_cast<const char*>(colors.constBits()), int(colors.sizeInBytes()));
    source += QByteArray(image.bytesPerLine() * image.height(), 0);
    QCOMPARE(data.bytes.size(), int(colors.sizeInBytes()));
    for (int i = 0; i < data.bytes.size(); ++i) {
        const int row = image.height() - 1 - i / colors.bytesPerLine();
        const int column = i % colors.bytesPerLine();
        const int swapped = column % 4 == 3 ? column : column / 4 * 4 + 2 - column % 4;
        QCOMPARE(data.bytes.at(i), source.at(row * image.bytesPerLine() + swapped));
    }
}

void TestTextureData::leavesOutWhatIsTooLarge()
{
    constexpr int Width = 40000;
    constexpr int Height = 30000;
    void* const pages = mmap(nullptr, size_t(Width) * Height, PROT_READ,
                             MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    QVERIFY(pages != MAP_FAILED);
    const QImage image(static_cast<const uchar*>(pages), Width, Height, Width,
                       QImage::Format_Indexed8);
    Texture::ImageData data;
    for (bool hasNpot : {true, false}) {
        s_hasNPOT = hasNpot;
        data.bytes = "of another image";
        Texture::dataFromImage(image, data);
        QCOMPARE(data.size, image.size());
        QCOMPARE(data.bytes, QByteArray());
    }
    data.bytes = "of another image";
    Texture::dataFromImage(QImage(), data);
    QCOMPARE(data.bytes, QByteArray());
    munmap(pages, size_t(Width) * Height);
}

// As on the command line.
void TestTextureData::livesWithoutGl()
{
    QVERIFY(!isContextUsable());
    Texture texture(noise({4, 4}, QImage::Format_Indexed8));
    const RGBA colors[256] = {};
    Texture palette(colors);
    QCOMPARE(texture.id, 0U);
    QCOMPARE(palette.id, 0U);
    texture.swap(palette);
    texture.reset();
    freeContext();
    QVERIFY(!isContextUsable());
}

QTEST_MAIN(TestTextureData)
#include "tst_texturedata.moc"
