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

// Changes of palettes of a sprite file, each of them one step of undo. Palettes are told by their
// rows. One whose record in the file is broken is named, and nothing is changed at all.

/// Changes the 256 colours of palettes with `change`, which gives how many it has changed; `done`
/// counts these. Sprites keep their pixels.
MediaResult changePalettes(Family::SpriteCollection* sprites, const QVector<int>& rows,
                           const QString& title,
                           const std::function<int(Zorv::RGBA* colors)>& change);

/// The palettes that have to change together so that pictures stay: these, and what remaps show
/// instead of them, or them instead of. In the order of the file.
QVector<int> palettesShownTogether(const Family::SpriteCollection& sprites, QVector<int> rows);

/// Puts the entries of palettes in another order. The pixels of all sprites that use them follow,
/// so every picture looks as before, in each of these palettes; so palettes that remaps show
/// instead go along. A costume goes along if it is among the palettes. `done` counts palettes;
/// a broken sprite is left as it is, and told. Pixels are packed again on all processors, with
/// progress.
MediaResult reorderPalettes(Family::SpriteCollection* sprites, const QVector<int>& rows,
                            const Zorv::PaletteOrder& order);

/// Gives another colour to all entries that have a colour, alpha included. `done` counts the
/// entries.
MediaResult replaceColor(Family::SpriteCollection* sprites, const QVector<int>& rows,
                         Zorv::RGBA from, Zorv::RGBA to);

/// Makes the entries between two slots a ramp from the one to the other, which stay.
MediaResult fillRamp(Family::SpriteCollection* sprites, const QVector<int>& rows, quint8 first,
                     quint8 last, Zorv::ColorSpace space);

/// Turns the hues of some slots by degrees, of any sign, and keeps their lightness; see
/// `Zorv::shiftHue()`. `selection` has 256. `done` counts the entries that have changed.
MediaResult shiftHues(Family::SpriteCollection* sprites, const QVector<int>& rows,
                      const bool* selection, double degrees);

/// Puts a copy of a palette behind it, with the next free identifier. Null for a row outside of the
/// list.
Family::FamilyPalette* duplicatePalette(Family::SpriteCollection* sprites, int row);

}  // namespace Operations
