#pragma once

#include "media/colortypes.h"
#include "zorv_export.h"

#include <QImage>
#include <QVector>

#include <memory>

namespace Zorv {

class ColorQuantizerPrivate;

/// Finds the colours that stand best for those of images, by an octree.
///
/// Colours of any number of images are added, then a palette is made. Exact colours are kept when
/// there are few enough. The error is the mean of the squared differences over red, green, blue
/// and alpha; there is no dithering. Memory is that of its bins, about 300 KB, however many pixels
/// are added. All pixels of alpha 0 are one colour. One thread at a time for each object; the
/// static functions are re-entrant.
class ZORV_EXPORT ColorQuantizer
{
public:
    ColorQuantizer();
    ~ColorQuantizer();

    /// Counts the pixels of an image of any form. An index behind the colour table is transparent.
    void addImage(const QImage& image);

    /// Counts one colour `count` times.
    void addColor(RGBA color, quint64 count = 1);

    /// At most `count` colours, 1 to 256; fewer if fewer were added. If transparent pixels were
    /// added, 0 comes first (unless `count` is 1); the others go from dark to bright.
    QVector<RGBA> palette(int count) const;

    /// An image of `Format_Indexed8` with at most `count` colours of its own, which replace those
    /// of the image. An indexed one that has no more keeps its colour table and its indices.
    static QImage quantize(const QImage& image, int count);

    /// An image of `Format_Indexed8` with the given colours, up to 256: each pixel takes the
    /// one whose squared distance over red, green, blue and alpha is least, the first one among
    /// equals. A pixel of alpha 0 takes the first entry of the lowest alpha. Exact for an
    /// image that fits the palette; a pixel of an indexed image keeps its index if the
    /// colour is the same there. Null without colours or for a null image.
    static QImage adapt(const QImage& image, const QVector<RGBA>& palette);

private:
    Q_DISABLE_COPY(ColorQuantizer)
    std::unique_ptr<ColorQuantizerPrivate> d;
};

}  // namespace Zorv
