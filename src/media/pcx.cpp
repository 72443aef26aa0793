#include "media/pcx.h"

#include "media/bytesink_p.h"
#include "media/devices_p.h"
#include "media/formatdepth_p.h"
#include "media/runpairs_p.h"

#include <QDataStream>
#include <QImage>

#include <cstring>
#include <vector>

namespace Zorv {

namespace {

constexpr int PaletteMarker = 12;
constexpr int PaletteBytes = 256 * 3;

/// Damaged pictures up to this many bytes are shown as far as they go. The data of larger ones must
/// be able to hold them.
constexpr qint64 AlwaysTried = 16 << 20;

/// Whether `bytes` can hold the picture: two bytes hold at most 63 values.
bool canHold(qint64 bytes, const QPCXHeader& header, QSize size, QImage::Format format)
{
    const qint64 area = qint64(size.width()) * size.height();
    if (area * (format == QImage::Format_Indexed8 ? 1 : 4) <= AlwaysTried) {
        return true;
    }
    const qint64 line = qMax(size.width(), int(header.bytesPerLine));
    return line * size.height() * header.planes <= (bytes / 2 + 1) * 63;
}

/// Gives the image its size and format, and clears it.
bool shape(QImage& image, const QPCXHeader& header, QImage::Format format, qint64 bytes)
{
    const QSize size(header.right + 1 - header.left, header.bottom + 1 - header.top);
    if (size.isEmpty() || header.bytesPerLine == 0) {
        image = QImage();
    } else if (image.size() != size || image.format() != format) {
        image = canHold(bytes, header, size, format) ? QImage(size, format) : QImage();
    }
    if (image.isNull()) {
        return false;
    }
    std::memset(image.bits(), 0, size_t(image.sizeInBytes()));
    image.setColorTable({});
    return true;
}

/// The place of a byte within a line: planes are ordered red, green, blue, but pixels are blue,
/// green, red.
constexpr int swapped(int offset, bool colored)
{
    return colored ? offset ^ (~offset & 1) << 1 : offset;
}

void placePlane(QImage& image, int y, int plane, int step, const uchar* values, int length)
{
    const bool colored = image.format() != QImage::Format_Indexed8;
    const int inLine = (image.width() * image.depth() / 8 - plane + step - 1) / step;
    const int count = qMin(inLine, qMin(image.width(), length));
    uchar* line = image.bits() + qint64(y) * image.bytesPerLine();
    for (int x = 0; x < count; ++x) {
        line[swapped(x * step + plane, colored)] = values[x];
    }
}

bool readPlanes(QImage& image, const QPCXHeader& header, QIODevice* device)
{
    const int length = header.bytesPerLine;
    const int step = header.planes == 1 ? 1 : 4;
    std::vector<uchar> values(size_t(length) + RunPairReader<RunMarker::Pcx>::Overshoot);
    ByteSource source(device);
    RunPairReader<RunMarker::Pcx> reader(source);
    for (int y = 0; y < image.height(); ++y) {
        for (int plane = 0; plane < header.planes; ++plane) {
            const int count = int(reader.read(values.data(), length));
            placePlane(image, y, plane, step, values.data(), count);
            if (count < length) {
                return false;
            }
        }
    }
    return !source.endedInside();
}

// If anything lies between pixels and palette, this skips to the colours rather than to the marker
// before them. So a palette is found only if it directly follows the pixels.
void readPalette(QImage& image, QDataStream& stream)
{
    QIODevice* device = stream.device();
    const qint64 left = device->bytesAvailable();
    if (left > PaletteBytes + 1) {
        device->skip(left - PaletteBytes);
    }
    quint8 marker = 0;
    if (stream.atEnd() || !(stream >> marker, marker == PaletteMarker)) {
        return;
    }
    QVector<QRgb> colors(256);
    for (QRgb& color : colors) {
        quint8 red = 0, green = 0, blue = 0;
        stream >> red >> green >> blue;
        color = qRgb(red, green, blue);
    }
    image.setColorTable(colors);
}

QPCXHeader headerOf(const QImage& image)
{
    QPCXHeader header;
    header.right = quint16(image.width() - 1);
    header.bottom = quint16(image.height() - 1);
    header.planes = quint8(formatDepth(image.format()) / 8);
    header.bytesPerLine = quint16(image.width());
    return header;
}

/// Extracts one plane from a line with four bytes per pixel.
void takePlane(const uchar* line, int plane, uchar* values, int width)
{
    for (int x = 0; x < width; ++x) {
        values[x] = line[4 * x + plane];
    }
}

void writePlanes(const QImage& image, int planes, ByteSink& sink)
{
    const int width = image.width();
    std::vector<uchar> values(size_t(width) + RunPairReadAhead);
    for (int y = 0; y < image.height(); ++y) {
        const uchar* line = image.constScanLine(y);
        for (int plane = 0; plane < planes; ++plane) {
            if (planes == 1) {
                std::memcpy(values.data(), line, size_t(width));
            } else {
                takePlane(line, swapped(plane, true), values.data(), width);
            }
            writeRunPairs<RunMarker::Pcx>(values.data(), width, sink);
        }
    }
}

void writePalette(const QImage& image, ByteSink& sink)
{
    QVector<QRgb> colors = image.colorTable();
    colors.resize(256);
    uchar* out = sink.room(1 + PaletteBytes);
    *out++ = PaletteMarker;
    for (const QRgb color : qAsConst(colors)) {
        *out++ = uchar(qRed(color));
        *out++ = uchar(qGreen(color));
        *out++ = uchar(qBlue(color));
    }
    sink.take(out);
}

}  // namespace

QDataStream& operator>>(QDataStream& stream, QPCXHeader& header)
{
    stream >> header.manufacturer >> header.version >> header.encoding >> header.bitsPerPixel;
    stream >> header.left >> header.top >> header.right >> header.bottom;
    stream >> header.horizontalResolution >> header.verticalResolution;
    for (quint8& byte : header.colorMap) {
        stream >> byte;
    }
    stream >> header.reserved >> header.planes >> header.bytesPerLine >> header.paletteType;
    for (quint8& byte : header.filler) {
        stream >> byte;
    }
    return stream;
}

QDataStream& operator<<(QDataStream& stream, const QPCXHeader& header)
{
    stream << header.manufacturer << header.version << header.encoding << header.bitsPerPixel;
    stream << header.left << header.top << header.right << header.bottom;
    stream << header.horizontalResolution << header.verticalResolution;
    for (const quint8 byte : header.colorMap) {
        stream << byte;
    }
    stream << header.reserved << header.planes << header.bytesPerLine << header.paletteType;
    for (const quint8 byte : header.filler) {
        stream << byte;
    }
    return stream;
}

bool loadPCX(QImage& image, QIODevice* device)
{
    if (!openToRead(device)) {
        return false;
    }
    QDataStream stream(device);
    stream.setByteOrder(QDataStream::LittleEndian);
    QPCXHeader header;
    stream >> header;
    const QImage::Format format = formatOfDepth(header.planes * header.bitsPerPixel);
    if (format == QImage::Format_Invalid || header.manufacturer != 10 || header.version != 5 ||
        !shape(image, header, format, device->bytesAvailable()) ||
        !readPlanes(image, header, device)) {
        return false;
    }
    if (header.planes * header.bitsPerPixel == 8) {
        readPalette(image, stream);
    }
    return stream.status() == QDataStream::Ok;
}

bool savePCX(const QImage& image, QIODevice* device)
{
    const QPCXHeader header = headerOf(image);
    if (!openToWrite(device) || header.planes == 0 || image.width() > 0xFFFF ||
        image.height() > 0xFFFF) {
        return false;
    }
    QDataStream stream(device);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << header;
    ByteSink sink(device);
    writePlanes(image, header.planes, sink);
    if (header.planes == 1) {
        writePalette(image, sink);
    }
    return sink.finish() && stream.status() == QDataStream::Ok;
}

}  // namespace Zorv
