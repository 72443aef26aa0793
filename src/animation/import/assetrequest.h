#pragma once

#include "cache/spritenumber.h"

#include <QHash>
#include <QString>
#include <QVector>

namespace Zorv {

class Project;

/// The sprites that an import of animations needs from another project: a request to the host.
struct AssetRequest
{
    const Project* source = nullptr;
    Project* destination = nullptr;

    /// The sprites used by the animations, without duplicates, in the order of the frames.
    QVector<SpriteNumber> sprites;

    /// If some sprites are broken: true imports the others, false imports nothing.
    bool leavesBroken = false;
};

/// The result of an `AssetRequest`.
struct AssetResult
{
    /// Why nothing was done, for display to the user; empty on success.
    QString error;

    /// Sprites whose number in the destination differs from the source.
    QHash<SpriteNumber, SpriteNumber> renumbered;

    int added = 0;     ///< sprites new in the destination
    int shared = 0;    ///< sprites already there: same picture, colours and axis
    int palettes = 0;  ///< palettes imported with them

    /// Sprites that the source does not have, or only broken. They are not imported, and frames
    /// keep their old numbers. If some are broken and the others must not come alone, `error` is
    /// set as well.
    QVector<SpriteNumber> missing;
    QVector<SpriteNumber> broken;
};

}  // namespace Zorv
