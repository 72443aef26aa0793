#pragma once

#include "family/assets/pixelstore.h"

#include <zorv/cache/pixelcopy.h>

namespace Family {

class FamilySprite;

/// The packed pixels of a sprite for transfer to another collection. That collection stores equal
/// pixels once. An image of a loose folder is converted to a format of sprite files.
class PackedCopy final : public Zorv::PixelCopy
{
public:
    explicit PackedCopy(const FamilySprite& sprite);

    bool read() override;

    /// False also if the sprite is not a `FamilySprite`.
    bool putInto(Zorv::Sprite* sprite) override;

private:
    bool m_hasPixels;
    PackedPixels m_packed;
    QByteArray m_rows;
};

}  // namespace Family
