#include "media/palettedevice_p.h"

#include "core/extensionmanager.h"
#include "media/imagefile.h"
#include "media/losslessimages.h"
#include "media/palettefiles.h"

#include <QByteArray>
#include <QIODevice>
#include <QImage>

#include <algorithm>
#include <cstring>
#include <iterator>
#include <utility>

namespace Zorv {

namespace {

const int ColorCount = 256;

bool fromImage(QIODevice* device, const QByteArray& format, RGBA (&palette)[256])
{
    QImage image;
    if (!loadImage(device, format.constData(), image)) {
        return false;
    }
    const bool isTaken =
        losslessImages() ? image.colorCount() > 0 : image.format() != QImage::Format_Indexed8;
    if (!isTaken) {
        return false;
    }
    const QVector<QRgb> table = image.colorTable();
    for (int i = 0; i < qMin(ColorCount, table.size()); ++i) {
        const QRgb color = table[i];
        palette[i] = {quint8(qRed(color)), quint8(qGreen(color)), quint8(qBlue(color)),
                      quint8(qAlpha(color))};
    }
    return true;
}

bool fromExtension(QIODevice* device, const QByteArray& format, RGBA (&palette)[256])
{
    const auto& loaders = ExtensionManager::list(Extension::PaletteLoader);
    return std::any_of(loaders.begin(), loaders.end(), [&](Extension* loader) {
        return loader->name() == format && loader->loadPalette(device, palette);
    });
}

bool fromSignature(QIODevice* device, const QByteArray& format, RGBA (&palette)[256])
{
    using Reader = bool (*)(QIODevice*, RGBA(&)[256]);
    static const std::pair<const char*, Reader> readers[] = {
        {"RIFF", loadRIFF}, {"JASC", loadJasc}, {"ASEF", loadASE}, {"ROWS", loadPainter}};

    const QByteArray signature = device->peek(4);
    std::memset(palette, 0, sizeof palette);
    for (const auto& [name, reader] : readers) {
        if (signature == name) {
            return reader(device, palette);
        }
    }
    return fromExtension(device, format, palette);
}

bool writeACT(QIODevice* device, const RGBA* palette)
{
    RGB colors[ColorCount];
    std::transform(palette, palette + ColorCount, std::make_reverse_iterator(std::end(colors)),
                   [](RGBA color) {
                       return RGB{color.r, color.g, color.b};
                   });
    return device->write(reinterpret_cast<const char*>(colors), sizeof colors) ==
           qint64(sizeof colors);
}

}  // namespace

bool readPalette(QIODevice* device, const QByteArray& format, RGBA (&palette)[256])
{
    if (format == "PNG" || format == "PCX" || format == "BMP" || format == "GIF") {
        return fromImage(device, format, palette);
    }
    if (format == "ACT") {
        return loadACT(device, palette);
    }
    if (format == "ACO") {
        return loadACO(device, palette);
    }
    return fromSignature(device, format, palette);
}

bool writePalette(QIODevice* device, const QByteArray& format, const RGBA (&palette)[256])
{
    if (format == "ACT") {
        return writeACT(device, palette);
    }
    const auto& savers = ExtensionManager::list(Extension::PaletteSaver);
    return std::any_of(savers.begin(), savers.end(), [&](Extension* saver) {
        return saver->name() == format && saver->savePalette(device, palette);
    });
}

}  // namespace Zorv
