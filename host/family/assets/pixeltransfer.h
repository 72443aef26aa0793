#pragma once

#include "family/assets/pixeldata.h"

#include <QHash>

namespace Family {

class SpriteCollection;

/// Copies pixels of one collection into another, which stores equal ones once.
///
/// Packed pixels are copied unchanged. They are compared by the checksum from their file, and
/// unpacked only if the checksums are equal but the packed bytes differ. Neither collection may be
/// reloaded or destroyed while a transfer exists.
class PixelTransfer
{
public:
    PixelTransfer(const SpriteCollection* source, const SpriteCollection* target);

    /// The pixels in the target that correspond to pixels of the source. Null for broken ones.
    PixelRef take(const PixelData* pixels);

private:
    PixelRef find(const PixelData* pixels, const QByteArray& stream, quint64 crc) const;
    PixelRef bring(const PixelData* pixels);

    const SpriteCollection* m_source;
    const SpriteCollection* m_target;
    QMultiHash<quint64, PixelRef> m_present;    // in the target, by checksum
    QHash<const PixelData*, PixelRef> m_taken;  // null for broken ones
};

}  // namespace Family
