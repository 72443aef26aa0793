#include "family/assets/pixeltransfer.h"

#include "family/assets/pixelstore.h"
#include "family/assets/spritecollection.h"

#include <zorv/cache/crc64.h>

#include <QSet>

namespace Family {

namespace {

quint64 checksum(const QByteArray& bytes)
{
    return Zorv::crc64(reinterpret_cast<const uchar*>(bytes.constData()), unsigned(bytes.size()));
}

quint64 pixelChecksum(const PixelData* pixels)
{
    if (pixels->pixelCrc != 0) {
        return pixels->pixelCrc;
    }
    const QByteArray rows = PackedPixels(*pixels).rows();
    return rows.isEmpty() ? 0 : checksum(rows);
}

bool isSameForm(const PixelFormat& a, const PixelFormat& b)
{
    return a.size == b.size && a.bits == b.bits;
}

}  // namespace

PixelTransfer::PixelTransfer(const SpriteCollection* source, const SpriteCollection* target)
    : m_source(source), m_target(target)
{
    QSet<const PixelData*> seen;
    for (const auto& sprite : target->items()) {
        const PixelRef& pixels = sprite->state.pixels;
        if (pixels && pixels->record.isEmpty() && !seen.contains(pixels.get())) {
            seen.insert(pixels.get());
            m_present.insert(pixelChecksum(pixels.get()), pixels);
        }
    }
}

PixelRef PixelTransfer::take(const PixelData* pixels)
{
    const auto known = m_taken.constFind(pixels);
    if (known != m_taken.cend()) {
        return *known;
    }
    const PixelRef taken = bring(pixels);
    m_taken.insert(pixels, taken);
    return taken;
}

PixelRef PixelTransfer::bring(const PixelData* pixels)
{
    const QByteArray stream = m_source->store()->stream(pixels);
    const bool isWhole = pixels->record.isEmpty() && !stream.isEmpty() &&
                         (pixels->streamCrc == 0 || checksum(stream) == pixels->streamCrc);
    const quint64 crc = isWhole ? pixelChecksum(pixels) : 0;
    if (crc == 0) {
        return {};
    }
    PixelRef result = find(pixels, stream, crc);
    if (!result && pixels->streamCrc != 0) {
        result = m_target->store()->adopt(pixels->format, stream, crc, pixels->streamCrc);
    } else if (!result) {
        // An image in a loose folder may have a format that sprite files do not support.
        const QByteArray rows = PackedPixels(*pixels).rows();
        result = rows.isEmpty() ? PixelRef()
                                : m_target->store()->add(imageOfRows(pixels->format, rows, {}));
    }
    if (result) {
        m_present.insert(crc, result);
    }
    return result;
}

PixelRef PixelTransfer::find(const PixelData* pixels, const QByteArray& stream, quint64 crc) const
{
    QByteArray rows;
    for (auto it = m_present.constFind(crc); it != m_present.cend() && it.key() == crc; ++it) {
        const PixelData* other = it->get();
        if (!isSameForm(other->format, pixels->format)) {
            continue;
        }
        if (other->format.codec == pixels->format.codec &&
            m_target->store()->stream(other) == stream) {
            return *it;
        }
        rows = rows.isEmpty() ? PackedPixels(*pixels).rows() : rows;
        if (!rows.isEmpty() && PackedPixels(*other).rows() == rows) {
            return *it;
        }
    }
    return {};
}

}  // namespace Family
