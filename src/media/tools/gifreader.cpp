#include "media/tools/gifreader_p.h"

#include "media/tools/gifpasses_p.h"

#include <QIODevice>

#include <algorithm>
#include <cstring>
#include <limits>

namespace Zorv {

namespace {

const int BufferSize = 1 << 16;

QVector<RGB> colorsOf(const ColorMapObject* map)
{
    QVector<RGB> colors;
    if (map) {
        colors.resize(map->ColorCount);
        std::transform(map->Colors, map->Colors + map->ColorCount, colors.begin(),
                       [](GifColorType color) {
                           return RGB{color.Red, color.Green, color.Blue};
                       });
    }
    return colors;
}

/// Whether an application extension is one of those that contain the loop count.
bool isLoopExtension(const GifByteType* block)
{
    const int NameLength = 11;
    return block[0] == NameLength && (std::memcmp(block + 1, "NETSCAPE2.0", NameLength) == 0 ||
                                      std::memcmp(block + 1, "ANIMEXTS1.0", NameLength) == 0);
}

void takeGraphicsControl(const GifByteType* block, GIFImage::SubImage& frame)
{
    GraphicsControlBlock control;
    if (DGifExtensionToGCB(block[0], block + 1, &control) == GIF_OK) {
        frame.transparent = control.TransparentColor;
        frame.delay = control.DelayTime;
        frame.disposal = control.DisposalMode <= GIFImage::ToPrevious
                             ? GIFImage::Disposal(control.DisposalMode)
                             : GIFImage::Unspecified;
    }
}

}  // namespace

GIFReader::GIFReader(QIODevice* device) : m_device(device) {}

GIFReader::~GIFReader()
{
    if (m_file) {
        DGifCloseFile(m_file, nullptr);
    }
}

int GIFReader::readBytes(GifFileType* file, GifByteType* to, int count)
{
    auto* const reader = static_cast<GIFReader*>(file->UserData);
    QByteArray& buffer = reader->m_buffer;
    int done = 0;
    while (done < count) {
        if (reader->m_position == buffer.size()) {
            buffer.resize(BufferSize);
            buffer.resize(int(qMax(qint64(0), reader->m_device->read(buffer.data(), BufferSize))));
            reader->m_position = 0;
            if (buffer.isEmpty()) {
                break;
            }
        }
        const int part = qMin(count - done, buffer.size() - reader->m_position);
        std::memcpy(to + done, buffer.constData() + reader->m_position, size_t(part));
        reader->m_position += part;
        done += part;
    }
    return done;
}

qint64 GIFReader::bytesLeft() const
{
    return m_buffer.size() - m_position + m_device->bytesAvailable();
}

bool GIFReader::readHead(GIFImage& gif)
{
    m_file = DGifOpen(this, readBytes, nullptr);
    if (!m_file) {
        return false;
    }
    gif.size = QSize(m_file->SWidth, m_file->SHeight);
    gif.colors = colorsOf(m_file->SColorMap);
    gif.background = m_file->SBackGroundColor;
    return true;
}

GIFReader::Record GIFReader::readFrame(GIFImage& gif, GIFImage::SubImage& frame)
{
    frame = {};
    for (;;) {
        GifRecordType type;
        if (DGifGetRecordType(m_file, &type) == GIF_ERROR) {
            return Broken;
        }
        switch (type) {
        case EXTENSION_RECORD_TYPE:
            if (!readExtension(gif, frame)) {
                return Broken;
            }
            break;
        case IMAGE_DESC_RECORD_TYPE:
            return readPicture(frame) ? Frame : Broken;
        case TERMINATE_RECORD_TYPE:
            return End;
        default:
            return Broken;
        }
    }
}

bool GIFReader::readExtension(GIFImage& gif, GIFImage::SubImage& frame)
{
    int code = 0;
    GifByteType* block = nullptr;
    if (DGifGetExtension(m_file, &code, &block) == GIF_ERROR) {
        return false;
    }
    bool tellsLoops = false;
    if (block && code == GRAPHICS_EXT_FUNC_CODE) {
        takeGraphicsControl(block, frame);
    } else if (block && code == APPLICATION_EXT_FUNC_CODE) {
        tellsLoops = isLoopExtension(block);
    }
    while (block) {
        if (DGifGetExtensionNext(m_file, &block) == GIF_ERROR) {
            return false;
        }
        if (block && tellsLoops && block[0] == 3 && (block[1] & 7) == 1) {
            gif.loops = block[2] | block[3] << 8;
        }
    }
    return true;
}

bool GIFReader::readPicture(GIFImage::SubImage& frame)
{
    // A 12-bit code represents fewer than 4096 pixels; shorter codes far fewer.
    const qint64 PixelsOfByte = 4096 * 8 / 12;
    // The most that giflib can read in one call.
    const qint64 MostPixels = std::numeric_limits<int>::max();

    if (DGifGetImageHeader(m_file) == GIF_ERROR) {
        return false;
    }
    const GifImageDesc& picture = m_file->Image;
    const qint64 pixels = qint64(picture.Width) * picture.Height;
    if (pixels <= 0 || pixels > qMin(bytesLeft() * PixelsOfByte, MostPixels)) {
        return false;
    }
    frame.left = picture.Left;
    frame.top = picture.Top;
    frame.interlaced = picture.Interlace;
    frame.colors = colorsOf(picture.ColorMap);
    frame.image = QImage(picture.Width, picture.Height, QImage::Format_Indexed8);
    return !frame.image.isNull() && readPixels(frame.image);
}

bool GIFReader::readPixels(QImage& image)
{
    const int width = image.width();
    const int height = image.height();
    const int stride = image.bytesPerLine();
    uchar* const bits = image.bits();
    if (m_file->Image.Interlace) {
        return readInterlaced(bits, width, height, stride);
    }
    // One call for all lines is faster than one per line. The lines are moved to their places
    // afterwards.
    if (DGifGetLine(m_file, bits, width * height) == GIF_ERROR) {
        return false;
    }
    for (int y = height - 1; y > 0 && stride > width; --y) {
        std::memmove(bits + qptrdiff(y) * stride, bits + qptrdiff(y) * width, size_t(width));
    }
    return true;
}

bool GIFReader::readInterlaced(uchar* bits, int width, int height, int stride)
{
    for (const GIFPass& pass : gifPasses) {
        for (int y = pass.first; y < height; y += pass.step) {
            if (DGifGetLine(m_file, bits + qptrdiff(y) * stride, width) == GIF_ERROR) {
                return false;
            }
        }
    }
    return true;
}

}  // namespace Zorv
