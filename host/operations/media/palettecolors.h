#pragma once

#include <zorv/media/colortypes.h>

#include <QString>
#include <QVector>

#include <memory>

class QMimeData;

namespace Family {
class SpriteCollection;
}

namespace Operations {

struct MediaResult;

/// Colours of a palette with their slots, for copying and dragging.
///
/// Other programs exchange them as text, one line each: "#rrggbb", or "#rrggbbaa" if a colour is
/// not opaque. Text has no slots.
struct PaletteEntries
{
    QVector<Zorv::RGBA> colors;
    QVector<quint8> places;  ///< one for each colour, or empty

    std::unique_ptr<QMimeData> toMime() const;

    /// Empty for any other kind of data; never more than 256.
    static PaletteEntries fromMime(const QMimeData* data);

    /// Assigns the colours to the selected slots (`selection` has 256 entries). One colour fills
    /// all of them; several colours go to one slot each. From a single selected slot they continue
    /// to the slots after it. Colours without a slot are dropped.
    PaletteEntries placedIn(const bool* selection) const;
};

/// Writes colours to their slots of a palette, as one undo step named `title`. `done` counts the
/// colours that have slots.
MediaResult placeColors(Family::SpriteCollection* sprites, int row, const PaletteEntries& entries,
                        const QString& title);

}  // namespace Operations
