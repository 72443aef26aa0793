#pragma once

#include "family/assets/pixelcodec.h"
#include "operations/media/imagenumbers.h"
#include "operations/media/mediaresult.h"
#include "operations/media/spriteedits.h"

#include <QPoint>
#include <QString>

namespace Family {
class SpriteCollection;
}  // namespace Family

namespace Operations {

/// How images become sprites.
struct ImportRequest
{
    Numbering numbering;

    /// The axis. With `hasAxis` it is `axisBase` of the image plus `axis`. Without, it is the axis
    /// in the file; else a replaced sprite keeps its own; else it is `axisBase` plus `axis` as
    /// well. Edges that the sheet or `crops` has cut off are counted.
    bool hasAxis = false;
    AxisBase axisBase = AxisBase::TopLeft;
    QPoint axis;

    bool crops = false;  ///< the invisible border is cropped, and the axis moves with it
    QString palette;     ///< identifier of a palette, or a palette file; empty to use each image's
                         ///< own
    bool recolors = false;  ///< that palette is overwritten with the colours of the images
    bool reverses = false;  ///< colours and indices of images are reversed: 0 becomes 255
    int colors = 0;         ///< all images share a new palette of this size, 2 to 256; 0 for none
    Family::PixelCodec codec = Family::PixelCodec::None;  ///< `None` to choose the smallest
    bool leavesOut = false;  ///< skips unreadable images instead of failing
};

/// The sprite that shows an image.
struct ImportedId
{
    int image;
    Family::AssetId id;
};

/// The axis of an image, relative to its cropped part. `old` is the axis of the sprite that it
/// replaces, null for a new one.
QPoint importAxis(const ImportPixels& pixels, const ImportRequest& request,
                  const QPoint* old = nullptr);

/// Reads images and adds them to a collection, or replaces its sprites, as one undo step. If an
/// image cannot be read, or exists already and may not be replaced, nothing is changed. `ids`
/// receives the sprite of each image, in image order; images that were not imported are omitted.
MediaResult importSprites(Family::SpriteCollection* sprites, const QVector<ImportImage>& images,
                          const ImportRequest& request, QVector<ImportedId>* ids = nullptr);

}  // namespace Operations
