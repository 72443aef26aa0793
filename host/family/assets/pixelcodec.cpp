#include "family/assets/pixelcodec.h"

#include <zorv/media/imagefile.h>
#include <zorv/media/lz5.h>
#include <zorv/media/pcx.h>
#include <zorv/media/png.h>
#include <zorv/media/rle.h>

#include <QBuffer>
#include <QtEndian>
#include <algorithm>
#include <cstring>

namespace Family {

namespace {

constexpr int Lz5Colors = 32;

const struct
{
    PixelCodec codec;
    const char* name;
    int mostPixels;  // that one byte of a stream can encode
} codecs[] = {
    {PixelCodec::Lz5, "LZ5", 264}, {PixelCodec::Rle8, "RLE8", 63}, {PixelCodec::Png, "PNG", 8256},
    {PixelCodec::Pcx, "PCX", 63},  {PixelCodec::Gif, "GIF", 4096},
};

bool canHold(const PixelFormat& format, qint64 streamSize)
{
    const QSize size = format.size;
    if (size.width() < 1 || size.height() < 1 || size.width() > LargestSprite ||
        size.height() > LargestSprite || (format.bits != 8 && format.bits != 32)) {
        return false;
    }
    const auto* codec = std::find_if(std::begin(codecs), std::end(codecs),
                                     [&](const auto& row) { return row.codec == format.codec; });
    return codec != std::end(codecs) &&
           qint64(size.width()) * size.height() <= streamSize * codec->mostPixels;
}

// A PNG stores its size in its first chunk, 32 bits each.
QSize declaredPngSize(const QByteArray& file)
{
    constexpr int WidthAt = 16;
    constexpr int HeightAt = 20;
    if (file.size() < HeightAt + 4) {
        return {};
    }
    return {int(qFromBigEndian<quint32>(file.constData() + WidthAt) & 0x7fffffff),
            int(qFromBigEndian<quint32>(file.constData() + HeightAt) & 0x7fffffff)};
}

bool unpackInPlace(PixelCodec codec, QImage& image, QBuffer* buffer)
{
    return codec == PixelCodec::Lz5 ? Zorv::loadLZ5(image, buffer) : Zorv::loadRLE8(image, buffer);
}

bool isOpaque(const QImage& image)
{
    for (int y = 0; y < image.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        if (!std::all_of(row, row + image.width(), [](QRgb c) { return qAlpha(c) == 255; })) {
            return false;
        }
    }
    return true;
}

// An image that shares the bytes of the rows.
QImage sharedImage(const PixelFormat& format, const QByteArray& rows, QImage::Format imageFormat)
{
    return {reinterpret_cast<const uchar*>(rows.constData()), format.size.width(),
            format.size.height(), format.size.width() * (format.bits / 8), imageFormat};
}

bool packInto(const PixelFormat& format, const QByteArray& rows, QBuffer* buffer)
{
    if (format.bits == 32) {
        const QImage image = sharedImage(format, rows, QImage::Format_ARGB32);
        return format.codec == PixelCodec::Png &&
               Zorv::savePNG(isOpaque(image) ? sharedImage(format, rows, QImage::Format_RGB32)
                                             : image,
                             buffer);
    }
    const QImage image = sharedImage(format, rows, QImage::Format_Indexed8);
    switch (format.codec) {
    case PixelCodec::Lz5:
        return std::all_of(rows.begin(), rows.end(),
                           [](char pixel) { return uchar(pixel) < Lz5Colors; }) &&
               Zorv::saveLZ5(image, buffer, true);
    case PixelCodec::Rle8:
        return Zorv::saveRLE8(image, buffer);
    case PixelCodec::Pcx:
        return Zorv::savePCX(image, buffer);
    case PixelCodec::Png:
        // Saved as shades of grey, the indices need no colour table.
        return Zorv::savePNG(sharedImage(format, rows, QImage::Format_Grayscale8), buffer);
    default:
        return false;
    }
}

}  // namespace

QString codecName(PixelCodec codec)
{
    for (const auto& row : codecs) {
        if (row.codec == codec) {
            return QString::fromLatin1(row.name);
        }
    }
    return {};
}

PixelCodec codecByName(const QString& name)
{
    for (const auto& row : codecs) {
        if (name.compare(QLatin1String(row.name), Qt::CaseInsensitive) == 0) {
            return row.codec;
        }
    }
    return PixelCodec::None;
}

QImage readImageFile(PixelCodec codec, const QByteArray& file)
{
    QBuffer buffer;
    buffer.setData(file);
    buffer.open(QIODevice::ReadOnly);
    QImage image;
    if (codec == PixelCodec::Png) {
        if (canHold({declaredPngSize(file), 8, codec}, file.size())) {
            Zorv::loadPNG(image, &buffer);
        }
    } else if (codec == PixelCodec::Gif) {
        Zorv::loadImage(&buffer, "GIF", image);
    } else if (codec != PixelCodec::Pcx || !Zorv::loadPCX(image, &buffer)) {
        return {};
    }
    image = normalizedImage(image);
    return canHold({image.size(), image.depth(), codec}, file.size()) ? image : QImage();
}

QByteArray unpackPixels(const PixelFormat& format, const QByteArray& stream)
{
    if (!canHold(format, stream.size())) {
        return {};
    }
    if (format.codec != PixelCodec::Lz5 && format.codec != PixelCodec::Rle8) {
        if (format.codec == PixelCodec::Png && declaredPngSize(stream) != format.size) {
            return {};
        }
        const QImage image = readImageFile(format.codec, stream);
        const bool fits = image.size() == format.size && image.depth() == format.bits;
        return fits ? rowsOfImage(image) : QByteArray();
    }
    if (format.bits != 8) {
        return {};
    }
    QBuffer buffer;
    buffer.setData(stream);
    buffer.open(QIODevice::ReadOnly);
    QByteArray rows(int(format.byteCount()), Qt::Uninitialized);
    if (format.codec == PixelCodec::Rle8) {
        rows.fill(0);  // a stream that is too short leaves the last pixels at 0
    }
    QImage image(reinterpret_cast<uchar*>(rows.data()), format.size.width(), format.size.height(),
                 format.size.width(), QImage::Format_Indexed8);
    return unpackInPlace(format.codec, image, &buffer) ? rows : QByteArray();
}

QByteArray packPixels(const PixelFormat& format, const QByteArray& rows)
{
    QBuffer buffer;
    buffer.open(QIODevice::ReadWrite);
    const bool done = rows.size() == format.byteCount() && packInto(format, rows, &buffer);
    return done ? buffer.data() : QByteArray();
}

PixelCodec smallestCodec(const PixelFormat& format, const QByteArray& rows, QByteArray* stream)
{
    PixelCodec best = PixelCodec::None;
    // PCX is RLE8 plus a header and a colour table, so it is never the smallest.
    for (const PixelCodec codec : {PixelCodec::Lz5, PixelCodec::Rle8, PixelCodec::Png}) {
        const QByteArray packed = packPixels({format.size, format.bits, codec}, rows);
        if (!packed.isEmpty() && (best == PixelCodec::None || packed.size() < stream->size())) {
            best = codec;
            *stream = packed;
        }
    }
    return best;
}

QImage normalizedImage(const QImage& image)
{
    switch (image.format()) {
    case QImage::Format_Invalid:
    case QImage::Format_Indexed8:
    case QImage::Format_ARGB32:
        return image;
    case QImage::Format_Mono:
    case QImage::Format_MonoLSB:
    case QImage::Format_Grayscale8:
        return image.convertToFormat(QImage::Format_Indexed8);
    default:
        return image.convertToFormat(QImage::Format_ARGB32);
    }
}

QImage imageOfRows(const PixelFormat& format, const QByteArray& rows, const QVector<QRgb>& colors)
{
    if (rows.size() != format.byteCount() || rows.isEmpty()) {
        return {};
    }
    QImage image(format.size, format.bits == 32 ? QImage::Format_ARGB32 : QImage::Format_Indexed8);
    if (image.isNull()) {
        return {};
    }
    if (format.bits == 8) {
        image.setColorTable(colors);
    }
    const int length = format.size.width() * (format.bits / 8);
    for (int y = 0; y < format.size.height(); ++y) {
        std::memcpy(image.scanLine(y), rows.constData() + qint64(y) * length, size_t(length));
    }
    return image;
}

QByteArray rowsOfImage(const QImage& image)
{
    const int length = image.width() * (image.depth() / 8);
    QByteArray rows(length * image.height(), Qt::Uninitialized);
    for (int y = 0; y < image.height(); ++y) {
        std::memcpy(rows.data() + qint64(y) * length, image.constScanLine(y), size_t(length));
    }
    return rows;
}

}  // namespace Family
