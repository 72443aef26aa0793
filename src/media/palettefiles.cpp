#include "media/palettefiles.h"

#include "media/lineheads_p.h"

#include <QDataStream>
#include <QIODevice>
#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace Zorv {

namespace {

const int ColorCount = 256;

quint8 channel(const QRegularExpressionMatch& match, int group)
{
    return quint8(qMin(match.capturedRef(group).toInt(), 255));
}

RGBA matchedColor(const QRegularExpressionMatch& match)
{
    const bool hasAlpha = match.capturedLength(4) > 0;
    return {channel(match, 1), channel(match, 2), channel(match, 3),
            hasAlpha ? channel(match, 4) : quint8(255)};
}

// Checked first, because some devices grow or print a warning when the position is behind their
// end.
bool moveTo(QIODevice* device, qint64 place)
{
    return place <= device->size() && device->seek(place);
}

}  // namespace

bool loadACT(QIODevice* device, RGBA (&palette)[256])
{
    RGB colors[ColorCount];
    if (device->read(reinterpret_cast<char*>(colors), sizeof colors) != qint64(sizeof colors)) {
        return false;
    }
    std::transform(colors, colors + ColorCount, std::make_reverse_iterator(std::end(palette)),
                   [](RGB color) {
                       return RGBA{color.r, color.g, color.b, 255};
                   });
    return true;
}

bool loadRIFF(QIODevice* device, RGBA (&palette)[256])
{
    if (!moveTo(device, 8) || device->read(8) != "PAL data") {
        return false;
    }
    QDataStream stream(device);
    stream.setByteOrder(QDataStream::LittleEndian);
    quint32 size = 0;
    stream >> size;
    size -= 8;  // a size below 8 wraps around and is refused below
    if (size > sizeof palette || !moveTo(device, 24) ||
        device->read(reinterpret_cast<char*>(palette), size) != qint64(size)) {
        return false;
    }
    for (RGBA& color : palette) {
        color.a = 255;
    }
    std::reverse(std::begin(palette), std::end(palette));
    return true;
}

bool loadJasc(QIODevice* device, RGBA (&palette)[256])
{
    static const QRegularExpression colorLine(
        QStringLiteral("^(\\d{1,3})\\s(\\d{1,3})\\s(\\d{1,3})(?:\\s(\\d{1,3}))?$"));
    LineHeads lines(device, "\r\n");
    if (lines.next() != "JASC-PAL" || lines.next() != "0100") {
        return false;
    }
    lines.next();  // the number of colours; the lines themselves count
    for (int i = 0; i < ColorCount && !lines.atEnd(); ++i) {
        const auto match = colorLine.match(QString::fromLatin1(lines.next()));
        if (match.hasMatch()) {
            palette[i] = matchedColor(match);
        }
    }
    return true;
}

bool loadPainter(QIODevice* device, RGBA (&palette)[256])
{
    static const QRegularExpression colorLine(
        QStringLiteral("^R:\\s?(\\d{1,3}),\\s?G:\\s?(\\d{1,3}),\\s?B:\\s?(\\d{1,3})"
                       "(?:\\s?A:\\s?(\\d{1,3}))?"));
    LineHeads lines(device, "\n");
    for (int entry = 0; entry < ColorCount && !lines.atEnd();) {
        const auto match = colorLine.match(QString::fromLatin1(lines.next()));
        if (match.hasMatch()) {
            palette[entry++] = matchedColor(match);
        }
    }
    return true;
}

}  // namespace Zorv
