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

/// Some colours of a palette, with the slots that they stand in: what is copied and dragged.
///
/// Other programs get and give them as text, a line each: "#rrggbb", or "#rrggbbaa" where one is
/// not opaque. Those have no slots.
struct PaletteEntries
{
    QVector<Zorv::RGBA> colors;
    QVector<quint8> places;  ///< as many, or none

    std::unique_ptr<QMimeData> toMime() const;

    /// None for data of any other kind; never more than 256.
    static PaletteEntries fromMime(const QMimeData* data);

    /// The same colours for selected slots (256 of them): one for all of them, several for each
    /// its own, and from a single slot on for those behind it. What has no slot left is dropped.
    PaletteEntries placedIn(const bool* selection) const;
};

/// Puts colours into their slots of a palette: one step of undo with that title. `done` counts
/// those that have places.
MediaResult placeColors(Family::SpriteCollection* sprites, int row, const PaletteEntries& entries,
                        const QString& title);

}  // namespace Operations
