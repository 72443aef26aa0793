#include "media/palettefiles.h"

#include <QColor>
#include <QDataStream>
#include <QIODevice>

#include <array>
#include <cstring>

namespace Zorv {

namespace {

const int ColorCount = 256;

RGBA opaque(const QColor& color)
{
    const QRgb value = color.rgb();
    return {quint8(qRed(value)), quint8(qGreen(value)), quint8(qBlue(value)), 255};
}

RGBA gray(int value)
{
    const quint8 level = quint8(qBound(0, value, 255));
    return {level, level, level, 255};
}

// False for a colour space that is not supported.
bool fromColorSpace(quint16 space, const std::array<quint16, 4>& parts, RGBA& color)
{
    const auto byte = [&parts](size_t part) { return parts[part] / 257; };
    switch (space) {
    case 0:
        color = {quint8(byte(0)), quint8(byte(1)), quint8(byte(2)), 255};
        return true;
    case 1:
        color = opaque(QColor::fromHsv(qRound(parts[0] / 182.5487), byte(1), byte(2)));
        return true;
    case 2:
        color =
            opaque(QColor::fromCmyk(byte(0) ^ 255, byte(1) ^ 255, byte(2) ^ 255, byte(3) ^ 255));
        return true;
    case 8:
        color = gray(255 - qRound(parts[0] / 39.2157));
        return true;
    default:
        return false;
    }
}

// A fraction of 1 as a byte; not-a-number counts as 0.
int share(QDataStream& stream)
{
    float value = 0;
    stream >> value;
    value *= 255;
    return value > 0 ? qRound(qMin(value, 255.0F)) : 0;
}

bool readModelColor(QDataStream& stream, RGBA& color)
{
    char model[4] = {};
    stream.readRawData(model, sizeof model);
    const auto is = [&model](const char* name) { return std::memcmp(model, name, 4) == 0; };
    if (is("RGB ")) {
        color.r = quint8(share(stream));
        color.g = quint8(share(stream));
        color.b = quint8(share(stream));
        color.a = 255;
        return true;
    }
    if (is("CMYK")) {
        std::array<int, 4> inks;
        for (int& ink : inks) {
            ink = share(stream);
        }
        color = opaque(QColor::fromCmyk(inks[0], inks[1], inks[2], inks[3]));
        return true;
    }
    if (is("Gray")) {
        color = gray(share(stream));
        return true;
    }
    stream.skipRawData(12);
    return false;
}

void skip(QDataStream& stream, quint32 size)
{
    if (stream.device()->skip(size) != qint64(size)) {
        stream.setStatus(QDataStream::ReadPastEnd);
    }
}

// Skips a name, which is preceded by its length in characters.
void skipName(QDataStream& stream)
{
    quint16 length = 0;
    stream >> length;
    skip(stream, length * 2U);
}

}  // namespace

bool loadACO(QIODevice* device, RGBA (&palette)[256])
{
    QDataStream stream(device);
    quint16 version = 0;
    quint16 count = 0;
    stream >> version >> count;
    if (version != 1) {
        return false;
    }
    for (int entry = 0; entry < ColorCount && count > 0; --count) {
        quint16 space = 0;
        std::array<quint16, 4> parts;
        stream >> space;
        for (quint16& part : parts) {
            stream >> part;
        }
        if (fromColorSpace(space, parts, palette[entry])) {
            ++entry;
        }
    }
    return true;
}

bool loadASE(QIODevice* device, RGBA (&palette)[256])
{
    if (device->size() < 4 || !device->seek(4)) {
        return false;
    }
    QDataStream stream(device);
    stream.setFloatingPointPrecision(QDataStream::SinglePrecision);
    quint16 major = 0;
    quint16 minor = 0;
    quint32 blocks = 0;
    stream >> major >> minor >> blocks;
    if (major != 1 || minor != 0) {
        return false;
    }
    // The declared number of blocks may be wrong; no colours follow the end of the file.
    for (int entry = 0; entry < ColorCount && blocks > 0 && stream.status() == QDataStream::Ok;
         --blocks) {
        quint16 type = 0;
        quint32 length = 0;
        stream >> type >> length;
        if (type == 0xC001 || type == 0xC002) {
            skipName(stream);
        } else if (type == 1) {
            skipName(stream);
            if (readModelColor(stream, palette[entry])) {
                ++entry;
            }
            skip(stream, 2);
        } else {
            skip(stream, length);
        }
    }
    return true;
}

}  // namespace Zorv
