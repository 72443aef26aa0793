#include "image/canvas/imageforms_p.h"

#include "image/canvas/imagepalette.h"
#include "media/tools/raster_p.h"

#include <QColor>
#include <QFile>

#include <algorithm>
#include <cstring>

namespace Zorv {

namespace {

const std::size_t FoundBits = 12;

}  // namespace

PaletteColors::PaletteColors(const ImagePalette& palette) : m_palette(palette)
{
    for (int i = 0; i < 256; ++i) {
        m_colors[std::size_t(i)] = palette.color(quint8(i));
        if (m_transparent < 0 && qAlpha(m_colors[std::size_t(i)]) == 0) {
            m_transparent = i;
        }
    }
}

// A search compares the whole palette, and images repeat the same colours: so results are cached.
quint8 PaletteColors::nearest(QRgb color)
{
    if (m_found.empty()) {
        m_found.resize(std::size_t(1) << FoundBits);
    }
    Found& found = m_found[color * 0x9E3779B1U >> (32 - FoundBits)];
    if (found.index < 0 || found.color != color) {
        found = {color, m_palette.index(QColor::fromRgba(color))};
    }
    return quint8(found.index);
}

QImage::Format imageFormat(ImageCanvas::Format format)
{
    return format == ImageCanvas::RGBAFormat ? QImage::Format_ARGB32 : QImage::Format_Indexed8;
}

QImage layerImage(const QImage& image)
{
    if (image.isNull()) {
        return {};
    }
    if (!isIndexed(image)) {
        return image.convertToFormat(QImage::Format_ARGB32);
    }
    QImage result = image;
    if (result.colorCount() > 0) {
        result.setColorCount(0);
    }
    return result;
}

// Uses the constructor for writable pixels, although they are only read: with the one for constant
// pixels, setting the table would copy them.
QImage indexedView(const QImage& image, const QVector<QRgb>& table)
{
    QImage view(const_cast<uchar*>(image.constBits()), image.width(), image.height(),
                image.bytesPerLine(), QImage::Format_Indexed8);
    view.setColorTable(table);
    return view;
}

QImage toColors(const QImage& indexed, const ImagePalette& palette)
{
    QImage result(indexed.size(), QImage::Format_ARGB32);
    if (result.isNull()) {
        return result;
    }
    const PaletteColors colors(palette);
    const Raster<const quint8> from(indexed);
    const Raster<quint32> to(result);
    for (int y = 0; y < to.height; ++y) {
        const quint8* row = from.row(y);
        std::transform(row, row + to.width, to.row(y), [&](quint8 index) { return colors[index]; });
    }
    return result;
}

QImage toIndices(const QImage& colors, const ImagePalette& palette)
{
    QImage result(colors.size(), QImage::Format_Indexed8);
    if (result.isNull()) {
        return result;
    }
    PaletteColors entries(palette);
    const Raster<const quint32> from(colors);
    const Raster<quint8> to(result);
    for (int y = 0; y < to.height; ++y) {
        const quint32* row = from.row(y);
        std::transform(row, row + to.width, to.row(y),
                       [&entries](QRgb color) { return entries.nearest(color); });
    }
    return result;
}

QImage placed(const QImage& image, const QSize& size, const QPoint& position, quint32 fill)
{
    QImage result(size, image.format());
    if (result.isNull()) {
        return result;
    }
    const QRect target = QRect(position, image.size()) & result.rect();
    if (target != result.rect()) {
        result.fill(fill);
    }
    const int pixelBytes = image.depth() / 8;
    for (int y = target.top(); y <= target.bottom(); ++y) {
        std::memcpy(result.scanLine(y) + target.left() * pixelBytes,
                    image.constScanLine(y - position.y()) +
                        (target.left() - position.x()) * pixelBytes,
                    std::size_t(target.width() * pixelBytes));
    }
    return result;
}

QImage emptyImage(const QSize& size, QImage::Format format)
{
    QImage image(size, format);
    image.fill(0);
    return image;
}

bool samePixels(const QImage& x, const QImage& y)
{
    if (x.format() != y.format() || x.size() != y.size()) {
        return false;
    }
    if (x.constBits() == y.constBits()) {
        return true;
    }
    const std::size_t length = std::size_t(x.width() * (x.depth() / 8));
    for (int row = 0; row < x.height(); ++row) {
        if (std::memcmp(x.constScanLine(row), y.constScanLine(row), length) != 0) {
            return false;
        }
    }
    return true;
}

// An allocation succeeds even without memory behind it, and the process is killed when it uses it.
// So the available memory is looked up first.
bool isMemoryFor(qint64 bytes)
{
    const qint64 always = qint64(64) << 20;
    if (bytes <= always) {
        return true;
    }
    QFile file(QStringLiteral("/proc/meminfo"));
    if (!file.open(QIODevice::ReadOnly)) {
        return true;
    }
    const QByteArray text = file.readAll();
    const QByteArray name = QByteArrayLiteral("MemAvailable:");
    const int at = text.indexOf(name);
    const int end = text.indexOf(" kB", at);
    if (at < 0 || end < 0) {
        return true;
    }
    const qint64 kilobytes =
        text.mid(at + name.size(), end - at - name.size()).trimmed().toLongLong();
    return bytes / 1024 < kilobytes / 2;
}

}  // namespace Zorv
