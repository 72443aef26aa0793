#pragma once

#include "family/assets/palettelist.h"
#include "operations/media/mediaresult.h"
#include "operations/media/outputfiles.h"
#include "operations/media/selection.h"

namespace Family {
class SpriteCollection;
}  // namespace Family

namespace Operations {

/// The rows of the sprites that a selection means, in their order.
QVector<int> selectedRows(const Family::SpriteCollection& sprites, const Selection& selection);

/// Finds what a person calls a palette: the identifier of one of the collection, or a palette
/// file. False, with `error`, if there is neither.
bool findPalette(const Family::SpriteCollection& sprites, const QString& name,
                 Family::PaletteColors* colors, QString* error);

/// The palette of the collection that a person calls so; one of a palette file is added unless it
/// is there. Null, with `error`, if there is neither.
Family::FamilyPalette* ensurePalette(Family::SpriteCollection* sprites, const QString& name,
                                     QString* error);

/// Writes an image file for each sprite, PNG if nothing else is said. With `colors` sprites that
/// are indexed are shown in them. A sprite that is broken does not keep the others from it.
MediaResult exportSprites(const Family::SpriteCollection& sprites, const Selection& selection,
                          const OutputRequest& request,
                          const Family::PaletteColors* colors = nullptr);

/// Writes a palette file for each palette.
MediaResult exportPalettes(const Family::SpriteCollection& sprites, const Selection& selection,
                           const OutputRequest& request);

}  // namespace Operations
