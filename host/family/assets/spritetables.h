#pragma once

#include "family/assets/pixeldata.h"
#include "family/assets/spritefiledata.h"

#include <QVector>

namespace Family {

class PixelStore;
class SpriteCollection;

/// The data of a sprite file for a collection, and the pixels that it contains.
struct SpriteTables
{
    SpriteFileData data;
    QVector<PixelRef> pixels;  ///< one per stream

    /// `kept` are pixels that stay in the file even if no sprite shows them.
    SpriteTables(const SpriteCollection& sprites, const QVector<PixelRef>& kept);

    /// False if a temporary file has lost bytes. Check it before the old file is overwritten.
    bool isAllThere(const PixelStore& store) const;
};

}  // namespace Family
