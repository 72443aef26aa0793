#pragma once

#include "assets/palettelist.h"
#include "operations/media/mediaresult.h"
#include "operations/media/outputfiles.h"
#include "operations/media/selection.h"

namespace Family {

class SpriteCollection;

/// The rows of the sprites that a selection means, in their order.
QVector<int> selectedRows(const SpriteCollection& sprites, const Selection& selection);

/// Finds what a person calls a palette: the identifier of one of the collection, or a palette
/// file. False, with `error`, if there is neither.
bool findPalette(const SpriteCollection& sprites, const QString& name, PaletteColors* colors,
                 QString* error);

/// Writes an image file for each sprite, PNG if nothing else is said. With `colors` sprites that
/// are indexed are shown in them. A sprite that is broken does not keep the others from it.
MediaResult exportSprites(const SpriteCollection& sprites, const Selection& selection,
                          const OutputRequest& request, const PaletteColors* colors = nullptr);

/// Writes a palette file for each palette.
MediaResult exportPalettes(const SpriteCollection& sprites, const Selection& selection,
                           const OutputRequest& request);

}  // namespace Family
