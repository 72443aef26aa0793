#include "media/tools/gifimage.h"

#include "media/tools/gifreader_p.h"
#include "media/tools/gifwriter_p.h"

#include <QIODevice>

#include <algorithm>

namespace Zorv {

namespace {

const int Largest = 65535;

bool isInRange(const QSize& size)
{
    return size.width() >= 1 && size.height() >= 1 && size.width() <= Largest &&
           size.height() <= Largest;
}

bool isInRange(const GIFImage::SubImage& frame)
{
    const auto fits = [](int value, int limit) { return value >= 0 && value <= limit; };
    return frame.image.format() == QImage::Format_Indexed8 && isInRange(frame.image.size()) &&
           fits(frame.left, Largest) && fits(frame.top, Largest) && fits(frame.delay, Largest) &&
           frame.transparent <= 255 && frame.colors.size() <= 256;
}

int highestIndex(const QImage& image)
{
    uchar highest = 0;
    for (int y = 0; y < image.height(); ++y) {
        const uchar* const line = image.constScanLine(y);
        highest = std::max(highest, *std::max_element(line, line + image.width()));
    }
    return highest;
}

/// The number of colours needed for the pixels of a frame.
int colorsNeeded(const GIFImage::SubImage& frame)
{
    return qMax(highestIndex(frame.image), frame.transparent) + 1;
}

int globalColorsNeeded(const GIFImage& gif)
{
    int needed = 0;
    for (const GIFImage::SubImage& frame : gif.images) {
        if (frame.colors.isEmpty()) {
            needed = qMax(needed, colorsNeeded(frame));
        }
    }
    return needed;
}

}  // namespace

bool GIFImage::load(QIODevice* device)
{
    *this = {};
    GIFReader reader(device);
    if (!device->isReadable() || !reader.readHead(*this)) {
        return false;
    }
    for (;;) {
        SubImage frame;
        const GIFReader::Record record = reader.readFrame(*this, frame);
        if (record != GIFReader::Frame) {
            return record == GIFReader::End;
        }
        images.append(frame);
        // Some files leave the canvas size to their first frame.
        if (size.isEmpty()) {
            size = QSize(frame.left, frame.top) + frame.image.size();
            size = size.boundedTo(QSize(Largest, Largest));
        }
    }
}

bool GIFImage::save(QIODevice* device) const
{
    const auto ok = [](const SubImage& frame) { return isInRange(frame); };
    if (!device->isWritable() || !isInRange(size) || colors.size() > 256 || loops > Largest ||
        !std::all_of(images.begin(), images.end(), ok)) {
        return false;
    }
    const int needed = globalColorsNeeded(*this);
    const bool hasGlobal = needed > 0 || !colors.isEmpty();

    GIFWriter writer(device);
    writer.begin(size, hasGlobal ? paddedColors(colors, needed) : colors, background, loops);
    for (const SubImage& frame : images) {
        const bool local = !frame.colors.isEmpty();
        writer.beginFrame(frame, frame.image.size(),
                          local ? paddedColors(frame.colors, colorsNeeded(frame)) : frame.colors);
        writer.putPixels(frame.image, frame.interlaced);
    }
    return writer.finish();
}

}  // namespace Zorv
