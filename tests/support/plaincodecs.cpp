#include "support/plaincodecs.h"

#include "media/pcx.h"

#include <QDataStream>
#include <QImage>

using Zorv::QPack;

namespace Plain {

int readLz5(Bytes& in, uchar* pixels, int total)
{
    int at = 0, counter = 0, gathered = 0;
    while (at < total && !in.atEnd()) {
        const int control = in.next();
        for (int bit = 0; bit < 8 && at < total && !in.atEnd(); ++bit) {
            const int head = in.next();
            if (!(control >> bit & 1)) {
                int length = head >> 5;
                if (length == 0) {
                    length = in.next() + 8;
                }
                for (; length > 0 && at < total; --length) {
                    pixels[at++] = head & 31;
                }
                continue;
            }
            int length = head & 63, distance = 0;
            if (length == 0) {
                distance = (head >> 6) * 256 + in.next() + 1;
                length = in.next() + 3;
            } else if (counter < 3) {
                gathered |= (head >> 6) << (6 - 2 * counter);
                distance = in.next() + 1;
                ++length;
                ++counter;
            } else {
                distance = (gathered | head >> 6) + 1;
                ++length;
                counter = gathered = 0;
            }
            for (; length > 0 && at < total; --length, ++at) {
                pixels[at] = pixels[at - distance];
            }
        }
    }
    return at;
}

int readRle5(Bytes& in, uchar* pixels, int total)
{
    int at = 0;
    const auto store = [&](int pixel, int length) {
        for (; length > 0 && at < total; --length) {
            pixels[at++] = uchar(pixel);
        }
    };
    while (at < total && !in.atEnd()) {
        const int run = in.next() + 1;
        const int head = in.next();
        store(head & 128 ? in.next() & 31 : 0, run);
        for (int i = 0; i < (head & 31); ++i) {
            const int byte = in.next();
            store(byte & 31, (byte >> 5) + 1);
        }
    }
    return at;
}

int readRle8(Bytes& in, uchar* pixels, int total)
{
    int at = 0;
    while (at < total && !in.atEnd()) {
        const int byte = in.next();
        if (byte >> 6 != 1) {
            pixels[at++] = uchar(byte);
            continue;
        }
        const int value = in.next();
        for (int count = byte & 63; count > 0 && at < total; --count) {
            pixels[at++] = uchar(value);
        }
    }
    return at;
}

QPack lzFind(const uchar* pixels, int position, int total)
{
    QPack best = {1, 0, 0, 0};
    int bestLength = 1;
    const uchar* here = pixels + position;
    for (int distance = 2; distance <= qMin(position, 1024); ++distance) {
        int length = 0, changes = 0, run = 0;
        bool longRun = false;
        while (position + length < total && length < 258 &&
               here[length] == here[length - distance]) {
            if (length > 0 && here[length] != here[length - 1]) {
                ++changes;
                run = 0;
            } else {
                ++run;
            }
            longRun = longRun || run > 7;
            ++length;
        }
        if (length <= bestLength || changes == 0) {
            continue;
        }
        const bool isShort = distance <= 256 && length <= 64;
        if (isShort ? !(changes == 1 && here[length] == here[length - 1])
                    : (changes == 2 && longRun) || (length >= 4 && changes >= 3)) {
            best = {1, isShort, quint16(distance), qint16(length)};
            bestLength = length;
        }
    }
    return best;
}

static QVector<QPack> cut(const uchar* pixels, int total, bool useLz)
{
    QVector<QPack> packs;
    for (int i = 0; i < total;) {
        QPack match = i > 0 && useLz ? lzFind(pixels, i, total) : QPack{1, 0, 0, 0};
        if (match.length > 0) {
            packs += match;
            i += match.length;
            continue;
        }
        int length = 1;
        const auto extend = [&](int most) {
            while (length < most && i + length < total && pixels[i + length] == pixels[i]) {
                ++length;
            }
        };
        extend(7);
        if (length == 7 && useLz) {
            match = lzFind(pixels, i + 7, total);
        }
        if (match.length == 0) {
            extend(263);
        }
        packs += {0, length < 8, pixels[i], qint16(length)};
        if (match.length > 0) {
            packs += match;
        }
        i += length + match.length;
    }
    return packs;
}

/// Takes one from the values of a series of short copies, and spreads the last one's distance.
static void shareDistance(QVector<QPack>& packs, int first)
{
    QVector<QPack*> series;
    for (int i = first; i < packs.size() && series.size() < 4; ++i) {
        if (packs[i].isLz && packs[i].isShort) {
            series += &packs[i];
            --packs[i].length;
            --packs[i].value;
        }
    }
    for (int i = 0; series.size() == 4 && i < 4; ++i) {
        series[i]->length |= qint16((series[3]->value << 2 * i) & 0xC0);
    }
}

QByteArray writeLz5(const QByteArray& bytes, bool useLz)
{
    const auto* pixels = reinterpret_cast<const uchar*>(bytes.constData());
    QVector<QPack> packs = cut(pixels, bytes.size(), useLz);
    QByteArray out;
    int counter = 0;
    for (int i = 0; i < packs.size(); ++i) {
        if (i % 8 == 0) {
            int control = 0;
            for (int bit = 0; bit < 8 && i + bit < packs.size(); ++bit) {
                control |= packs[i + bit].isLz << bit;
            }
            out += char(control);
        }
        if (packs[i].isLz && packs[i].isShort && counter == 0) {
            shareDistance(packs, i);
        }
        const QPack& pack = packs[i];
        if (!pack.isLz && pack.isShort) {
            out += char(pack.length << 5 | (pack.value & 31));
        } else if (!pack.isLz) {
            out += char(pack.value & 31);
            out += char(pack.length - 8);
        } else if (!pack.isShort) {
            out += char((pack.value - 1) >> 2 & 192);
            out += char(pack.value - 1);
            out += char(pack.length - 3);
        } else {
            out += char(pack.length);
            if (++counter < 4) {
                out += char(pack.value);
            } else {
                counter = 0;
            }
        }
    }
    return out;
}

QByteArray writeRle8(const QByteArray& bytes)
{
    QByteArray coded(2 * bytes.size(), 0);
    const char* pixels = bytes.constData();
    char* out = coded.data();
    for (int i = 0, total = bytes.size(); i < total;) {
        int count = 1;
        while (count < 63 && i + count < total && pixels[i + count] == pixels[i]) {
            ++count;
        }
        if (count > 1 || (pixels[i] & 0xC0) == 0x40) {
            *out++ = char(64 + count);
        }
        *out++ = pixels[i];
        i += count;
    }
    coded.truncate(int(out - coded.constData()));
    return coded;
}

static QImage shapeOf(const Zorv::QPCXHeader& header)
{
    const int depth = header.planes * header.bitsPerPixel;
    const QSize size(header.right + 1 - header.left, header.bottom + 1 - header.top);
    if (header.manufacturer != 10 || header.version != 5 || header.bytesPerLine == 0) {
        return QImage();
    }
    return depth == 5 || depth == 8 ? QImage(size, QImage::Format_Indexed8)
           : depth == 24            ? QImage(size, QImage::Format_RGB32)
           : depth == 32            ? QImage(size, QImage::Format_ARGB32)
                                    : QImage();
}

bool loadPcx(QImage& image, QIODevice* device)
{
    QDataStream stream(device);
    stream.setByteOrder(QDataStream::LittleEndian);
    Zorv::QPCXHeader header;
    stream >> header;
    image = shapeOf(header);
    if (image.isNull()) {
        return false;
    }
    memset(image.bits(), 0, size_t(image.sizeInBytes()));
    const int step = header.planes == 1 ? 1 : 4;
    uchar* line = image.bits();
    int x = 0, y = 0, plane = 0;
    while (y < image.height()) {
        quint8 value = 0;
        stream >> value;
        if (stream.status() != QDataStream::Ok) {
            break;
        }
        int count = 1;
        if (value > 191) {
            count = value & 63;
            stream >> value;
        }
        for (; count > 0 && y < image.height(); --count) {
            if (x < image.width() && x * step + plane < image.width() * image.depth() / 8) {
                line[x * step + plane] = value;
            }
            if (++x == header.bytesPerLine) {
                x = 0;
                if (++plane == header.planes) {
                    plane = 0;
                    ++y;
                    line += image.bytesPerLine();
                }
            }
        }
    }
    if (image.depth() == 32) {
        image = image.rgbSwapped();
    }
    if (header.planes * header.bitsPerPixel != 8 || stream.status() != QDataStream::Ok) {
        return stream.status() == QDataStream::Ok;
    }
    if (device->bytesAvailable() > 769) {
        device->seek(device->size() - 768);
    }
    quint8 marker = 0, red = 0, green = 0, blue = 0;
    if (!device->atEnd()) {
        stream >> marker;
    }
    QVector<QRgb> colors;
    for (int i = 0; marker == 12 && i < 256; ++i) {
        stream >> red >> green >> blue;
        colors += qRgb(red, green, blue);
    }
    image.setColorTable(colors);
    return stream.status() == QDataStream::Ok;
}

bool savePcx(const QImage& image, QIODevice* device)
{
    QDataStream stream(device);
    stream.setByteOrder(QDataStream::LittleEndian);
    Zorv::QPCXHeader header;
    header.right = quint16(image.width() - 1);
    header.bottom = quint16(image.height() - 1);
    header.planes = image.format() == QImage::Format_Indexed8 ? 1
                    : image.format() == QImage::Format_RGB32  ? 3
                                                              : 4;
    header.bytesPerLine = quint16(image.width());
    stream << header;
    const int step = header.planes == 1 ? 1 : 4;
    const QImage source = step == 1 ? image : image.rgbSwapped();
    for (int y = 0; y < image.height(); ++y) {
        for (int plane = 0; plane < header.planes; ++plane) {
            const uchar* line = source.constScanLine(y) + plane;
            for (int x = 0; x < image.width();) {
                int count = 1;
                while (count < 63 && x + count < image.width() &&
                       line[(x + count) * step] == line[x * step]) {
                    ++count;
                }
                if (count > 1 || line[x * step] > 191) {
                    stream << quint8(192 + count);
                }
                stream << line[x * step];
                x += count;
            }
        }
    }
    if (step == 1) {
        QVector<QRgb> colors = image.colorTable();
        colors.resize(256);
        stream << quint8(12);
        for (const QRgb color : qAsConst(colors)) {
            stream << quint8(qRed(color)) << quint8(qGreen(color)) << quint8(qBlue(color));
        }
    }
    return stream.status() == QDataStream::Ok;
}

}  // namespace Plain
