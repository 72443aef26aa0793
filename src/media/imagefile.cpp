#include "media/imagefile.h"

#include "core/extensionmanager.h"
#include "media/colorconversion.h"
#include "media/formatdepth_p.h"
#include "media/imagesize_p.h"
#include "media/losslessimages.h"
#include "media/pcx.h"
#include "media/plainimages_p.h"
#include "media/tools/colorquantizer.h"
#include "media/tools/gifpixels_p.h"
#include "media/tools/gifreader_p.h"

#include <algorithm>
#include <cstring>

namespace Zorv {

namespace {

/// Clears the bytes after each line. The line length comes from the library's table of depths, so
/// this also clears a quarter of the pixels of RGB32 and all pixels of an unlisted format. Hosts of
/// the first release depend on it.
void clearLineEnds(QImage& image)
{
    const int length = int(qint64(image.width()) * formatDepth(image.format()) / 8);
    const int stride = image.bytesPerLine();
    if (length < stride) {
        for (int y = 0; y < image.height(); ++y) {
            std::memset(image.scanLine(y) + length, 0, size_t(stride - length));
        }
    }
}

bool loadByQt(QIODevice* device, const char* format, QImage& image)
{
    image = qstrcmp(format, "PNG") == 0 ? readPlainPNG(device) : readPlainBMP(device);
    if (image.isNull()) {
        return false;
    }
    if (losslessImages()) {
        image = inLibraryForm(image);
    } else {
        clearLineEnds(image);
    }
    return true;
}

/// With lossless images a frame's own colours have priority, otherwise the global ones.
const QVector<RGB>& colorsOf(const GIFImage& gif, const GIFImage::SubImage& frame)
{
    const QVector<RGB>& first = losslessImages() ? frame.colors : gif.colors;
    const QVector<RGB>& second = losslessImages() ? gif.colors : frame.colors;
    return first.isEmpty() ? second : first;
}

bool loadGIF(QIODevice* device, QImage& image)
{
    GIFImage gif;
    GIFImage::SubImage frame;
    GIFReader reader(device);
    if (!reader.readHead(gif) || reader.readFrame(gif, frame) != GIFReader::Frame) {
        return false;
    }
    QVector<QRgb> colors;
    RGBVectorToRgbVector(colorsOf(gif, frame), colors);
    colors.resize(256);
    if (frame.transparent >= 0 && frame.transparent < colors.size()) {
        colors[frame.transparent] &= RGB_MASK;
    }
    image = frame.image;
    image.setColorTable(colors);
    return true;
}

bool saveGIFStill(QIODevice* device, const QImage& source)
{
    QImage image = gifIndexed(source);
    if (image.isNull()) {
        image = ColorQuantizer::quantize(gifTrueColor(source), 256);
    }
    const QVector<QRgb> colors = image.colorTable();
    GIFImage gif;
    gif.size = image.size();
    gif.colors.resize(colors.size());
    std::transform(colors.begin(), colors.end(), gif.colors.begin(), [](QRgb color) {
        return RGB{quint8(qRed(color)), quint8(qGreen(color)), quint8(qBlue(color))};
    });
    const auto transparent =
        std::find_if(colors.begin(), colors.end(), [](QRgb color) { return qAlpha(color) == 0; });
    GIFImage::SubImage frame;
    frame.image = image;
    frame.transparent = transparent == colors.end() ? -1 : int(transparent - colors.begin());
    gif.images.append(frame);
    return gif.save(device);
}

template <class Operation>
bool byExtension(Extension::Type type, const char* format, Operation operation)
{
    const QList<Extension*>& extensions = ExtensionManager::list(type);
    return std::any_of(extensions.begin(), extensions.end(), [&](Extension* extension) {
        return extension->name() == format && operation(extension);
    });
}

bool loadByFormat(QIODevice* device, const char* format, QImage& image)
{
    if (qstrcmp(format, "PNG") == 0 || qstrcmp(format, "BMP") == 0) {
        return loadByQt(device, format, image);
    }
    if (qstrcmp(format, "GIF") == 0) {
        return loadGIF(device, image);
    }
    if (qstrcmp(format, "PCX") == 0) {
        return loadPCX(image, device);
    }
    return byExtension(Extension::ImageLoader, format, [device, &image](Extension* extension) {
        return extension->loadImage(device, image);
    });
}

}  // namespace

bool loadImage(QIODevice* device, const char* format, QImage& image)
{
    if (!device->isReadable()) {
        return false;
    }
    const SizedDevice sized(device);
    const bool loaded = loadByFormat(sized.get(), format, image);
    return !image.isNull() && (loaded || !losslessImages());
}

bool saveImage(QIODevice* device, const char* format, const QImage& image)
{
    if (image.isNull() || !device->isWritable()) {
        return false;
    }
    if (qstrcmp(format, "PNG") == 0 || qstrcmp(format, "BMP") == 0) {
        return image.save(device, format, -1);
    }
    if (qstrcmp(format, "GIF") == 0) {
        return saveGIFStill(device, image);
    }
    if (qstrcmp(format, "PCX") == 0) {
        return savePCX(image, device);
    }
    return byExtension(Extension::ImageSaver, format, [device, &image](Extension* extension) {
        return extension->saveImage(device, image);
    });
}

}  // namespace Zorv
