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

    /// The axis: a place of the image, moved by `axis`. Without `hasAxis` it is what the file
    /// tells, else a sprite that is replaced keeps its own, else that place is it. Edges that the
    /// sheet or `crops` has cut off count.
    bool hasAxis = false;
    AxisBase axisBase = AxisBase::TopLeft;
    QPoint axis;

    bool crops = false;  ///< what does not show is cut off, and the axis moves with it
    QString palette;     ///< identifier of a palette, or a palette file; empty for each image's own
    bool recolors = false;  ///< that palette takes the colours of the images
    bool reverses = false;  ///< colours and indices of images change places, 0 with 255
    int colors = 0;  ///< all images share a new palette of so many, 2 to 256; 0 for none such
    Family::PixelCodec codec = Family::PixelCodec::None;  ///< `None` for the smallest one
    bool leavesOut = false;  ///< images that cannot be read are left out, and do not stop the rest
};

/// Which sprite shows an image.
struct ImportedId
{
    int image;
    Family::AssetId id;
};

/// Where the axis of an image goes, in what is left of it; `old` is that of a sprite in whose place
/// it comes, null for a new one.
QPoint importAxis(const ImportPixels& pixels, const ImportRequest& request,
                  const QPoint* old = nullptr);

/// Reads images and adds them to a collection, or replaces its sprites, as one step of undo. If one
/// of them cannot be read, or is there already and may not be replaced, nothing is changed. `ids`
/// takes, for each image in its order, the sprite that shows it; those that came to nothing are
/// not in it.
MediaResult importSprites(Family::SpriteCollection* sprites, const QVector<ImportImage>& images,
                          const ImportRequest& request, QVector<ImportedId>* ids = nullptr);

}  // namespace Operations
