#pragma once

#include "family/assets/pixeldata.h"
#include "family/assets/spritefiledata.h"

#include <QVector>

namespace Family {

class PixelStore;
class SpriteCollection;

/// What a sprite file says about the sprites of a collection, and the pixels that stand in it.
struct SpriteTables
{
    SpriteFileData data;
    QVector<PixelRef> pixels;  ///< one for each stream

    /// `kept` are pixels that stay in the file though no sprite may show them.
    SpriteTables(const SpriteCollection& sprites, const QVector<PixelRef>& kept);

    /// False if a temporary file has lost bytes: better found out before the old file is gone.
    bool isAllThere(const PixelStore& store) const;
};

}  // namespace Family
