#pragma once

#include "family/assets/pixelstore.h"

#include <zorv/cache/pixelcopy.h>

namespace Family {

class FamilySprite;

/// The packed pixels of a sprite on their way into another collection. Equal ones are stored once
/// there; an image of a loose folder becomes pixels as sprite files have them.
class PackedCopy final : public Zorv::PixelCopy
{
public:
    explicit PackedCopy(const FamilySprite& sprite);

    bool read() override;

    /// False also for a sprite that is not of the family.
    bool putInto(Zorv::Sprite* sprite) override;

private:
    bool m_hasPixels;
    PackedPixels m_packed;
    QByteArray m_rows;
};

}  // namespace Family
