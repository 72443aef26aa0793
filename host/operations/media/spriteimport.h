#pragma once

#include "family/assets/pixelcodec.h"
#include "operations/media/mediaresult.h"

#include <zorv/cache/sprite.h>

#include <QPoint>
#include <QStringList>

namespace Family {
class SpriteCollection;
}  // namespace Family

namespace Operations {

/// How images become sprites.
struct ImportRequest
{
    int group = -1;  ///< of all images, which get the next free numbers; negative to go by names
    QPoint axis;     ///< of all images, from their top left corner
    bool hasAxis = false;  ///< without it that of a PNG file counts, else sprites keep theirs
    bool crops = false;    ///< what does not show is cut off, and the axis moves with it
    QString palette;  ///< identifier of a palette, or a palette file; empty for each image's own
    bool recolors = false;  ///< that palette takes the colours of the images
    bool reverses = false;  ///< colours and indices of images change places, 0 with 255
    Family::PixelCodec codec = Family::PixelCodec::None;  ///< `None` for the smallest one
    bool force = false;  ///< sprites that are there already may be replaced
};

/// Reads images and adds them to a collection, or replaces its sprites, as one step of undo. If one
/// of them cannot be read, or is there already and may not be replaced, nothing is changed.
MediaResult importSprites(Family::SpriteCollection* sprites, const QStringList& files,
                          const ImportRequest& request);

}  // namespace Operations
