#include "media/tools/gifwriter_p.h"

#include "media/tools/gifpasses_p.h"

#include <QIODevice>

#include <algorithm>
#include <memory>

namespace Zorv {

namespace {

const int BufferSize = 1 << 16;

struct FreeMap
{
    void operator()(ColorMapObject* map) const { GifFreeMapObject(map); }
};

using Map = std::unique_ptr<ColorMapObject, FreeMap>;

static_assert(sizeof(RGB) == sizeof(GifColorType), "the same three bytes");

Map mapOf(const QVector<RGB>& colors)
{
    const auto* const entries = reinterpret_cast<const GifColorType*>(colors.constData());
    return Map(colors.isEmpty() ? nullptr : GifMakeMapObject(colors.size(), entries));
}

}  // namespace

QVector<RGB> paddedColors(QVector<RGB> colors, int minimum)
{
    colors.resize(1 << GifBitSize(qMax(2, qMax(minimum, colors.size()))));
    return colors;
}

GIFWriter::GIFWriter(QIODevice* device)
    : m_device(device), m_file(EGifOpen(this, writeBytes, nullptr))
{
    m_buffer.reserve(BufferSize + 256);
    m_failed = !m_file;
}

GIFWriter::~GIFWriter()
{
    if (m_file) {
        EGifCloseFile(m_file, nullptr);
    }
}

int GIFWriter::writeBytes(GifFileType* file, const GifByteType* from, int count)
{
    auto* const writer = static_cast<GIFWriter*>(file->UserData);
    writer->m_buffer.append(reinterpret_cast<const char*>(from), count);
    if (writer->m_buffer.size() >= BufferSize) {
        writer->flush();
    }
    return writer->m_failed ? 0 : count;
}

void GIFWriter::flush()
{
    if (!m_failed && m_device->write(m_buffer) != m_buffer.size()) {
        m_failed = true;
    }
    m_buffer.resize(0);
}

void GIFWriter::check(int result)
{
    if (result == GIF_ERROR) {
        m_failed = true;
    }
}

void GIFWriter::begin(const QSize& size, const QVector<RGB>& colors, int background, int loops)
{
    if (m_failed) {
        return;
    }
    const int Resolution = 8;
    const Map map = mapOf(colors);
    EGifSetGifVersion(m_file, true);
    check(
        EGifPutScreenDesc(m_file, size.width(), size.height(), Resolution, background, map.get()));
    if (loops >= 0 && !m_failed) {
        const GifByteType block[] = {1, GifByteType(loops), GifByteType(loops >> 8)};
        check(EGifPutExtensionLeader(m_file, APPLICATION_EXT_FUNC_CODE));
        check(EGifPutExtensionBlock(m_file, 11, "NETSCAPE2.0"));
        check(EGifPutExtensionBlock(m_file, sizeof(block), block));
        check(EGifPutExtensionTrailer(m_file));
    }
}

void GIFWriter::beginFrame(const GIFImage::SubImage& frame, const QSize& size,
                           const QVector<RGB>& colors)
{
    if (m_failed) {
        return;
    }
    if (frame.transparent >= 0 || frame.delay > 0 || frame.disposal != GIFImage::Unspecified) {
        const GraphicsControlBlock control = {frame.disposal, false, frame.delay,
                                              frame.transparent};
        GifByteType bytes[4];
        const size_t count = EGifGCBToExtension(&control, bytes);
        check(EGifPutExtension(m_file, GRAPHICS_EXT_FUNC_CODE, int(count), bytes));
    }
    // giflib would leak the local table of the previous frame if this one has none.
    GifFreeMapObject(m_file->Image.ColorMap);
    m_file->Image.ColorMap = nullptr;
    const Map map = mapOf(colors);
    check(EGifPutImageDesc(m_file, frame.left, frame.top, size.width(), size.height(),
                           frame.interlaced, map.get()));
}

void GIFWriter::putPixels(const QImage& image, bool interlaced)
{
    if (!interlaced) {
        putLines(image, {0, 1});
        return;
    }
    for (const GIFPass& pass : gifPasses) {
        putLines(image, pass);
    }
}

void GIFWriter::putLines(const QImage& image, const GIFPass& pass)
{
    for (int y = pass.first; y < image.height() && !m_failed; y += pass.step) {
        // giflib modifies the line passed to it.
        QByteArray line(reinterpret_cast<const char*>(image.constScanLine(y)), image.width());
        check(EGifPutLine(m_file, reinterpret_cast<GifPixelType*>(line.data()), line.size()));
    }
}

void GIFWriter::putPacked(const QByteArray& codes)
{
    const int BlockSize = 255;
    GifByteType block[BlockSize + 1];
    for (int at = 0; at < codes.size() && !m_failed; at += BlockSize) {
        const int count = qMin(BlockSize, codes.size() - at);
        block[0] = GifByteType(count);
        std::copy_n(codes.constData() + at, count, block + 1);
        check(EGifPutCodeNext(m_file, block));
    }
    if (!m_failed) {
        check(EGifPutCodeNext(m_file, nullptr));
    }
}

bool GIFWriter::finish()
{
    if (m_file) {
        check(EGifCloseFile(m_file, nullptr));
        m_file = nullptr;
        flush();
    }
    return !m_failed;
}

}  // namespace Zorv
