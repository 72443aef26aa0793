#pragma once

#include "family/assets/pixeldata.h"

#include <QHash>

namespace Family {

class SpriteCollection;

/// Brings pixels of one collection into another, which stores equal ones once.
///
/// Packed pixels go over as they are. They are compared by the checksum that their file tells, and
/// unpacked only if that is the same and the packed bytes are not. Neither collection may be read
/// again, or die, as long as one lives.
class PixelTransfer
{
public:
    PixelTransfer(const SpriteCollection* source, const SpriteCollection* target);

    /// The pixels in the target that are those of a sprite of the source. Null for broken ones.
    PixelRef take(const PixelData* pixels);

private:
    PixelRef find(const PixelData* pixels, const QByteArray& stream, quint64 crc) const;
    PixelRef bring(const PixelData* pixels);

    const SpriteCollection* m_source;
    const SpriteCollection* m_target;
    QMultiHash<quint64, PixelRef> m_present;    // of the target, by their checksum
    QHash<const PixelData*, PixelRef> m_taken;  // null for broken ones
};

}  // namespace Family
