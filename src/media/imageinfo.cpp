#include "media/imagefile.h"

#include "media/bitmapinfoheader.h"
#include "media/formatdepth_p.h"
#include "media/pcx.h"

#include <QDataStream>
#include <QIODevice>

namespace Zorv {

namespace {

QByteArray readBytes(QDataStream& stream, int count)
{
    QByteArray bytes(count, 0);
    bytes.truncate(qMax(0, stream.readRawData(bytes.data(), count)));
    return bytes;
}

void readBMP(QDataStream& stream, ImageInfo& info)
{
    const int FileHeader = 14;
    stream.skipRawData(FileHeader);
    BITMAPINFOHEADER header;
    stream >> header;
    info.width = quint16(qAbs(qint64(header.biWidth)));
    info.height = quint16(qAbs(qint64(header.biHeight)));
    info.format = formatOfDepth(header.biBitCount);
}

void readPNG(QDataStream& stream, ImageInfo& info)
{
    enum ColorType : quint8 { TrueColor = 2, TrueColorWithAlpha = 6 };
    const int ChunkLength = 4;

    stream.setByteOrder(QDataStream::BigEndian);
    if (readBytes(stream, 8) != QByteArray("\x89PNG\r\n\x1a\n")) {
        return;
    }
    stream.skipRawData(ChunkLength);
    if (readBytes(stream, 4) != "IHDR") {
        return;
    }
    quint32 width = 0;
    quint32 height = 0;
    quint8 depth = 0;
    quint8 type = 0;
    stream >> width >> height >> depth >> type;
    info.width = quint16(width);
    info.height = quint16(height);
    if (type == TrueColor) {
        info.format = QImage::Format_RGB32;
    } else if (type == TrueColorWithAlpha) {
        info.format = QImage::Format_ARGB32;
    }
}

void readPCX(QDataStream& stream, ImageInfo& info)
{
    QPCXHeader header;
    stream >> header;
    info.width = quint16(header.right + 1 - header.left);
    info.height = quint16(header.bottom + 1 - header.top);
    info.format = formatOfDepth(header.planes * header.bitsPerPixel);
}

void readGIF(QDataStream& stream, ImageInfo& info)
{
    if (!readBytes(stream, 6).startsWith("GIF8")) {
        return;
    }
    quint8 flags = 0;
    stream >> info.width >> info.height >> flags;
    stream.skipRawData(2);
    // The low bits give the size of the global colour table: 32 or 256 colours.
    const int size = flags & 7;
    if (size != 4 && size != 7) {
        info.format = QImage::Format_Invalid;
    }
}

}  // namespace

ImageInfo imageInfoFromFile(QIODevice* device, const char* format)
{
    static const struct
    {
        const char* format;
        void (*read)(QDataStream&, ImageInfo&);
    } readers[] = {{"BMP", readBMP}, {"PNG", readPNG}, {"PCX", readPCX}, {"GIF", readGIF}};

    ImageInfo info;
    if (!device->isReadable()) {
        return info;
    }
    for (const auto& reader : readers) {
        if (qstrcmp(format, reader.format) == 0) {
            QDataStream stream(device);
            stream.setByteOrder(QDataStream::LittleEndian);
            reader.read(stream, info);
        }
    }
    return info;
}

}  // namespace Zorv
