#pragma once

#include "family/assets/palettelist.h"
#include "operations/media/mediaresult.h"
#include "operations/media/outputfiles.h"
#include "operations/media/selection.h"

namespace Family {
class SpriteCollection;
}  // namespace Family

namespace Operations {

/// The rows of the selected sprites, in order.
QVector<int> selectedRows(const Family::SpriteCollection& sprites, const Selection& selection);

/// Resolves a palette name from the user: the identifier of a palette in the collection, or a
/// palette file. False, with `error`, if there is neither.
bool findPalette(const Family::SpriteCollection& sprites, const QString& name,
                 Family::PaletteColors* colors, QString* error);

/// Like `findPalette()`, but returns a palette of the collection. A palette file is added unless
/// the collection has it. Null, with `error`, if there is neither.
Family::FamilyPalette* ensurePalette(Family::SpriteCollection* sprites, const QString& name,
                                     QString* error);

/// Writes an image file for each sprite; the default is PNG. With `colors`, indexed sprites are
/// drawn in those. A broken sprite does not stop the others.
MediaResult exportSprites(const Family::SpriteCollection& sprites, const Selection& selection,
                          const OutputRequest& request,
                          const Family::PaletteColors* colors = nullptr);

/// Writes a palette file for each palette.
MediaResult exportPalettes(const Family::SpriteCollection& sprites, const Selection& selection,
                           const OutputRequest& request);

}  // namespace Operations
