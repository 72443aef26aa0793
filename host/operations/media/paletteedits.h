#pragma once

#include "operations/media/mediaresult.h"

#include <zorv/media/tools/colorspaces.h>
#include <zorv/media/tools/paletteorder.h>

#include <QVector>

#include <functional>

namespace Family {
class FamilyPalette;
class SpriteCollection;
}  // namespace Family

namespace Operations {

// Changes to palettes of a sprite file. Each is one undo step. Palettes are identified by row. If
// the record of one is broken in the file, the result names it and nothing is changed.

/// Changes the 256 colours of each palette with `change`, which returns the number of changed
/// colours; `done` is their sum. The pixels of sprites stay as they are.
MediaResult changePalettes(Family::SpriteCollection* sprites, const QVector<int>& rows,
                           const QString& title,
                           const std::function<int(Zorv::RGBA* colors)>& change);

/// The palettes that must be reordered together so that pictures do not change: the given ones plus
/// all that remaps connect them to, in either direction. In file order.
QVector<int> palettesShownTogether(const Family::SpriteCollection& sprites, QVector<int> rows);

/// Reorders palette entries. The pixels of all sprites that use them are remapped, so every picture
/// looks the same in each of these palettes. Palettes connected by remaps are therefore reordered
/// too. A costume is only reordered if it is among the palettes. `done` counts palettes. A broken
/// sprite is left unchanged, with a warning. Pixels are compressed again on all processors, with
/// progress.
MediaResult reorderPalettes(Family::SpriteCollection* sprites, const QVector<int>& rows,
                            const Zorv::PaletteOrder& order);

/// Replaces a colour in all entries that have it, including its alpha. `done` counts the entries.
MediaResult replaceColor(Family::SpriteCollection* sprites, const QVector<int>& rows,
                         Zorv::RGBA from, Zorv::RGBA to);

/// Fills the entries between two slots with a colour ramp. The two slots keep their colours.
MediaResult fillRamp(Family::SpriteCollection* sprites, const QVector<int>& rows, quint8 first,
                     quint8 last, Zorv::ColorSpace space);

/// Shifts the hue of the selected slots by `degrees`, positive or negative, and keeps their
/// lightness; see `Zorv::shiftHue()`. `selection` has 256 entries. `done` counts changed palette
/// entries.
MediaResult shiftHues(Family::SpriteCollection* sprites, const QVector<int>& rows,
                      const bool* selection, double degrees);

/// Inserts a copy after a palette, with the next free identifier. Null if the row is out of range.
Family::FamilyPalette* duplicatePalette(Family::SpriteCollection* sprites, int row);

}  // namespace Operations
