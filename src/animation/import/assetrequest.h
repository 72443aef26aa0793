#pragma once

#include "cache/spritenumber.h"

#include <QHash>
#include <QString>
#include <QVector>

namespace Zorv {

class Project;

/// Sprites that animations of another project bring along: what an import asks of its host.
struct AssetRequest
{
    const Project* source = nullptr;
    Project* destination = nullptr;

    /// The sprites that the animations show, each once, in the order of the frames.
    QVector<SpriteNumber> sprites;

    /// Whether the others come if some are broken; else nothing is done then.
    bool leavesBroken = false;
};

/// What came of an `AssetRequest`.
struct AssetResult
{
    /// Why nothing was done, for the person; empty if it was.
    QString error;

    /// The sprites that have another number in the destination than in the source.
    QHash<SpriteNumber, SpriteNumber> renumbered;

    int added = 0;     ///< sprites that are new in the destination
    int shared = 0;    ///< sprites that it had already: the same picture, colours and axis
    int palettes = 0;  ///< palettes that came with them

    /// What the source does not have, or only broken. It does not come, and frames name it as
    /// before. If some are broken and the others must not come alone, there is an `error`, too.
    QVector<SpriteNumber> missing;
    QVector<SpriteNumber> broken;
};

}  // namespace Zorv
